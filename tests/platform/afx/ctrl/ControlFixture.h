// A visible framework window for controls.
#pragma once

#include <afxcmn.h>
#include <afxwin.h>

#include <gtest/gtest.h>

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

    static constexpr DWORD Visible = WS_CHILD | WS_VISIBLE;

    CWnd m_parent;
    CRect m_place{10, 10, 310, 210};
};
