// The property sheet without Help: its row of buttons, its pages, its Apply.
#include "NoHelpSheetFixture.h"

class NoHelpPropertySheet : public NoHelpSheetFixture
{
protected:
    // Where the buttons of the base sheet stand, with the same pages.
    void MeasureBase()
    {
        PlainSheet plain(L"选项", &owner);
        plain.AddPage(&first);
        plain.AddPage(&second);
        plain.AddPage(&third);
        ASSERT_TRUE(plain.Run([&] {
            ok = plain.PlaceOf(IDOK);
            cancel = plain.PlaceOf(IDCANCEL);
            apply = plain.PlaceOf(ID_APPLY_NOW);
            help = plain.PlaceOf(IDHELP);
            plain.GetClientRect(&client);
        }));
        log.Take();
    }

    static CRect Right(CRect place, int by)
    {
        place.OffsetRect(by, 0);
        return place;
    }

    CRect ok;
    CRect cancel;
    CRect apply;
    CRect help;
    CRect client;
};

// The row of buttons.

TEST_F(NoHelpPropertySheet, ShowsNoHelpAndAnApplyThatIsAlwaysEnabled)
{
    ASSERT_TRUE(sheet.Run([&] {
        EXPECT_FALSE(sheet.IsShown(IDHELP));
        EXPECT_TRUE(sheet.IsShown(ID_APPLY_NOW));
        EXPECT_TRUE(sheet.IsEnabled(ID_APPLY_NOW));
        EXPECT_TRUE(sheet.IsShown(IDOK));
        EXPECT_TRUE(sheet.IsShown(IDCANCEL));
    }));
}

TEST_F(NoHelpPropertySheet, WithApplyTheButtonsStandOneWidthAndSixPixelsFurtherRight)
{
    MeasureBase();
    ASSERT_TRUE(sheet.Run([&] {
        EXPECT_EQ(Right(ok, ok.Width() + 6), sheet.PlaceOf(IDOK));
        EXPECT_EQ(Right(cancel, cancel.Width() + 6), sheet.PlaceOf(IDCANCEL));
        EXPECT_EQ(Right(apply, apply.Width() + 6), sheet.PlaceOf(ID_APPLY_NOW));
    }));
}

TEST_F(NoHelpPropertySheet, WithoutApplyOkAndCancelStandTwoWidthsAndTwelvePixelsFurtherRight)
{
    MeasureBase();
    sheet.SetShowApply(false);
    ASSERT_TRUE(sheet.Run([&] {
        EXPECT_EQ(Right(ok, 2 * ok.Width() + 12), sheet.PlaceOf(IDOK));
        EXPECT_EQ(Right(cancel, 2 * cancel.Width() + 12), sheet.PlaceOf(IDCANCEL));
        EXPECT_EQ(apply, sheet.PlaceOf(ID_APPLY_NOW)) << "what is hidden is not moved";
    }));
}

TEST_F(NoHelpPropertySheet, WithoutApplyTheButtonIsHiddenAndDisabled)
{
    sheet.SetShowApply(false);
    ASSERT_TRUE(sheet.Run([&] {
        EXPECT_FALSE(sheet.IsShown(ID_APPLY_NOW));
        EXPECT_FALSE(sheet.IsEnabled(ID_APPLY_NOW));
        EXPECT_FALSE(sheet.IsShown(IDHELP));
    }));
}

TEST_F(NoHelpPropertySheet, TheRowStaysInsideTheFrameWhetherThePagesHaveHelpOrNot)
{
    RecordingPage plainPage(log, L"Plain");
    NoHelpSheet plain(L"选项", &owner);
    plain.AddPage(&plainPage);
    ASSERT_TRUE(plain.Run([&] {
        CRect area;
        plain.GetClientRect(&area);
        EXPECT_LE(plain.PlaceOf(ID_APPLY_NOW).right, area.right);
        EXPECT_LE(plain.PlaceOf(IDOK).right, plain.PlaceOf(IDCANCEL).left);
        EXPECT_LE(plain.PlaceOf(IDCANCEL).right, plain.PlaceOf(ID_APPLY_NOW).left);
    }));
}

TEST_F(NoHelpPropertySheet, ASheetWithoutAnApplyButtonOpensAsWell)
{
    sheet.m_psh.dwFlags |= PSH_NOAPPLYNOW;
    ASSERT_TRUE(sheet.Run([&] { EXPECT_TRUE(sheet.IsShown(IDOK)); }));
}

TEST_F(NoHelpPropertySheet, AModelessSheetKeepsItsButtonsHidden)
{
    ASSERT_TRUE(sheet.Create(&owner));
    for (const int id : {IDOK, IDCANCEL, ID_APPLY_NOW, IDHELP})
        EXPECT_FALSE(sheet.IsShown(id)) << id;
    EXPECT_NE(nullptr, third.m_hWnd);
}

// Creating the pages.

TEST_F(NoHelpPropertySheet, CreatesEveryPageInOrderAndShowsTheStartPage)
{
    ASSERT_TRUE(sheet.Run([&] {
        EXPECT_EQ("First init, First set, First kill, Second init, Second set, Second kill, Third init, Third set, "
                  "Third kill, First set",
                  log.Take());
        EXPECT_EQ(&first, sheet.GetActivePage());
        EXPECT_EQ(0, sheet.GetActiveIndex());
    }));
}

TEST_F(NoHelpPropertySheet, TheStartPageIsNotVisitedTwice)
{
    sheet.m_psh.nStartPage = 1;
    ASSERT_TRUE(sheet.Run([&] {
        EXPECT_EQ("Second init, Second set, Second kill, First init, First set, First kill, Third init, Third set, "
                  "Third kill, Second set",
                  log.Take());
        EXPECT_EQ(&second, sheet.GetActivePage());
    }));
}

TEST_F(NoHelpPropertySheet, APageThatDoesNotLetGoStays)
{
    second.m_allowKill = FALSE;
    ASSERT_TRUE(sheet.Run([&] {
        EXPECT_EQ(&second, sheet.GetActivePage());
        EXPECT_EQ(nullptr, third.m_hWnd);
        second.m_allowKill = TRUE;
        EXPECT_TRUE(sheet.SetActivePage(&third));
        EXPECT_NE(nullptr, third.m_hWnd);
    }));
}

TEST_F(NoHelpPropertySheet, ASheetWithoutPagesDoesNotOpen)
{
    NoHelpSheet empty(L"空", &owner);
    EXPECT_EQ(-1, empty.DoModal());
    EXPECT_FALSE(empty.Create(&owner));
    EXPECT_EQ(nullptr, empty.m_hWnd);
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST_F(NoHelpPropertySheet, ANullPageIsIgnored)
{
    CPropertyPage* const none = NULL;
    sheet.AddPage(none);
    EXPECT_EQ(3, sheet.GetPageCount());
    EXPECT_TRUE(sheet.Run([] {}));
}

// Apply.

TEST_F(NoHelpPropertySheet, ApplyAppliesTheActivePageFirstThenTheOthersInOrder)
{
    ASSERT_TRUE(sheet.Run([&] {
        sheet.SetActivePage(&second);
        log.Take();
        EXPECT_TRUE(sheet.OnApply());
        EXPECT_EQ("Second apply, Second ok, First apply, First ok, Third apply, Third ok", log.Take());
    }));
}

TEST_F(NoHelpPropertySheet, TheApplyButtonAppliesWithoutTheBaseSheet)
{
    ASSERT_TRUE(sheet.Run([&] {
        log.Take();
        sheet.Click(ID_APPLY_NOW);
        EXPECT_EQ("First apply, First ok, Second apply, Second ok, Third apply, Third ok", log.Take())
            << "no page is asked to let go, none is shown again";
        EXPECT_TRUE(sheet.IsEnabled(ID_APPLY_NOW));
    }));
}

TEST_F(NoHelpPropertySheet, OnlyTheLowWordOfTheCommandCounts)
{
    ASSERT_TRUE(sheet.Run([&] {
        log.Take();
        const LRESULT handled = sheet.SendMessage(WM_COMMAND, MAKEWPARAM(ID_APPLY_NOW, 77), 0);
        EXPECT_EQ(1, handled);
        EXPECT_EQ(0u, log.Take().find("First apply"));
    }));
}

TEST_F(NoHelpPropertySheet, OtherCommandsGoToTheBaseSheet)
{
    ASSERT_TRUE(sheet.Run([&] {
        log.Take();
        sheet.Click(IDCANCEL);
        EXPECT_NE(std::string::npos, log.Take().find("First cancel"));
        EXPECT_FALSE(sheet.ContinueModal());
    }));
}

TEST_F(NoHelpPropertySheet, APageThatRefusesToApplyStopsTheOthers)
{
    second.m_allowApply = FALSE;
    ASSERT_TRUE(sheet.Run([&] {
        log.Take();
        EXPECT_FALSE(sheet.OnApply());
        EXPECT_EQ("First apply, First ok, Second apply", log.Take());
    }));
}

TEST_F(NoHelpPropertySheet, WhenTheActivePageRefusesNoOtherIsApplied)
{
    third.m_allowApply = FALSE;
    ASSERT_TRUE(sheet.Run([&] {
        sheet.SetActivePage(&third);
        log.Take();
        EXPECT_FALSE(sheet.OnApply());
        EXPECT_EQ("Third apply", log.Take());
    }));
}

TEST_F(NoHelpPropertySheet, WithoutApplyAllOnlyTheActivePageIsApplied)
{
    sheet.SetApplyAllPages(false);
    second.m_allowApply = FALSE;
    ASSERT_TRUE(sheet.Run([&] {
        log.Take();
        EXPECT_TRUE(sheet.OnApply());
        EXPECT_EQ("First apply, First ok", log.Take());
    }));
}

TEST_F(NoHelpPropertySheet, ASheetWithOnePageAppliesOnlyThatPage)
{
    NoHelpSheet single(L"单页", &owner);
    single.AddPage(&third);
    ASSERT_TRUE(single.Run([&] {
        log.Take();
        EXPECT_TRUE(single.OnApply());
        EXPECT_EQ("Third apply, Third ok", log.Take());
    }));
}

TEST_F(NoHelpPropertySheet, WithoutAnActivePageApplyingSucceeds)
{
    NoHelpSheet empty(L"空", &owner);
    EXPECT_TRUE(empty.OnApply());
    EXPECT_EQ("", log.Take());
}

TEST_F(NoHelpPropertySheet, WithoutASelectedTabApplyingSucceeds)
{
    ASSERT_TRUE(sheet.Run([&] {
        TabCtrl_SetCurSel(sheet.GetTabControl()->m_hWnd, -1);
        ASSERT_EQ(-1, sheet.GetActiveIndex());
        log.Take();
        EXPECT_TRUE(sheet.OnApply());
        EXPECT_EQ("", log.Take());
    }));
}

TEST_F(NoHelpPropertySheet, OkAppliesEveryPageThroughTheSystem)
{
    ASSERT_TRUE(sheet.Run([&] {
        log.Take();
        sheet.Click(IDOK);
        EXPECT_EQ("First kill, First apply, First ok, Second apply, Second ok, Third apply, Third ok", log.Take());
    }));
}

// Construction.

TEST_F(NoHelpPropertySheet, StartsWithBothFlagsOn)
{
    NoHelpSheet byName(L"名", &owner, 2);
    NoHelpSheet byId(1u, &owner, 1);
    NoHelpSheet bare;
    for (const CNoHelpPropertySheet* made : {&byName, &byId, &bare})
    {
        EXPECT_TRUE(made->GetApplyAllPages());
        EXPECT_TRUE(made->GetShowApply());
    }
    EXPECT_EQ(2, byName.GetActiveIndex());
    EXPECT_EQ(1, byId.GetActiveIndex());
}

TEST_F(NoHelpPropertySheet, IsCreatedByItsRuntimeClass)
{
    CObject* const made = RUNTIME_CLASS(CNoHelpPropertySheet)->CreateObject();
    ASSERT_NE(nullptr, made);
    EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(CPropertySheet)));
    delete made;
}

namespace
{

// A page that ends the sheet when it is applied.
class EndingPage : public RecordingPage
{
public:
    using RecordingPage::RecordingPage;

    BOOL OnApply() override
    {
        static_cast<CPropertySheet*>(GetParent())->EndDialog(IDOK);
        return RecordingPage::OnApply();
    }
};

} // namespace

TEST_F(NoHelpPropertySheet, APageMayEndAModelessSheetWhenItIsApplied)
{
    EndingPage ending(log, L"Ending");
    NoHelpSheet modeless(L"无模式", &owner);
    modeless.AddPage(&ending);
    modeless.AddPage(&second);
    ASSERT_TRUE(modeless.Create(&owner));
    log.Take();
    modeless.OnApply();
    EXPECT_EQ(nullptr, modeless.m_hWnd);
    EXPECT_EQ("Ending apply, Ending ok, Second apply, Second ok", log.Take());
}
