// The property sheet over the system's own one: pages and their notifications, modal and modeless, bad input.
#include <afxwin.h>
#include <afxcmn.h>
#include <afxdlgs.h>
#include <afxpriv.h>

#include <gtest/gtest.h>

#include <functional>

#include "RecordingPage.h"
#include "ScriptedDialog.h"
#include "Wait.h"

namespace
{

// A sheet that runs a piece of the test once it is shown and idle.
class ScriptedSheet : public CPropertySheet
{
public:
    using CPropertySheet::CPropertySheet;

    BOOL OnInitDialog() override
    {
        ++m_inits;
        const BOOL result = CPropertySheet::OnInitDialog();
        if (m_onInit)
            m_onInit();
        return result;
    }

    std::function<void()> m_onInit;
    std::function<void()> m_script;
    int m_inits = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message != WM_KICKIDLE || !m_script)
            return CPropertySheet::WindowProc(message, wParam, lParam);
        const std::function<void()> script = m_script;
        m_script = nullptr;
        script();
        return 0;
    }
};

class PropertySheets : public testing::Test
{
protected:
    PropertySheets()
    {
        sheet.AddPage(&first);
        sheet.AddPage(&second);
        sheet.AddPage(&third);
    }

    void Open()
    {
        ASSERT_TRUE(sheet.Create(&owner));
        log.Take();
    }

    // Presses a button as the user does: the button tells the sheet.
    void Press(int id) { sheet.GetDlgItem(id)->PostMessage(BM_CLICK); }

    CString TextOf(CPropertyPage& page)
    {
        CString text;
        page.GetDlgItemText(RecordingPage::EditId, text);
        return text;
    }

    OwnerWindow owner;
    SheetLog log;
    RecordingPage first{log, L"First"};
    RecordingPage second{log, L"Second"};
    RecordingPage third{log, L"Third"};
    ScriptedSheet sheet{L"Options", &owner};
};

} // namespace

// The modal sheet.

TEST_F(PropertySheets, RunsModallyUntilOkAppliesThePagesThatExist)
{
    sheet.m_script = [&] { Press(IDOK); };
    EXPECT_EQ(IDOK, sheet.DoModal());
    EXPECT_EQ("First init, First set, First kill, First apply, First ok", log.Take());
    EXPECT_EQ(1, sheet.m_inits);
    EXPECT_EQ(nullptr, sheet.m_hWnd);
    EXPECT_EQ(nullptr, first.m_hWnd);
}

TEST_F(PropertySheets, CancelAsksThePagesAndTellsThem)
{
    sheet.m_script = [&] { Press(IDCANCEL); };
    EXPECT_EQ(IDCANCEL, sheet.DoModal());
    EXPECT_EQ("First init, First set, First query, First cancel", log.Take());
}

TEST_F(PropertySheets, TheCloseButtonOfTheCaptionCancels)
{
    sheet.m_script = [&] { sheet.PostMessage(WM_SYSCOMMAND, SC_CLOSE); };
    EXPECT_EQ(IDCANCEL, sheet.DoModal());
    EXPECT_NE(std::string::npos, log.Take().find("First cancel"));
}

TEST_F(PropertySheets, EscapeCancels)
{
    sheet.m_script = [&] { first.GetDlgItem(RecordingPage::EditId)->PostMessage(WM_KEYDOWN, VK_ESCAPE); };
    EXPECT_EQ(IDCANCEL, sheet.DoModal());
}

TEST_F(PropertySheets, APageThatRefusesToApplyKeepsTheSheetOpen)
{
    first.m_allowApply = FALSE;
    bool stayed = false;
    sheet.m_script = [&] {
        sheet.GetDlgItem(IDOK)->SendMessage(BM_CLICK);
        stayed = sheet.ContinueModal() != FALSE;
        Press(IDCANCEL);
    };
    EXPECT_EQ(IDCANCEL, sheet.DoModal()) << "the button that was refused is not the result";
    EXPECT_TRUE(stayed);
    EXPECT_EQ("First init, First set, First kill, First apply, First query, First cancel", log.Take());
}

TEST_F(PropertySheets, APageThatRefusesToCancelKeepsTheSheetOpen)
{
    first.m_allowCancel = FALSE;
    bool stayed = false;
    sheet.m_script = [&] {
        sheet.GetDlgItem(IDCANCEL)->SendMessage(BM_CLICK);
        stayed = sheet.ContinueModal() != FALSE;
        first.m_allowCancel = TRUE;
        Press(IDOK);
    };
    EXPECT_EQ(IDOK, sheet.DoModal());
    EXPECT_TRUE(stayed);
}

TEST_F(PropertySheets, ButtonsCanBePressedByTheProgram)
{
    sheet.m_script = [&] { sheet.PressButton(PSBTN_OK); };
    EXPECT_EQ(IDOK, sheet.DoModal());
    sheet.m_script = [&] { sheet.PressButton(PSBTN_CANCEL); };
    EXPECT_EQ(IDCANCEL, sheet.DoModal());
}

TEST_F(PropertySheets, EndDialogEndsItWithoutAskingThePages)
{
    const int kResult = 4711;
    sheet.m_script = [&] { sheet.EndDialog(kResult); };
    EXPECT_EQ(kResult, sheet.DoModal());
    EXPECT_EQ("First init, First set", log.Take());
}

TEST_F(PropertySheets, MayEndInsideItsOwnInitialisation)
{
    sheet.m_onInit = [&] { sheet.EndDialog(7); };
    EXPECT_EQ(7, sheet.DoModal());
    EXPECT_EQ(nullptr, sheet.m_hWnd);
}

TEST_F(PropertySheets, DisablesItsOwnerWhileItRuns)
{
    BOOL enabled = TRUE;
    sheet.m_script = [&] {
        enabled = owner.IsWindowEnabled();
        Press(IDOK);
    };
    sheet.DoModal();
    EXPECT_FALSE(enabled);
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST_F(PropertySheets, ShowsItselfOverTheOwnerWithItsCaption)
{
    CString caption;
    BOOL visible = FALSE;
    sheet.m_script = [&] {
        sheet.GetWindowText(caption);
        visible = sheet.IsWindowVisible();
        Press(IDOK);
    };
    sheet.DoModal();
    EXPECT_EQ(L"Options", caption);
    EXPECT_TRUE(visible);
}

TEST_F(PropertySheets, CanRunAgainAndFillsItsPagesAnew)
{
    sheet.m_script = [&] { Press(IDCANCEL); };
    sheet.DoModal();
    first.m_text = L"changed meanwhile";
    CString shown;
    sheet.m_script = [&] {
        shown = TextOf(first);
        Press(IDOK);
    };
    EXPECT_EQ(IDOK, sheet.DoModal());
    EXPECT_EQ(L"changed meanwhile", shown);
}

TEST_F(PropertySheets, CommandsOfAPageReachTheOwner)
{
    sheet.m_script = [&] {
        first.SendMessage(WM_COMMAND, ID_OWNER_COMMAND);
        Press(IDOK);
    };
    sheet.DoModal();
    EXPECT_EQ(1, owner.m_commands);
}

// Pages.

TEST_F(PropertySheets, StartsWithTheChosenPage)
{
    sheet.m_psh.nStartPage = 1;
    ASSERT_TRUE(sheet.Create(&owner));
    EXPECT_EQ("Second init, Second set", log.Take());
    EXPECT_EQ(1, sheet.GetActiveIndex());
    EXPECT_EQ(&second, sheet.GetActivePage());
}

TEST_F(PropertySheets, StartsWithTheFirstPageWhenTheChosenOneDoesNotExist)
{
    sheet.m_psh.nStartPage = 99;
    ASSERT_TRUE(sheet.Create(&owner));
    EXPECT_EQ(0, sheet.GetActiveIndex());
    EXPECT_EQ(0u, sheet.m_psh.nStartPage);
}

TEST_F(PropertySheets, ChangesThePageByIndexAndByObject)
{
    Open();
    EXPECT_TRUE(sheet.SetActivePage(2));
    EXPECT_EQ("First kill, Third init, Third set", log.Take());
    EXPECT_TRUE(sheet.SetActivePage(&second));
    EXPECT_EQ(&second, sheet.GetActivePage());
}

TEST_F(PropertySheets, BeforeOpeningTheActivePageIsTheOneToStartWith)
{
    EXPECT_TRUE(sheet.SetActivePage(2));
    EXPECT_EQ(2, sheet.GetActiveIndex());
    EXPECT_EQ(&third, sheet.GetActivePage());
    EXPECT_EQ(2u, sheet.m_psh.nStartPage);
}

TEST_F(PropertySheets, RefusesPagesThatItDoesNotHave)
{
    RecordingPage stranger(log, L"Stranger");
    EXPECT_FALSE(sheet.SetActivePage(-1));
    EXPECT_FALSE(sheet.SetActivePage(3));
    EXPECT_FALSE(sheet.SetActivePage(&stranger));
    EXPECT_EQ(-1, sheet.GetPageIndex(&stranger));
    Open();
    EXPECT_FALSE(sheet.SetActivePage(-1));
    EXPECT_FALSE(sheet.SetActivePage(3));
    EXPECT_EQ(0, sheet.GetActiveIndex());
    EXPECT_THROW(sheet.GetPage(3), CInvalidArgException*);
}

TEST_F(PropertySheets, APageThatIsNotDoneKeepsTheUser)
{
    Open();
    first.m_allowKill = FALSE;
    EXPECT_FALSE(sheet.SetActivePage(1));
    EXPECT_EQ("First kill", log.Take());
    EXPECT_EQ(&first, sheet.GetActivePage());
}

TEST_F(PropertySheets, ReadsAPageWhenItGoesAndFillsItWhenItComesAgain)
{
    Open();
    first.SetDlgItemText(RecordingPage::EditId, L"typed");
    sheet.SetActivePage(1);
    EXPECT_EQ(L"typed", first.m_text);
    first.m_text = L"computed";
    sheet.SetActivePage(&first);
    EXPECT_EQ(L"computed", TextOf(first));
}

TEST_F(PropertySheets, PagesCanBeAddedAndRemovedWhileItIsOpen)
{
    RecordingPage fourth(log, L"Fourth");
    Open();
    sheet.AddPage(&fourth);
    EXPECT_EQ(4, sheet.GetPageCount());
    EXPECT_EQ(4, sheet.GetTabControl()->GetItemCount());
    EXPECT_TRUE(sheet.SetActivePage(&fourth));
    sheet.SetActivePage(&first);
    sheet.RemovePage(&second);
    EXPECT_EQ(3, sheet.GetPageCount());
    EXPECT_EQ(3, sheet.GetTabControl()->GetItemCount());
    EXPECT_EQ(1, sheet.GetPageIndex(&third));
    EXPECT_EQ(&third, sheet.GetPage(1));
    sheet.DestroyWindow();
}

TEST_F(PropertySheets, PagesCanBeRemovedBeforeItOpens)
{
    sheet.RemovePage(1);
    sheet.RemovePage(&first);
    sheet.RemovePage(5);
    sheet.RemovePage(-1);
    Open();
    EXPECT_EQ(1, sheet.GetPageCount());
    EXPECT_EQ(&third, sheet.GetActivePage());
}

TEST_F(PropertySheets, SetModifiedRulesTheApplyButton)
{
    sheet.m_script = [&] {
        EXPECT_FALSE(sheet.GetDlgItem(ID_APPLY_NOW)->IsWindowEnabled());
        first.SetModified();
        EXPECT_TRUE(sheet.GetDlgItem(ID_APPLY_NOW)->IsWindowEnabled());
        first.SetModified(FALSE);
        EXPECT_FALSE(sheet.GetDlgItem(ID_APPLY_NOW)->IsWindowEnabled());
        first.SetModified();
        log.Take();
        sheet.GetDlgItem(ID_APPLY_NOW)->SendMessage(BM_CLICK);
        EXPECT_EQ("First kill, First apply, First ok, First set", log.Take());
        EXPECT_TRUE(sheet.ContinueModal()) << "Apply ends nothing";
        Press(IDCANCEL);
    };
    EXPECT_EQ(IDCANCEL, sheet.DoModal());
}

TEST_F(PropertySheets, CancelToCloseForbidsToCancel)
{
    sheet.m_script = [&] {
        first.CancelToClose();
        WaitFor([&] { return !sheet.GetDlgItem(IDCANCEL)->IsWindowEnabled(); });
        EXPECT_FALSE(sheet.GetDlgItem(IDCANCEL)->IsWindowEnabled());
        Press(IDOK);
    };
    EXPECT_EQ(IDOK, sheet.DoModal());
}

TEST_F(PropertySheets, APageWithoutWindowIgnoresQuestionsAboutTheSheet)
{
    first.SetModified();
    first.CancelToClose();
    EXPECT_EQ(0, first.QuerySiblings(1, 2));
}

TEST_F(PropertySheets, SiblingsAreAskedUntilOneAnswers)
{
    Open();
    sheet.SetActivePage(1);
    sheet.SetActivePage(2);
    log.Take();
    second.m_siblingQuestion = 3;
    second.m_siblingAnswer = 42;
    EXPECT_EQ(42, first.QuerySiblings(1, 2));
    EXPECT_EQ("First siblings, Second siblings", log.Take());
}

TEST_F(PropertySheets, TheTitleCanChange)
{
    sheet.SetTitle(L"Before");
    Open();
    CString title;
    sheet.GetWindowText(title);
    EXPECT_EQ(L"Before", title);
    sheet.SetTitle(L"After");
    sheet.GetWindowText(title);
    EXPECT_EQ(L"After", title);
}

// The modeless sheet.

TEST_F(PropertySheets, AModelessSheetHasNoButtons)
{
    Open();
    EXPECT_TRUE(sheet.IsModeless());
    EXPECT_TRUE(sheet.IsWindowVisible());
    EXPECT_EQ(1, sheet.m_inits);
    for (const int id : {IDOK, IDCANCEL, ID_APPLY_NOW})
        EXPECT_FALSE(sheet.GetDlgItem(id)->IsWindowVisible()) << id;
    CRect frame;
    CRect tabs;
    CRect ok;
    sheet.GetWindowRect(&frame);
    sheet.GetTabControl()->GetWindowRect(&tabs);
    sheet.GetDlgItem(IDOK)->GetWindowRect(&ok);
    EXPECT_GT(frame.bottom, tabs.bottom);
    EXPECT_LT(frame.bottom, ok.bottom) << "the frame closes up";
}

TEST_F(PropertySheets, AModelessSheetLivesUntilItIsClosed)
{
    Open();
    EXPECT_TRUE(owner.IsWindowEnabled());
    sheet.SendMessage(WM_CLOSE);
    EXPECT_EQ(nullptr, sheet.m_hWnd);
    EXPECT_EQ(nullptr, first.m_hWnd);
}

TEST_F(PropertySheets, TakesAStyleOfItsOwn)
{
    ASSERT_TRUE(sheet.Create(&owner, WS_CHILD | WS_VISIBLE, WS_EX_CLIENTEDGE));
    EXPECT_EQ(DWORD(WS_CHILD), sheet.GetStyle() & (WS_CHILD | WS_POPUP | WS_CAPTION));
    EXPECT_TRUE(sheet.GetExStyle() & WS_EX_CLIENTEDGE);
    EXPECT_EQ(owner.m_hWnd, ::GetParent(sheet.m_hWnd));
}

TEST_F(PropertySheets, EndsWithItsObjectWhateverEndsFirst)
{
    HWND window = nullptr;
    {
        ScriptedSheet shortLived(L"Short", &owner);
        RecordingPage page(log, L"Page");
        shortLived.AddPage(&page);
        ASSERT_TRUE(shortLived.Create(&owner));
        window = shortLived.m_hWnd;
    }
    EXPECT_FALSE(::IsWindow(window));
}

// Wizards.

TEST_F(PropertySheets, AWizardGoesOnAndEndsByItsButtons)
{
    sheet.SetWizardMode();
    sheet.m_script = [&] {
        log.Take();
        sheet.PressButton(PSBTN_NEXT);
        const std::string told = log.Take();
        EXPECT_NE(std::string::npos, told.find("First next")) << told;
        EXPECT_NE(std::string::npos, told.find("Second init, Second set")) << told;
        second.m_wizardNext = -1;
        sheet.PressButton(PSBTN_NEXT);
        EXPECT_EQ(&second, sheet.GetActivePage());
        sheet.PressButton(PSBTN_FINISH);
    };
    EXPECT_EQ(ID_WIZFINISH, sheet.DoModal());
    EXPECT_NE(std::string::npos, log.Take().find("Second finish"));
}

TEST_F(PropertySheets, AWizardPageMayRefuseToFinish)
{
    sheet.SetWizardMode();
    first.m_allowFinish = FALSE;
    sheet.m_script = [&] {
        sheet.PressButton(PSBTN_FINISH);
        EXPECT_TRUE(sheet.ContinueModal());
        sheet.PressButton(PSBTN_CANCEL);
    };
    EXPECT_EQ(IDCANCEL, sheet.DoModal());
}

// Bad input.

TEST(PropertySheetWithoutPages, CannotBeOpened)
{
    CPropertySheet sheet(L"Empty");
    EXPECT_EQ(-1, sheet.DoModal());
    EXPECT_FALSE(sheet.Create());
    EXPECT_EQ(nullptr, sheet.m_hWnd);
    EXPECT_EQ(nullptr, sheet.GetActivePage());
    EXPECT_EQ(0, sheet.GetPageCount());
}

TEST(PropertySheetWithoutPages, IgnoresANullPage)
{
    CPropertySheet sheet(L"Empty");
    sheet.AddPage(nullptr);
    sheet.RemovePage(nullptr);
    EXPECT_EQ(0, sheet.GetPageCount());
}

TEST_F(PropertySheets, CannotBeOpenedWithAPageWithoutTemplate)
{
    const UINT kMissing = 31999;
    CPropertyPage missing(kMissing);
    sheet.AddPage(&missing);
    EXPECT_EQ(-1, sheet.DoModal());
    EXPECT_FALSE(sheet.Create(&owner));
    EXPECT_TRUE(owner.IsWindowEnabled());
    sheet.RemovePage(&missing);
    EXPECT_TRUE(sheet.Create(&owner));
    EXPECT_THROW(sheet.AddPage(&missing), CInvalidArgException*);
    EXPECT_EQ(3, sheet.GetPageCount());
}

TEST_F(PropertySheets, ASheetThatCouldNotBeOpenedLeavesTheNextWindowAlone)
{
    CPropertySheet empty(L"Empty");
    empty.DoModal();
    CWnd next;
    ASSERT_TRUE(next.CreateEx(0, WC_STATIC, L"next", WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0));
    EXPECT_EQ(nullptr, empty.m_hWnd);
    next.DestroyWindow();
}
