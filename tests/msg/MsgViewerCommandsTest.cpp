// What the viewer's buttons do in the drawing, and when they can.
#include "Drawing.h"
#include "ViewerFixture.h"

#include "Wait.h"
#include "base/PrivateMessages.h"

namespace
{

class ViewerCommands : public ViewerFixture
{
protected:
    ViewerCommands() { m_document = arxhost::NewDocument(); }

    // Rows: 0 nothing, 1 an area, 2 a line, 3 another line.
    void AddFour()
    {
        const AcDbExtents area(AcGePoint3d(100, 100, 0), AcGePoint3d(300, 200, 0));
        m_lines = {AddLine(AcGePoint3d(0, 0, 0), AcGePoint3d(40, 20, 0)),
                   AddLine(AcGePoint3d(5, 5, 0), AcGePoint3d(6, 6, 0))};
        const AcArray<AcDbObjectId> first = Ids(m_lines[0]);
        const AcArray<AcDbObjectId> second = Ids(m_lines[1]);
        Add(L"g", L"nothing", true);
        KTMsgWnd::AddMsg(KTMsgWnd::eInfo, L"g", L"area", true, NULL, &area);
        KTMsgWnd::AddMsg(KTMsgWnd::eInfo, L"g", L"line", true, &first, NULL);
        KTMsgWnd::AddMsg(KTMsgWnd::eInfo, L"h", L"line", true, &second, NULL);
        Show();
    }

    AcGePoint2d ViewCentre() const { return arxhost::GetView(m_document).centre; }

    void ExpectCommands(bool deleteSelected, bool zoom, bool objects)
    {
        EXPECT_EQ(deleteSelected, IsEnabled(IDC_DELETE_SELECTED));
        EXPECT_EQ(zoom, IsEnabled(IDC_ZOOM));
        EXPECT_EQ(objects, IsEnabled(IDC_FLASH));
        EXPECT_EQ(objects, IsEnabled(IDC_SELECT));
        EXPECT_TRUE(IsEnabled(IDC_DELETE_SHOWN));
    }

    AcApDocument* m_document;
    std::vector<AcDbObjectId> m_lines;
};

// A module that looks after the palette whenever the drawing tells it something.
class RefreshingObserver : public arxhost::IDocumentObserver
{
public:
    RefreshingObserver() { arxhost::AddObserver(this); }
    ~RefreshingObserver() override { arxhost::RemoveObserver(this); }
    void HighlightChanged(AcApDocument*) override { Told(); }
    void PickfirstChanged(AcApDocument*) override { Told(); }
    void ViewChanged(AcApDocument*) override { Told(); }

    int Calls() const { return m_calls; }

private:
    void Told()
    {
        ++m_calls;
        KTMsgWnd::AddMsg(KTMsgWnd::eInfo, L"told", L"text", false, NULL, NULL);
        KTMsgWnd::UpdateMsgWnd();
    }

    int m_calls = 0;
};

constexpr double kTolerance = 1e-6;

} // namespace

TEST_F(ViewerCommands, NothingSelectedAllowsNothing)
{
    AddFour();
    SelectRows({});
    ExpectCommands(false, false, false);
}

TEST_F(ViewerCommands, MessageWithNothingCanOnlyBeDeleted)
{
    AddFour();
    SelectRows({0});
    ExpectCommands(true, false, false);
}

TEST_F(ViewerCommands, MessageWithAnAreaCanBeZoomedTo)
{
    AddFour();
    SelectRows({1});
    ExpectCommands(true, true, false);
}

TEST_F(ViewerCommands, MessageWithObjectsCanBeZoomedToFlashedAndSelected)
{
    AddFour();
    SelectRows({2});
    ExpectCommands(true, true, true);
}

TEST_F(ViewerCommands, ZoomIsDisabledWhenTwoRowsAreSelected)
{
    AddFour();
    SelectRows({1, 2});
    ExpectCommands(true, false, true);
    SelectRows({0, 1});
    ExpectCommands(true, false, false);
}

TEST_F(ViewerCommands, SelectingEveryRowAtOnceCountsAllOfThem)
{
    AddFour();
    SelectRows({});
    ListView_SetItemState(Item(IDC_LIST), -1, LVIS_SELECTED, LVIS_SELECTED);
    ExpectCommands(true, false, true);
    ListView_SetItemState(Item(IDC_LIST), -1, 0, LVIS_SELECTED);
    ExpectCommands(false, false, false);
}

TEST_F(ViewerCommands, ButtonsFollowWhenAMessageIsGone)
{
    AddFour();
    SelectRows({2});
    ASSERT_TRUE(Store().Remove(static_cast<int>(Row(2).lParam)));
    ListView_SetItemState(Item(IDC_LIST), 0, LVIS_SELECTED, LVIS_SELECTED);
    ExpectCommands(true, false, false);
}

TEST_F(ViewerCommands, SelectMakesTheObjectsTheHostsSelection)
{
    AddFour();
    SelectRows({0, 2, 3});
    Click(IDC_SELECT);
    EXPECT_EQ(m_lines, arxhost::GetPickfirst(m_document));
}

TEST_F(ViewerCommands, SelectReplacesTheSelection)
{
    AddFour();
    arxhost::SetPickfirst(m_document, {m_lines[1]});
    SelectRows({2});
    Click(IDC_SELECT);
    EXPECT_EQ(arxhost::ObjectIds{m_lines[0]}, arxhost::GetPickfirst(m_document));
}

TEST_F(ViewerCommands, SelectLeavesErasedObjectsAndGoneMessagesOut)
{
    AddFour();
    SelectRows({2, 3});
    arxhost::Erase({m_lines[0]});
    Click(IDC_SELECT);
    EXPECT_EQ(arxhost::ObjectIds{m_lines[1]}, arxhost::GetPickfirst(m_document));
    Store().Remove(static_cast<int>(Row(3).lParam));
    Click(IDC_SELECT);
    EXPECT_TRUE(arxhost::GetPickfirst(m_document).empty());
}

TEST_F(ViewerCommands, SelectFreesItsSelectionSetEachTime)
{
    AddFour();
    SelectRows({2});
    // The host has 128 sets: a leak of one a click would end it.
    for (int i = 0; i < 300; ++i)
        Click(IDC_SELECT);
    EXPECT_EQ(arxhost::ObjectIds{m_lines[0]}, arxhost::GetPickfirst(m_document));
}

TEST_F(ViewerCommands, ZoomGoesToTheAreaAsStored)
{
    AddFour();
    SelectRows({1});
    Click(IDC_ZOOM);
    EXPECT_NEAR(200, ViewCentre().x, kTolerance);
    EXPECT_NEAR(150, ViewCentre().y, kTolerance);
}

TEST_F(ViewerCommands, ZoomGoesToTheAreaOfAMessageThatHasObjectsAsWell)
{
    const AcDbExtents area(AcGePoint3d(100, 100, 0), AcGePoint3d(300, 200, 0));
    const AcArray<AcDbObjectId> ids = Ids(AddLine(AcGePoint3d(0, 0, 0), AcGePoint3d(40, 20, 0)));
    KTMsgWnd::AddMsg(KTMsgWnd::eInfo, L"g", L"both", true, &ids, &area);
    Show();
    Click(IDC_ZOOM);
    EXPECT_NEAR(200, ViewCentre().x, kTolerance);
    EXPECT_NEAR(150, ViewCentre().y, kTolerance);
}

TEST_F(ViewerCommands, ZoomGoesToTheObjectsWithRoomAroundThem)
{
    AddFour();
    SelectRows({2});
    Click(IDC_ZOOM);
    EXPECT_NEAR(20, ViewCentre().x, kTolerance);
    EXPECT_NEAR(10, ViewCentre().y, kTolerance);
    const double heightOfObjects = arxhost::GetView(m_document).height;

    const AcDbExtents widened(AcGePoint3d(-10, -10, 0), AcGePoint3d(50, 30, 0));
    KTMsgWnd::AddMsg(KTMsgWnd::eInfo, L"g", L"same area", true, NULL, &widened);
    KTMsgWnd::UpdateMsgWnd();
    Click(IDC_ZOOM);
    EXPECT_NEAR(heightOfObjects, arxhost::GetView(m_document).height, kTolerance);
}

TEST_F(ViewerCommands, DoubleClickZoomsToTheFirstSelectedMessage)
{
    AddFour();
    SelectRows({1, 2});
    DoubleClickList();
    EXPECT_NEAR(200, ViewCentre().x, kTolerance);
}

TEST_F(ViewerCommands, DoubleClickOnAMessageWithNothingKeepsTheView)
{
    AddFour();
    arxhost::ViewState view;
    view.centre = AcGePoint2d(7, 8);
    view.height = 9;
    arxhost::SetView(m_document, view);
    SelectRows({0});
    DoubleClickList();
    EXPECT_NEAR(7, ViewCentre().x, kTolerance);
    EXPECT_NEAR(9, arxhost::GetView(m_document).height, kTolerance);
}

TEST_F(ViewerCommands, ZoomToErasedObjectsOrAGoneMessageKeepsTheView)
{
    AddFour();
    SelectRows({2});
    const AcGePoint2d before = ViewCentre();
    arxhost::Erase(m_lines);
    Click(IDC_ZOOM);
    EXPECT_NEAR(before.x, ViewCentre().x, kTolerance);
    Store().RemoveAll();
    DoubleClickList();
    EXPECT_NEAR(before.x, ViewCentre().x, kTolerance);
}

TEST_F(ViewerCommands, FlashHighlightsTheObjectsOfEverySelectedMessage)
{
    AddFour();
    SelectRows({0, 2, 3});
    Click(IDC_FLASH);
    EXPECT_TRUE(arxhost::IsHighlighted(m_lines[0]));
    EXPECT_TRUE(arxhost::IsHighlighted(m_lines[1]));
}

TEST_F(ViewerCommands, ChangingTheSelectionEndsTheFlash)
{
    AddFour();
    SelectRows({2});
    Click(IDC_FLASH);
    ASSERT_TRUE(arxhost::IsHighlighted(m_lines[0]));
    SelectRows({3});
    EXPECT_FALSE(arxhost::IsHighlighted(m_lines[0]));
    EXPECT_FALSE(arxhost::IsHighlighted(m_lines[1]));
}

TEST_F(ViewerCommands, TicksWithinFiveSecondsKeepTheFlash)
{
    AddFour();
    SelectRows({2});
    Click(IDC_FLASH);
    ::SendMessageW(Viewer(), WM_TIMER, ZNKT_TIMER_FLASH, 0);
    EXPECT_TRUE(arxhost::IsHighlighted(m_lines[0]));
}

TEST_F(ViewerCommands, FlashEndsAtTheFirstTickAfterFiveSeconds)
{
    AddFour();
    SelectRows({2});
    const DWORD start = ::GetTickCount();
    Click(IDC_FLASH);
    EXPECT_TRUE(WaitFor([this] { return !arxhost::IsHighlighted(m_lines[0]); }, 20000));
    EXPECT_GT(::GetTickCount() - start, 5000u);
    // The timer is gone with the flash.
    EXPECT_FALSE(::KillTimer(Viewer(), ZNKT_TIMER_FLASH));
}

TEST_F(ViewerCommands, ASecondFlashRestartsTheFiveSecondsWithoutASecondTimer)
{
    AddFour();
    SelectRows({2});
    Click(IDC_FLASH);
    const DWORD start = ::GetTickCount();
    ASSERT_TRUE(WaitFor([start] { return ::GetTickCount() - start > 4000; }, 10000));
    ASSERT_TRUE(arxhost::IsHighlighted(m_lines[0]));
    const DWORD second = ::GetTickCount();
    Click(IDC_FLASH);
    EXPECT_TRUE(arxhost::IsHighlighted(m_lines[0]));
    EXPECT_TRUE(WaitFor([this] { return !arxhost::IsHighlighted(m_lines[0]); }, 20000));
    EXPECT_GT(::GetTickCount() - second, 5000u);
    EXPECT_FALSE(::KillTimer(Viewer(), ZNKT_TIMER_FLASH));
}

TEST_F(ViewerCommands, DestroyingThePaletteEndsTheFlash)
{
    AddFour();
    SelectRows({2});
    Click(IDC_FLASH);
    CMsgViewWnd::DestroyInstance();
    EXPECT_FALSE(arxhost::IsHighlighted(m_lines[0]));
}

TEST_F(ViewerCommands, ClosingTheDocumentDuringAFlashDoesNoHarm)
{
    AddFour();
    SelectRows({2});
    Click(IDC_FLASH);
    arxhost::CloseDocument(m_document);
    KTMsgWnd::UpdateMsgWnd();
    EXPECT_EQ(0, Rows());
}

// The viewer still shows the closed drawing until it is refreshed.
TEST_F(ViewerCommands, CommandsDoNothingInOtherDrawingsAfterTheirsWasClosed)
{
    AddFour();
    SelectRows({2});
    arxhost::CloseDocument(m_document);
    Click(IDC_SELECT);
    Click(IDC_FLASH);
    Click(IDC_ZOOM);
    AcApDocument* const other = arxhost::NewDocument();
    const AcGePoint2d before = arxhost::GetView(other).centre;
    Click(IDC_SELECT);
    Click(IDC_FLASH);
    Click(IDC_ZOOM);
    EXPECT_TRUE(arxhost::GetPickfirst(other).empty());
    EXPECT_NEAR(before.x, arxhost::GetView(other).centre.x, kTolerance);
    Click(IDC_DELETE_SELECTED);
    EXPECT_EQ(3, Rows());
    EXPECT_EQ(3, Store().GetCount());
    KTMsgWnd::UpdateMsgWnd();
    EXPECT_EQ(0, Rows());
}

TEST_F(ViewerCommands, MessagesMayComeAndThePaletteBeRefreshedDuringACommand)
{
    AddFour();
    for (const int command : {IDC_FLASH, IDC_SELECT, IDC_ZOOM})
    {
        KTMsgWnd::RemoveMsg(L"told", true);
        KTMsgWnd::UpdateMsgWnd();
        SelectRows({command == IDC_ZOOM ? 1 : 2});
        ASSERT_TRUE(IsEnabled(command)) << command;
        const RefreshingObserver observer;
        Click(command);
        EXPECT_GT(observer.Calls(), 0) << command;
        EXPECT_EQ(4 + observer.Calls(), Rows()) << command;
        EXPECT_EQ(command == IDC_FLASH, arxhost::IsHighlighted(m_lines[0])) << command;
    }
    EXPECT_EQ(arxhost::ObjectIds{m_lines[0]}, arxhost::GetPickfirst(m_document));
}

TEST_F(ViewerCommands, ThePaletteMayBeRefreshedWhileAFlashEnds)
{
    AddFour();
    SelectRows({2});
    Click(IDC_FLASH);
    const RefreshingObserver observer;
    ListView_SetItemState(Item(IDC_LIST), 3, LVIS_SELECTED, LVIS_SELECTED);
    EXPECT_EQ(1, observer.Calls());
    EXPECT_FALSE(arxhost::IsHighlighted(m_lines[0]));
    EXPECT_FALSE(::KillTimer(Viewer(), ZNKT_TIMER_FLASH));
    // The refresh has selected the new message, which has no objects.
    EXPECT_EQ(std::vector<int>{4}, SelectedRows());
    ExpectCommands(true, false, false);
}

TEST_F(ViewerCommands, HeaderClickSortsByTheColumnsTexts)
{
    Add(L"g", L"pear");
    Add(L"h", L"Apple");
    Add(L"G", L"apple");
    Add(L"a", L"fig");
    Show();
    ClickHeader(3);
    EXPECT_EQ((Texts{L"Apple", L"apple", L"fig", L"pear"}), Column(3));
    EXPECT_EQ(2, Row(0).lParam);
    ClickHeader(3);
    EXPECT_EQ((Texts{L"pear", L"fig", L"apple", L"Apple"}), Column(3));
    ClickHeader(2);
    EXPECT_EQ((Texts{L"G", L"a", L"g", L"h"}), Column(2));
}

TEST_F(ViewerCommands, HeaderShowsTheDirectionOnTheSortedColumn)
{
    Add(L"g", L"text");
    Show();
    const HWND header = ListView_GetHeader(Item(IDC_LIST));
    CXTHeaderCtrl* const control = dynamic_cast<CXTHeaderCtrl*>(CWnd::FromHandlePermanent(header));
    ASSERT_TRUE(control != NULL);
    EXPECT_EQ(-1, control->GetSortedCol());
    ClickHeader(1);
    EXPECT_EQ(1, control->GetSortedCol());
    EXPECT_TRUE(control->IsSortedAscending());
    ClickHeader(1);
    EXPECT_FALSE(control->IsSortedAscending());
    ClickHeader(0);
    EXPECT_EQ(0, control->GetSortedCol());
    EXPECT_TRUE(control->IsSortedAscending());
}

TEST_F(ViewerCommands, SelectionSurvivesSorting)
{
    AddFour();
    SelectRows({2});
    const LPARAM selected = Row(2).lParam;
    ClickHeader(3);
    ClickHeader(3);
    ASSERT_EQ(1u, SelectedRows().size());
    EXPECT_EQ(selected, Row(SelectedRows()[0]).lParam);
    ExpectCommands(true, true, true);
}
