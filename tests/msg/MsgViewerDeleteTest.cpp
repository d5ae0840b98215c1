// Deleting messages from the viewer.
#include "MessageBoxAnswer.h"
#include "ViewerFixture.h"

namespace
{

class ViewerDelete : public ViewerFixture
{
protected:
    void AddThree()
    {
        Add(L"a", L"1");
        Add(L"b", L"2");
        Add(L"a", L"3");
        Show();
    }
};

} // namespace

TEST_F(ViewerDelete, DeletesTheSelectedMessages)
{
    AddThree();
    SelectRows({0, 1});
    Click(IDC_DELETE_SELECTED);
    EXPECT_EQ(Texts{L"3"}, Column(3));
    EXPECT_EQ(Texts{L"3"}, VisibleTexts());
    EXPECT_EQ(L"1个消息", TextOf(IDC_COUNT));
}

TEST_F(ViewerDelete, SelectsTheRowThatMovedUp)
{
    AddThree();
    SelectRows({0});
    Click(IDC_DELETE_SELECTED);
    EXPECT_EQ(std::vector<int>{0}, SelectedRows());
    EXPECT_EQ(L"2", Cell(0, 3));
    EXPECT_TRUE(IsEnabled(IDC_DELETE_SELECTED));
}

TEST_F(ViewerDelete, SelectsTheNearestEarlierRowAtTheEnd)
{
    AddThree();
    SelectRows({1, 2});
    Click(IDC_DELETE_SELECTED);
    EXPECT_EQ(std::vector<int>{0}, SelectedRows());
    EXPECT_EQ(1, Rows());
}

TEST_F(ViewerDelete, SelectsTheFirstOfTheDeletedPlaces)
{
    for (int i = 0; i < 6; ++i)
        Add(L"g", std::to_wstring(i).c_str());
    Show();
    SelectRows({1, 4});
    Click(IDC_DELETE_SELECTED);
    EXPECT_EQ((Texts{L"0", L"2", L"3", L"5"}), Column(3));
    EXPECT_EQ(std::vector<int>{1}, SelectedRows());
}

TEST_F(ViewerDelete, LastMessageLeavesAnEmptyViewer)
{
    Add(L"a", L"1");
    Show();
    Click(IDC_DELETE_SELECTED);
    EXPECT_EQ(0, Rows());
    EXPECT_EQ(L"0个消息", TextOf(IDC_COUNT));
    EXPECT_TRUE(GroupItems().empty());
    for (int id : {IDC_DELETE_SELECTED, IDC_DELETE_SHOWN, IDC_ZOOM, IDC_FLASH, IDC_SELECT})
        EXPECT_FALSE(IsEnabled(id)) << id;
}

TEST_F(ViewerDelete, LastMessageOfAGroupTakesItsItemAlongWhileAllAreShown)
{
    AddThree();
    SelectRows({1});
    Click(IDC_DELETE_SELECTED);
    EXPECT_EQ(Texts{L"a"}, GroupTexts());
    SelectRows({0});
    Click(IDC_DELETE_SELECTED);
    EXPECT_EQ(Texts{L"a"}, GroupTexts());
}

TEST_F(ViewerDelete, LastMessageOfTheSelectedGroupKeepsItsItem)
{
    AddThree();
    SelectGroup(L"b");
    Click(IDC_DELETE_SELECTED);
    EXPECT_EQ((Texts{L"a", L"b"}), GroupTexts());
    EXPECT_EQ(L"b", SelectedText());
    EXPECT_EQ(0, Rows());
}

TEST_F(ViewerDelete, WorksOnTheRowsAsTheyAreSorted)
{
    Add(L"g", L"b");
    Add(L"g", L"c");
    Add(L"g", L"a");
    Show();
    ClickHeader(3);
    SelectRows({0});
    Click(IDC_DELETE_SELECTED);
    EXPECT_EQ((Texts{L"b", L"c"}), Column(3));
    EXPECT_EQ((Texts{L"b", L"c"}), VisibleTexts());
}

TEST_F(ViewerDelete, WithoutASelectionTheViewerIsRefreshed)
{
    AddThree();
    SelectRows({});
    Add(L"c", L"4");
    // The disabled button takes no click, but its command may still come.
    ::SendMessageW(Viewer(), WM_COMMAND, MAKEWPARAM(IDC_DELETE_SELECTED, BN_CLICKED),
                   reinterpret_cast<LPARAM>(Item(IDC_DELETE_SELECTED)));
    EXPECT_EQ(4, Rows());
    EXPECT_EQ((Texts{L"a", L"b", L"c"}).size(), GroupTexts().size());
}

TEST_F(ViewerDelete, SkipsMessagesThatAreGone)
{
    AddThree();
    SelectRows({0, 1, 2});
    KTMsgWnd::RemoveMsg(L"a", true);
    Click(IDC_DELETE_SELECTED);
    EXPECT_EQ(0, Rows());
    EXPECT_EQ(0, Store().GetCount());
    EXPECT_TRUE(GroupItems().empty());
}

TEST_F(ViewerDelete, ThousandsOfScatteredRows)
{
    const int count = 20000;
    for (int i = 0; i < count; ++i)
        Add(L"g", L"text");
    Show();
    std::vector<int> rows;
    for (int row = 0; row < count; row += 4)
        rows.push_back(row);
    SelectRows(rows);
    Click(IDC_DELETE_SELECTED);
    EXPECT_EQ(count - count / 4, Rows());
    EXPECT_EQ(count - count / 4, Store().GetCount());
    EXPECT_EQ(2, Row(0).lParam);
    EXPECT_EQ(6, Row(3).lParam);
}

TEST_F(ViewerDelete, ThousandsOfRowsLeaveTheOthersAsTheyWere)
{
    const int count = 3000;
    for (int i = 0; i < count; ++i)
        KTMsgWnd::AddMsg(static_cast<KTMsgWnd::EMsgType>(i % 3), L"g", std::to_wstring(i).c_str(), false, NULL, NULL);
    const std::wstring longText(100000, L'字');
    Add(L"100%s%d\r\n", longText.c_str());
    Show();
    ListView_EnsureVisible(Item(IDC_LIST), 0, FALSE);
    const std::wstring time = Cell(1, 1);
    // This message is gone from the store, but the user has not been shown that yet.
    ASSERT_TRUE(Store().Remove(2));
    std::vector<int> rows;
    for (int row = 0; row < count; row += 2)
        rows.push_back(row);
    SelectRows(rows);
    Click(IDC_DELETE_SELECTED);

    ASSERT_EQ(count / 2 + 1, Rows());
    EXPECT_EQ(L"1501个消息", TextOf(IDC_COUNT));
    const Texts types = {L"信息", L"警告", L"错误"};
    const int images[] = {0, 2, 1};
    for (int row = 0; row < count / 2; ++row)
    {
        const int number = 2 * row + 1;
        ASSERT_EQ(types[static_cast<size_t>(number % 3)], Cell(row, 0));
        ASSERT_EQ(images[number % 3], Row(row).iImage);
        ASSERT_EQ(L"g", Cell(row, 2));
        ASSERT_EQ(std::to_wstring(number), Cell(row, 3));
        ASSERT_EQ(number + 1, Row(row).lParam);
    }
    EXPECT_EQ(time, Cell(0, 1));
    EXPECT_EQ(L"100%s%d\r\n", Cell(count / 2, 2));
    EXPECT_EQ(longText, Cell(count / 2, 3, 100001));
    EXPECT_EQ(std::vector<int>{0}, SelectedRows());
    EXPECT_TRUE((Row(0).state & LVIS_FOCUSED) != 0);
}

TEST_F(ViewerDelete, ThousandsOfRowsKeepThePlaceOfTheScrollBar)
{
    const int count = 3000;
    for (int i = 0; i < count; ++i)
        Add(L"g", L"text");
    Show();
    std::vector<int> rows;
    for (int row = 1000; row < 2000; ++row)
        rows.push_back(row);
    SelectRows(rows);
    const HWND list = Item(IDC_LIST);
    ListView_EnsureVisible(list, 0, FALSE);
    ListView_EnsureVisible(list, 1000, FALSE);
    const int top = ListView_GetTopIndex(list);
    ASSERT_GT(top, 0);
    Click(IDC_DELETE_SELECTED);
    EXPECT_EQ(count - 1000, Rows());
    EXPECT_EQ(top, ListView_GetTopIndex(list));
    EXPECT_EQ(std::vector<int>{1000}, SelectedRows());
}

TEST_F(ViewerDelete, AllShownAsksBeforeDeletingEverything)
{
    AddThree();
    MessageBoxAnswer answer(IDNO);
    Click(IDC_DELETE_SHOWN);
    ASSERT_EQ(1u, answer.Boxes().size());
    EXPECT_EQ(L"确认", answer.Boxes()[0].caption);
    EXPECT_EQ(L"真的删除全部消息吗?", answer.Boxes()[0].text);
    EXPECT_TRUE(answer.Boxes()[0].hasYesAndNo);
    EXPECT_EQ(2, answer.Boxes()[0].buttons);
    EXPECT_EQ(::LoadIconW(NULL, IDI_QUESTION), answer.Boxes()[0].icon);
    EXPECT_EQ(3, Rows());
    EXPECT_EQ(3, Store().GetCount());
}

TEST_F(ViewerDelete, AllShownDeletesTheDocumentsAndUnboundMessages)
{
    arxhost::NewDocument();
    Add(L"a", L"of another drawing", true);
    arxhost::NewDocument();
    Add(L"a", L"of this drawing", true);
    Add(L"b", L"everywhere");
    Show();
    MessageBoxAnswer answer(IDYES);
    Click(IDC_DELETE_SHOWN);
    EXPECT_EQ(0, Rows());
    EXPECT_TRUE(GroupItems().empty());
    EXPECT_EQ(1, Store().GetCount());
}

TEST_F(ViewerDelete, AllShownAddressesTheDrawingOfTheLastRefresh)
{
    AcApDocument* const shown = arxhost::NewDocument();
    Add(L"a", L"of the shown drawing", true);
    Show();
    arxhost::NewDocument();
    Add(L"a", L"of the current drawing", true);
    MessageBoxAnswer answer(IDYES);
    Click(IDC_DELETE_SHOWN);
    EXPECT_EQ(Texts{L"of the current drawing"}, VisibleTexts());
    arxhost::SetCurrentDocument(shown);
    EXPECT_TRUE(VisibleTexts().empty());
}

TEST_F(ViewerDelete, AllOfAGroupAsksWithItsName)
{
    Add(L"100%d", L"1");
    Show();
    SelectGroup(L"100%d");
    MessageBoxAnswer answer(IDNO);
    Click(IDC_DELETE_SHOWN);
    ASSERT_EQ(1u, answer.Boxes().size());
    EXPECT_EQ(L"真的删除 100%d 组的全部消息吗?", answer.Boxes()[0].text);
    EXPECT_EQ(L"确认", answer.Boxes()[0].caption);
    EXPECT_EQ(1, Rows());
}

TEST_F(ViewerDelete, AllOfAGroupReachesOtherDrawings)
{
    AcApDocument* const other = arxhost::NewDocument();
    Add(L"A", L"of another drawing", true);
    Add(L"b", L"kept", true);
    arxhost::NewDocument();
    Add(L"a", L"of this drawing", true);
    Show();
    SelectGroup(L"a");
    MessageBoxAnswer answer(IDYES);
    Click(IDC_DELETE_SHOWN);
    EXPECT_EQ(0, Rows());
    EXPECT_TRUE(GroupItems().empty());
    arxhost::SetCurrentDocument(other);
    EXPECT_EQ(Texts{L"kept"}, VisibleTexts());
}
