#include "ScriptedDialog.h"

#include <gtest/gtest.h>

#include "Wait.h"

class Dialog : public testing::Test
{
protected:
    OwnerWindow m_owner;
};

// DoModal returns what ended the dialog.

TEST_F(Dialog, DoModalReturnsWhatEndDialogWasGiven)
{
    const int rows[] = {IDOK, IDCANCEL, IDYES, 4711, 0, -5};
    for (const int code : rows)
    {
        ScriptedDialog dialog([code](ScriptedDialog& running) { running.EndDialog(code); });
        EXPECT_EQ(code, dialog.Run(&m_owner));
        EXPECT_EQ(nullptr, dialog.m_hWnd);
    }
}

TEST_F(Dialog, TheButtonsEndWithTheirOwnCodes)
{
    const int rows[] = {IDOK, IDCANCEL};
    for (const int button : rows)
    {
        ScriptedDialog dialog(
            [button](ScriptedDialog& running) { ::PostMessage(::GetDlgItem(running.m_hWnd, button), BM_CLICK, 0, 0); });
        EXPECT_EQ(button, dialog.Run(&m_owner));
    }
}

TEST_F(Dialog, ClosingTheWindowCancels)
{
    ScriptedDialog dialog([](ScriptedDialog& running) { running.PostMessage(WM_CLOSE); });
    EXPECT_EQ(IDCANCEL, dialog.Run(&m_owner));
}

TEST_F(Dialog, OkReadsTheControlsAndCancelDoesNot)
{
    ScriptedDialog accepted([](ScriptedDialog& running) { running.OnOK(); });
    accepted.Run(&m_owner);
    EXPECT_EQ(2, accepted.m_exchanges); // filled once, read once
    ScriptedDialog cancelled([](ScriptedDialog& running) { running.OnCancel(); });
    cancelled.Run(&m_owner);
    EXPECT_EQ(1, cancelled.m_exchanges);
}

TEST_F(Dialog, EndDialogInOnInitDialogNeverShowsIt)
{
    bool shown = false;
    ScriptedDialog dialog([&shown](ScriptedDialog&) { shown = true; });
    dialog.m_onInit = [](ScriptedDialog& running) {
        running.EndDialog(77);
        return TRUE;
    };
    EXPECT_EQ(77, dialog.Run(&m_owner));
    EXPECT_FALSE(shown);
    EXPECT_TRUE(m_owner.IsWindowEnabled());
}

TEST_F(Dialog, AMissingTemplateGivesMinusOne)
{
    const UINT missing = 31999;
    CDialog dialog(missing, &m_owner);
    EXPECT_EQ(-1, dialog.DoModal());
    EXPECT_TRUE(m_owner.IsWindowEnabled());
    CDialog modeless;
    EXPECT_FALSE(modeless.Create(missing, &m_owner));
}

TEST_F(Dialog, ATemplateInMovableMemoryServesAsWell)
{
    DialogTemplate form = ScriptedDialog::Form();
    const HGLOBAL memory = form.GetGlobal();
    ScriptedDialog dialog([](ScriptedDialog& running) { running.EndDialog(12); });
    EXPECT_TRUE(dialog.InitModalIndirect(memory, &m_owner));
    EXPECT_EQ(12, dialog.DoModal());
    EXPECT_EQ(nullptr, ::GlobalFree(memory));
}

TEST_F(Dialog, TheSameObjectRunsAgain)
{
    ScriptedDialog dialog;
    dialog.m_onInit = [](ScriptedDialog& running) {
        running.EndDialog(5);
        return TRUE;
    };
    EXPECT_EQ(5, dialog.Run(&m_owner));
    EXPECT_EQ(5, dialog.Run(&m_owner));
}

// While a modal dialog runs, its owner takes no input.

TEST_F(Dialog, TheOwnerIsDisabledMeanwhile)
{
    BOOL during = TRUE;
    ScriptedDialog dialog([&](ScriptedDialog& running) {
        during = m_owner.IsWindowEnabled();
        running.EndDialog(IDOK);
    });
    dialog.Run(&m_owner);
    EXPECT_FALSE(during);
    EXPECT_TRUE(m_owner.IsWindowEnabled());
    EXPECT_EQ(m_owner.m_hWnd, ::GetActiveWindow());
}

TEST_F(Dialog, AnOwnerDisabledBeforeStaysDisabled)
{
    m_owner.EnableWindow(FALSE);
    ScriptedDialog dialog([](ScriptedDialog& running) { running.EndDialog(IDOK); });
    dialog.Run(&m_owner);
    EXPECT_FALSE(m_owner.IsWindowEnabled());
}

TEST_F(Dialog, AChildAsParentDisablesItsTopLevelWindow)
{
    CWnd child;
    ASSERT_TRUE(child.Create(AfxRegisterWndClass(0), L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 50), &m_owner, 1));
    HWND owner = nullptr;
    BOOL during = TRUE;
    ScriptedDialog dialog([&](ScriptedDialog& running) {
        owner = ::GetWindow(running.m_hWnd, GW_OWNER);
        during = m_owner.IsWindowEnabled();
        running.EndDialog(IDOK);
    });
    dialog.Run(&child);
    EXPECT_EQ(m_owner.m_hWnd, owner);
    EXPECT_FALSE(during);
    EXPECT_TRUE(m_owner.IsWindowEnabled());
}

TEST_F(Dialog, NestedDialogsEndFromTheInside)
{
    INT_PTR inner = 0;
    BOOL outerDuring = TRUE;
    BOOL outerAfter = FALSE;
    ScriptedDialog outer([&](ScriptedDialog& running) {
        ScriptedDialog nested([&](ScriptedDialog& runningInside) {
            outerDuring = running.IsWindowEnabled();
            runningInside.EndDialog(21);
        });
        inner = nested.Run(&running);
        outerAfter = running.IsWindowEnabled();
        running.EndDialog(22);
    });
    EXPECT_EQ(22, outer.Run(&m_owner));
    EXPECT_EQ(21, inner);
    EXPECT_FALSE(outerDuring);
    EXPECT_TRUE(outerAfter);
    EXPECT_TRUE(m_owner.IsWindowEnabled());
}

// The window: hidden while it is prepared, shown when idle, centred unless the template has a place.

TEST_F(Dialog, ItIsHiddenInOnInitDialogAndShownWhenIdle)
{
    BOOL before = TRUE;
    BOOL after = FALSE;
    ScriptedDialog dialog([&](ScriptedDialog& running) {
        after = running.IsWindowVisible();
        running.EndDialog(IDOK);
    });
    dialog.m_onInit = [&](ScriptedDialog& running) {
        before = running.IsWindowVisible();
        return TRUE;
    };
    dialog.Run(&m_owner);
    EXPECT_FALSE(before);
    EXPECT_TRUE(after);
}

TEST_F(Dialog, WithoutAPlaceItIsCentredOverItsOwner)
{
    CRect rect;
    ScriptedDialog dialog([&](ScriptedDialog& running) {
        running.GetWindowRect(&rect);
        running.EndDialog(IDOK);
    });
    dialog.Run(&m_owner);
    CRect owner;
    m_owner.GetWindowRect(&owner);
    EXPECT_NEAR(owner.CenterPoint().x, rect.CenterPoint().x, 1);
    EXPECT_NEAR(owner.CenterPoint().y, rect.CenterPoint().y, 1);
}

TEST_F(Dialog, WithAPlaceItStandsThere)
{
    DialogTemplate form = ScriptedDialog::Form();
    form.At(8, 16);
    CPoint place(0, 0); // of the client area
    CRect expected(8, 16, 0, 0);
    ScriptedDialog dialog([&](ScriptedDialog& running) {
        running.ClientToScreen(&place);
        running.MapDialogRect(&expected);
        running.EndDialog(IDOK);
    });
    dialog.InitModalIndirect(form.Get(), &m_owner);
    dialog.DoModal();
    CPoint origin(0, 0);
    m_owner.ClientToScreen(&origin);
    EXPECT_EQ(origin.x + expected.left, place.x);
    EXPECT_EQ(origin.y + expected.top, place.y);
}

TEST_F(Dialog, TheFirstTabStopHasTheFocus)
{
    int focus = 0;
    ScriptedDialog dialog([&](ScriptedDialog& running) {
        focus = ::GetDlgCtrlID(::GetFocus());
        running.EndDialog(IDOK);
    });
    dialog.Run(&m_owner);
    EXPECT_EQ(IDC_FIRST_EDIT, focus);
}

TEST_F(Dialog, FalseFromOnInitDialogKeepsTheFocusThatWasSet)
{
    int focus = 0;
    ScriptedDialog dialog([&](ScriptedDialog& running) {
        focus = ::GetDlgCtrlID(::GetFocus());
        running.EndDialog(IDOK);
    });
    dialog.m_onInit = [](ScriptedDialog& running) {
        running.GetDlgItem(IDC_SECOND_EDIT)->SetFocus();
        return FALSE;
    };
    dialog.Run(&m_owner);
    EXPECT_EQ(IDC_SECOND_EDIT, focus);
}

TEST_F(Dialog, TheFocusMovesByCall)
{
    int next = 0;
    int previous = 0;
    int chosen = 0;
    ScriptedDialog dialog([&](ScriptedDialog& running) {
        running.NextDlgCtrl();
        next = ::GetDlgCtrlID(::GetFocus());
        running.PrevDlgCtrl();
        previous = ::GetDlgCtrlID(::GetFocus());
        running.GotoDlgCtrl(running.GetDlgItem(IDC_MEMO));
        chosen = ::GetDlgCtrlID(::GetFocus());
        running.EndDialog(IDOK);
    });
    dialog.Run(&m_owner);
    EXPECT_EQ(IDC_SECOND_EDIT, next);
    EXPECT_EQ(IDC_FIRST_EDIT, previous);
    EXPECT_EQ(IDC_MEMO, chosen);
}

// The keyboard of the dialog: it sees the keys of its controls first.

TEST_F(Dialog, EnterPressesTheDefaultButton)
{
    ScriptedDialog dialog([](ScriptedDialog& running) { running.Key(IDC_FIRST_EDIT, VK_RETURN); });
    EXPECT_EQ(IDOK, dialog.Run(&m_owner));
    EXPECT_GE(dialog.m_keysSeen, 1);
}

TEST_F(Dialog, EnterPressesAnotherDefaultButtonAfterSetDefID)
{
    DWORD id = 0;
    ScriptedDialog dialog([&](ScriptedDialog& running) {
        running.SetDefID(IDC_APPLY);
        id = running.GetDefID();
        running.Key(IDC_FIRST_EDIT, VK_RETURN);
        running.Key(IDC_FIRST_EDIT, VK_ESCAPE);
    });
    EXPECT_EQ(IDCANCEL, dialog.Run(&m_owner));
    EXPECT_EQ(1, dialog.m_applies);
    EXPECT_EQ(IDC_APPLY, LOWORD(id));
    EXPECT_EQ(DC_HASDEFID, HIWORD(id));
}

TEST_F(Dialog, EscapeCancels)
{
    const int rows[] = {IDC_FIRST_EDIT, IDC_MEMO, IDOK};
    for (const int control : rows)
    {
        ScriptedDialog dialog([control](ScriptedDialog& running) { running.Key(control, VK_ESCAPE); });
        EXPECT_EQ(IDCANCEL, dialog.Run(&m_owner)) << control;
    }
}

TEST_F(Dialog, EscapeDoesNothingWhileCancelIsDisabled)
{
    ScriptedDialog dialog([](ScriptedDialog& running) {
        running.GetDlgItem(IDCANCEL)->EnableWindow(FALSE);
        running.Key(IDC_MEMO, VK_ESCAPE);
        running.Key(IDC_FIRST_EDIT, VK_RETURN);
    });
    EXPECT_EQ(IDOK, dialog.Run(&m_owner));
}

// Commands that a dialog doesn't know go to its owner; notifications of its controls don't.

TEST_F(Dialog, UnknownCommandsGoToTheOwner)
{
    ScriptedDialog dialog([](ScriptedDialog& running) {
        running.SendMessage(WM_COMMAND, ID_OWNER_COMMAND);
        const HWND control = ::GetDlgItem(running.m_hWnd, IDC_FIRST_EDIT);
        running.SendMessage(WM_COMMAND, MAKEWPARAM(ID_OWNER_COMMAND, EN_CHANGE), LPARAM(control));
        running.EndDialog(IDOK);
    });
    dialog.Run(&m_owner);
    EXPECT_EQ(1, m_owner.m_commands);
}

// Modeless dialogs.

TEST_F(Dialog, AModelessDialogIsShownByItsStyle)
{
    ScriptedDialog dialog;
    DialogTemplate form = ScriptedDialog::Form(WS_POPUP | WS_CAPTION | WS_VISIBLE | DS_SETFONT);
    ASSERT_TRUE(dialog.CreateIndirect(form.Get(), &m_owner));
    EXPECT_TRUE(dialog.IsWindowVisible());
    EXPECT_TRUE(m_owner.IsWindowEnabled());
    EXPECT_EQ(1, dialog.m_exchanges);
    EXPECT_EQ(m_owner.m_hWnd, ::GetWindow(dialog.m_hWnd, GW_OWNER));
    EXPECT_TRUE(dialog.DestroyWindow());
    EXPECT_EQ(nullptr, dialog.m_hWnd);
    EXPECT_EQ(1, dialog.m_lastCalls);
}

TEST_F(Dialog, AModelessDialogCanBeAChild)
{
    ScriptedDialog dialog;
    DialogTemplate form = ScriptedDialog::Form(WS_CHILD | WS_VISIBLE | DS_SETFONT | DS_CONTROL);
    ASSERT_TRUE(dialog.CreateIndirect(form.Get(), &m_owner));
    EXPECT_EQ(m_owner.m_hWnd, ::GetParent(dialog.m_hWnd));
    dialog.DestroyWindow();
    EXPECT_FALSE(::IsWindow(dialog.m_hWnd));
}

TEST_F(Dialog, TheOwnersEndDestroysAModelessDialog)
{
    ScriptedDialog dialog;
    DialogTemplate form = ScriptedDialog::Form();
    ASSERT_TRUE(dialog.CreateIndirect(form.Get(), &m_owner));
    m_owner.DestroyWindow();
    EXPECT_EQ(nullptr, dialog.m_hWnd);
    EXPECT_EQ(1, dialog.m_lastCalls);
}
