// What the viewer shows: tree of groups, rows, count, and which document's messages.
#include "ViewerFixture.h"

#include "DibCanvas.h"

namespace
{

class ViewerRefresh : public ViewerFixture
{
};

constexpr UINT kSelectedAndFocused = LVIS_SELECTED | LVIS_FOCUSED;

} // namespace

TEST_F(ViewerRefresh, EmptyStoreShowsTheRootAloneAndEnablesTheToggleOnly)
{
    Show();
    EXPECT_EQ(L"消息查看器", TreeText(Root()));
    EXPECT_TRUE(GroupItems().empty());
    EXPECT_EQ(Root(), SelectedItem());
    EXPECT_EQ(0, Rows());
    EXPECT_EQ(L"0个消息", TextOf(IDC_COUNT));
    EXPECT_TRUE(IsEnabled(IDC_SHOW_TREE));
    for (int id : {IDC_DELETE_SELECTED, IDC_DELETE_SHOWN, IDC_ZOOM, IDC_FLASH, IDC_SELECT})
        EXPECT_FALSE(IsEnabled(id)) << id;
}

TEST_F(ViewerRefresh, ControlsHaveTheirPublishedIdentifiers)
{
    Show();
    const struct
    {
        int id;
        const wchar_t* className;
    } controls[] = {{100, WC_TABCONTROLW}, {101, L"Button"}, {103, WC_LISTVIEWW}, {104, L"Static"}, {105, WC_TREEVIEWW},
                    {106, L"Button"},      {107, L"Button"}, {108, L"Button"},    {109, L"Button"}, {112, L"Button"}};
    for (const auto& control : controls)
    {
        wchar_t name[64] = L"";
        ::GetClassNameW(Item(control.id), name, 64);
        EXPECT_STRCASEEQ(CStringA(control.className), CStringA(name)) << control.id;
    }
}

TEST_F(ViewerRefresh, TabStandsAboveTheTree)
{
    Show();
    ASSERT_EQ(1, TabCtrl_GetItemCount(Item(IDC_TAB)));
    wchar_t text[16] = L"";
    TCITEMW item = {};
    item.mask = TCIF_TEXT;
    item.pszText = text;
    item.cchTextMax = 16;
    ::SendMessageW(Item(IDC_TAB), TCM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    EXPECT_STREQ(L"树", text);
}

TEST_F(ViewerRefresh, ColumnsHaveTheirTextsAndWidths)
{
    Show();
    const HWND header = ListView_GetHeader(Item(IDC_LIST));
    const Texts texts = {L"类型", L"时间", L"源", L"描述"};
    const int widths[] = {60, 60, 100};
    ASSERT_EQ(4, Header_GetItemCount(header));
    for (int column = 0; column < 4; ++column)
    {
        wchar_t text[16] = L"";
        HDITEMW item = {};
        item.mask = HDI_TEXT;
        item.pszText = text;
        item.cchTextMax = 16;
        ::SendMessageW(header, HDM_GETITEMW, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&item));
        EXPECT_EQ(texts[static_cast<size_t>(column)], text);
        if (column < 3)
        {
            EXPECT_EQ(widths[column], ListView_GetColumnWidth(Item(IDC_LIST), column));
        }
    }
}

TEST_F(ViewerRefresh, ListSelectsFullRowsAndShowsInfoTips)
{
    Show();
    const DWORD style = ListView_GetExtendedListViewStyle(Item(IDC_LIST));
    EXPECT_EQ(DWORD(LVS_EX_FULLROWSELECT | LVS_EX_INFOTIP), style & (LVS_EX_FULLROWSELECT | LVS_EX_INFOTIP));
}

TEST_F(ViewerRefresh, ImageListsHaveTheirSizes)
{
    Show();
    int cx = 0;
    int cy = 0;
    const HIMAGELIST list = ListView_GetImageList(Item(IDC_LIST), LVSIL_SMALL);
    ASSERT_EQ(3, ImageList_GetImageCount(list));
    ImageList_GetIconSize(list, &cx, &cy);
    EXPECT_EQ(18, cx);
    EXPECT_EQ(18, cy);
    const HIMAGELIST tree = TreeView_GetImageList(Item(IDC_TREE), TVSIL_NORMAL);
    ASSERT_EQ(2, ImageList_GetImageCount(tree));
    ImageList_GetIconSize(tree, &cx, &cy);
    EXPECT_EQ(16, cx);
    EXPECT_EQ(16, cy);
}

TEST_F(ViewerRefresh, WhiteOfTheImagesIsTransparent)
{
    Show();
    const COLORREF background = RGB(255, 0, 255);
    const struct
    {
        HIMAGELIST images;
        int size;
    } lists[] = {{ListView_GetImageList(Item(IDC_LIST), LVSIL_SMALL), 18},
                 {TreeView_GetImageList(Item(IDC_TREE), TVSIL_NORMAL), 16}};
    for (const auto& list : lists)
    {
        for (int image = 0; image < ImageList_GetImageCount(list.images); ++image)
        {
            DibCanvas canvas(list.size, list.size, background);
            ImageList_Draw(list.images, image, canvas.Dc(), 0, 0, ILD_TRANSPARENT);
            EXPECT_EQ(background, canvas.Pixel(0, 0)) << image;
        }
    }
}

TEST_F(ViewerRefresh, RowsShowTypeTimeGroupAndText)
{
    KTMsgWnd::AddMsg(KTMsgWnd::eInfo, L"a", L"first", false, NULL, NULL);
    KTMsgWnd::AddMsg(KTMsgWnd::eWarning, L"b", L"second", false, NULL, NULL);
    KTMsgWnd::AddMsg(KTMsgWnd::eError, L"c", L"third", false, NULL, NULL);
    KTMsgWnd::AddMsg(static_cast<KTMsgWnd::EMsgType>(7), L"d", L"fourth", false, NULL, NULL);
    Show();
    EXPECT_EQ((Texts{L"信息", L"警告", L"错误", L"错误"}), Column(0));
    EXPECT_EQ(Last().time.GetString(), Cell(3, 1));
    EXPECT_EQ((Texts{L"a", L"b", L"c", L"d"}), Column(2));
    EXPECT_EQ((Texts{L"first", L"second", L"third", L"fourth"}), Column(3));
    const int images[] = {0, 2, 1, 1};
    for (int row = 0; row < 4; ++row)
    {
        EXPECT_EQ(images[row], Row(row).iImage);
        EXPECT_EQ(row + 1, Row(row).lParam);
    }
    EXPECT_EQ(L"4个消息", TextOf(IDC_COUNT));
}

TEST_F(ViewerRefresh, NewestRowIsSelectedFocusedAndInView)
{
    for (int i = 0; i < 100; ++i)
        Add(L"g", L"text");
    Show();
    EXPECT_EQ(std::vector<int>{99}, SelectedRows());
    EXPECT_EQ(kSelectedAndFocused, Row(99).state & kSelectedAndFocused);
    EXPECT_TRUE(ListView_IsItemVisible(Item(IDC_LIST), 99));
    EXPECT_TRUE(IsEnabled(IDC_DELETE_SELECTED));
    EXPECT_TRUE(IsEnabled(IDC_DELETE_SHOWN));
    EXPECT_FALSE(IsEnabled(IDC_ZOOM));
}

TEST_F(ViewerRefresh, TreeListsGroupsNewestFirst)
{
    Add(L"old", L"1");
    Add(L"new", L"2");
    Show();
    EXPECT_EQ((Texts{L"new", L"old"}), GroupTexts());
    const UINT state = TreeView_GetItemState(Item(IDC_TREE), Root(), TVIS_EXPANDED);
    EXPECT_TRUE((state & TVIS_EXPANDED) != 0);
    EXPECT_EQ(Root(), SelectedItem());
}

TEST_F(ViewerRefresh, TreeItemsHaveTheirImages)
{
    Add(L"g", L"1");
    Show();
    TVITEMW item = {};
    item.mask = TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    item.hItem = Root();
    ::SendMessageW(Item(IDC_TREE), TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    EXPECT_EQ(0, item.iImage);
    EXPECT_EQ(0, item.iSelectedImage);
    item.hItem = GroupItems().at(0);
    ::SendMessageW(Item(IDC_TREE), TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    EXPECT_EQ(1, item.iImage);
    EXPECT_EQ(1, item.iSelectedImage);
}

TEST_F(ViewerRefresh, GroupsThatDifferInLetterCaseAreOneItem)
{
    Add(L"Check", L"1");
    Add(L"CHECK", L"2");
    Show();
    EXPECT_EQ(Texts{L"CHECK"}, GroupTexts());
    SelectGroup(L"CHECK");
    EXPECT_EQ(2, Rows());
}

// What the tree shows as one group must come up as one when it is selected.
TEST_F(ViewerRefresh, GroupsOfOtherScriptsThatDifferInLetterCaseAreOneItem)
{
    Add(L"ПРОВЕРКА", L"1");
    Add(L"проверка", L"2");
    Show();
    EXPECT_EQ(Texts{L"проверка"}, GroupTexts());
    SelectGroup(L"проверка");
    EXPECT_EQ(2, Rows());
    KTMsgWnd::UpdateMsgWnd();
    EXPECT_EQ(2, Rows());
    SelectRoot();
    SelectRows({0});
    Click(IDC_DELETE_SELECTED);
    EXPECT_EQ(Texts{L"проверка"}, GroupTexts());
    Click(IDC_DELETE_SELECTED);
    EXPECT_TRUE(GroupTexts().empty());
}

TEST_F(ViewerRefresh, SelectingAGroupShowsItsMessagesOnly)
{
    Add(L"a", L"1");
    Add(L"b", L"2");
    Add(L"a", L"3");
    Show();
    SelectGroup(L"a");
    EXPECT_EQ((Texts{L"1", L"3"}), Column(3));
    EXPECT_EQ(L"2个消息", TextOf(IDC_COUNT));
    EXPECT_EQ(std::vector<int>{1}, SelectedRows());
    SelectRoot();
    EXPECT_EQ((Texts{L"1", L"2", L"3"}), Column(3));
}

TEST_F(ViewerRefresh, WithNothingSelectedInTheTreeAllMessagesAreMeant)
{
    Add(L"a", L"1");
    Add(L"b", L"2");
    Show();
    SelectGroup(L"a");
    TreeView_SelectItem(Item(IDC_TREE), NULL);
    ASSERT_TRUE(SelectedItem() == NULL);
    EXPECT_EQ((Texts{L"1", L"2"}), Column(3));
    Click(IDC_DELETE_SELECTED);
    EXPECT_EQ(Texts{L"a"}, GroupTexts());
    KTMsgWnd::UpdateMsgWnd();
    EXPECT_EQ(Root(), SelectedItem());
}

TEST_F(ViewerRefresh, UpdateKeepsTheSelectedGroupAndShowsNewOnes)
{
    Add(L"a", L"1");
    Show();
    SelectGroup(L"a");
    Add(L"b", L"2");
    Add(L"A", L"3");
    EXPECT_EQ(1, Rows());
    KTMsgWnd::UpdateMsgWnd();
    EXPECT_EQ(L"A", SelectedText());
    EXPECT_EQ((Texts{L"A", L"b"}), GroupTexts());
    EXPECT_EQ((Texts{L"1", L"3"}), Column(3));
}

TEST_F(ViewerRefresh, UpdateSelectsTheRootWhenTheGroupIsGone)
{
    Add(L"a", L"1");
    Add(L"b", L"2");
    Show();
    SelectGroup(L"a");
    KTMsgWnd::RemoveMsg(L"a", true);
    KTMsgWnd::UpdateMsgWnd();
    EXPECT_EQ(Root(), SelectedItem());
    EXPECT_EQ(Texts{L"2"}, Column(3));
}

TEST_F(ViewerRefresh, OtherDocumentsMessagesAreNotShown)
{
    AcApDocument* const first = arxhost::NewDocument();
    Add(L"a", L"1", true);
    Add(L"b", L"2");
    arxhost::NewDocument();
    Add(L"c", L"3", true);
    Show();
    EXPECT_EQ((Texts{L"2", L"3"}), Column(3));
    EXPECT_EQ((Texts{L"c", L"b"}), GroupTexts());
    arxhost::SetCurrentDocument(first);
    KTMsgWnd::UpdateMsgWnd();
    EXPECT_EQ((Texts{L"1", L"2"}), Column(3));
}

TEST_F(ViewerRefresh, ReturningToADrawingReselectsItsGroup)
{
    AcApDocument* const first = arxhost::NewDocument();
    Add(L"a", L"1", true);
    Add(L"b", L"2", true);
    Show();
    SelectGroup(L"a");
    AcApDocument* const second = arxhost::NewDocument();
    Add(L"c", L"3", true);
    Add(L"a", L"4", true);
    KTMsgWnd::UpdateMsgWnd();
    EXPECT_EQ(Root(), SelectedItem());
    SelectGroup(L"c");
    arxhost::SetCurrentDocument(first);
    KTMsgWnd::UpdateMsgWnd();
    EXPECT_EQ(L"a", SelectedText());
    EXPECT_EQ(Texts{L"1"}, Column(3));
    arxhost::SetCurrentDocument(second);
    KTMsgWnd::UpdateMsgWnd();
    EXPECT_EQ(L"c", SelectedText());
}

TEST_F(ViewerRefresh, SelectingInTheTreeAfterASwitchOfDrawingsRebuildsTheTree)
{
    arxhost::NewDocument();
    Add(L"a", L"1", true);
    Show();
    arxhost::NewDocument();
    Add(L"b", L"2", true);
    TreeView_SelectItem(Item(IDC_TREE), GroupItems().at(0));
    EXPECT_EQ(Texts{L"b"}, GroupTexts());
    EXPECT_EQ(Texts{L"2"}, Column(3));
}

TEST_F(ViewerRefresh, MessagesWithoutAGroupStandUnderAnEmptyName)
{
    Add(NULL, L"1");
    Add(L"a", L"2");
    Show();
    EXPECT_EQ((Texts{L"a", L""}), GroupTexts());
    EXPECT_EQ(Root(), SelectedItem());
    EXPECT_EQ(2, Rows());
}

TEST_F(ViewerRefresh, LongAndSpecialTextsAreShownUnharmed)
{
    const int length = 100000;
    const Texts texts = {L"100%s%d%n", L"line\r\nfeed", L"\U0001F600 pair", std::wstring(length, L'字')};
    for (const std::wstring& text : texts)
        Add(text.c_str(), text.c_str());
    Show();
    for (int row = 0; row < 4; ++row)
    {
        EXPECT_EQ(texts[static_cast<size_t>(row)], Cell(row, 3, length + 1));
        EXPECT_EQ(texts[static_cast<size_t>(row)], Cell(row, 2, length + 1));
    }
    // The group of a selected item must be the whole name, or its messages are not found.
    TreeView_SelectItem(Item(IDC_TREE), GroupItems().at(0));
    EXPECT_EQ(1, Rows());
}

TEST_F(ViewerRefresh, ManyMessagesAreShown)
{
    const int count = 20000;
    for (int i = 0; i < count; ++i)
        Add(i % 2 == 0 ? L"even" : L"odd", L"text");
    Show();
    EXPECT_EQ(count, Rows());
    EXPECT_EQ(L"20000个消息", TextOf(IDC_COUNT));
    SelectGroup(L"odd");
    EXPECT_EQ(count / 2, Rows());
}
