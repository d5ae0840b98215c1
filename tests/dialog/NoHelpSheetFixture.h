// A property sheet without Help over an owner, with three recording pages, that runs a piece of the test once it is
// shown and idle.
#pragma once

#include <afxwin.h>
#include <afxcmn.h>
#include <afxpriv.h>

#include <gtest/gtest.h>

#include <functional>

#include "RecordingPage.h"
#include "Wait.h"
#include "dialog/NoHelpPropertySheet.h"

class SheetOwner : public CWnd
{
public:
    SheetOwner()
    {
        CreateEx(0, AfxRegisterWndClass(0), L"Owner", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(100, 80, 700, 500), NULL,
                 0);
    }
    ~SheetOwner() override { DestroyWindow(); }
};

template<class BASE>
class Scripted : public BASE
{
public:
    using BASE::BASE;

    // Opens the sheet, runs the script in it and cancels. False when it didn't open.
    bool Run(const std::function<void()>& script)
    {
        m_script = script;
        return this->DoModal() != -1;
    }

    CRect PlaceOf(int id) const
    {
        CRect place;
        this->GetDlgItem(id)->GetWindowRect(&place);
        this->ScreenToClient(&place);
        return place;
    }

    bool IsShown(int id) const { return this->GetDlgItem(id)->IsWindowVisible() != FALSE; }
    bool IsEnabled(int id) const { return this->GetDlgItem(id)->IsWindowEnabled() != FALSE; }
    void Click(int id) { this->GetDlgItem(id)->SendMessage(BM_CLICK); }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message != WM_KICKIDLE || !m_script)
            return BASE::WindowProc(message, wParam, lParam);
        const std::function<void()> script = m_script;
        m_script = nullptr;
        script();
        this->EndDialog(IDCANCEL);
        return 0;
    }

private:
    std::function<void()> m_script;
};

typedef Scripted<CNoHelpPropertySheet> NoHelpSheet;
typedef Scripted<CPropertySheet> PlainSheet;

class NoHelpSheetFixture : public testing::Test
{
protected:
    NoHelpSheetFixture()
    {
        sheet.AddPage(&first);
        sheet.AddPage(&second);
        sheet.AddPage(&third);
    }

    SheetOwner owner;
    SheetLog log;
    RecordingPage first{log, L"First", PSP_HASHELP};
    RecordingPage second{log, L"Second", PSP_HASHELP};
    RecordingPage third{log, L"Third", PSP_HASHELP};
    NoHelpSheet sheet{L"选项", &owner};
};
