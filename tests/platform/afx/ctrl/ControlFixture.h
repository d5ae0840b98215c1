// A visible framework window for controls.
#pragma once

#include <afxcmn.h>
#include <afxwin.h>

#include <gtest/gtest.h>

#include "Wait.h"

class ControlFixture : public testing::Test
{
protected:
    static constexpr int ControlId = 42;

    void SetUp() override
    {
        INITCOMMONCONTROLSEX controls = {sizeof(controls), ICC_WIN95_CLASSES};
        ASSERT_TRUE(::InitCommonControlsEx(&controls));
        ASSERT_TRUE(m_parent.CreateEx(0, AfxRegisterWndClass(0), L"Controls", WS_OVERLAPPEDWINDOW | WS_VISIBLE,
                                      CRect(0, 0, 500, 400), nullptr, 0));
    }
    void TearDown() override { m_parent.DestroyWindow(); }

    // Starts to edit a label. The window may still be on its way to the foreground, which would end the edit at once.
    template<class CONTROL, class ITEM>
    static bool OpensLabel(CONTROL& control, ITEM item)
    {
        return WaitFor([&control, item] {
            control.SetFocus();
            const CEdit* const edit = control.EditLabel(item);
            return edit != nullptr && edit == control.GetEditControl();
        });
    }

    static constexpr DWORD Visible = WS_CHILD | WS_VISIBLE;

    CWnd m_parent;
    CRect m_place{10, 10, 310, 210};
};
