// Where the viewer's controls stand when it is sized and when the tree is hidden; keys, focus, tips.
#include "ViewerFixture.h"

#include "DibCanvas.h"
#include "Wait.h"

namespace
{

class ViewerLayout : public ViewerFixture
{
protected:
    static void SizeTo(int cx, int cy) { ::MoveWindow(Viewer(), 0, 0, cx, cy, TRUE); }

    static std::vector<COLORREF> PixelsOf(HICON icon)
    {
        const int size = 16;
        DibCanvas canvas(size, size, RGB(255, 0, 255));
        ::DrawIconEx(canvas.Dc(), 0, 0, icon, size, size, 0, NULL, DI_NORMAL);
        std::vector<COLORREF> pixels;
        for (int i = 0; i < size * size; ++i)
            pixels.push_back(canvas.Pixel(i % size, i / size));
        return pixels;
    }

    static std::vector<COLORREF> PixelsOfResource(int id)
    {
        const int size = 16;
        const HANDLE icon = ::LoadImageW(_hdllInstance, MAKEINTRESOURCEW(id), IMAGE_ICON, size, size, LR_DEFAULTCOLOR);
        const std::vector<COLORREF> pixels = PixelsOf(static_cast<HICON>(icon));
        ::DestroyIcon(static_cast<HICON>(icon));
        return pixels;
    }

    static int DescriptionColumn() { return ListView_GetColumnWidth(Item(IDC_LIST), 3); }

    static int ExpectedDescription()
    {
        CRect client;
        ::GetClientRect(Item(IDC_LIST), &client);
        const int left = client.Width() - ::GetSystemMetrics(SM_CXVSCROLL) - 220;
        return left < 100 ? 100 : left;
    }
};

constexpr int kToolRow[] = {
    IDC_SHOW_TREE, IDC_SEPARATOR_DELETE, IDC_DELETE_SELECTED, IDC_DELETE_SHOWN, IDC_SEPARATOR_ZOOM, IDC_ZOOM, IDC_FLASH,
    IDC_SELECT};

} // namespace

TEST_F(ViewerLayout, ListFollowsTheSize)
{
    Show();
    SizeTo(700, 300);
    EXPECT_EQ(695, RectOf(IDC_LIST).right);
    EXPECT_EQ(295, RectOf(IDC_LIST).bottom);
    SizeTo(520, 220);
    EXPECT_EQ(515, RectOf(IDC_LIST).right);
    EXPECT_EQ(215, RectOf(IDC_LIST).bottom);
}

TEST_F(ViewerLayout, TabTreeAndCountFollowTheList)
{
    Show();
    SizeTo(700, 300);
    EXPECT_EQ(295, RectOf(IDC_TAB).bottom);
    EXPECT_EQ(289, RectOf(IDC_TREE).bottom);
    EXPECT_EQ(695, RectOf(IDC_COUNT).right);
}

TEST_F(ViewerLayout, DescriptionColumnTakesWhatIsLeft)
{
    Show();
    SizeTo(900, 300);
    EXPECT_EQ(ExpectedDescription(), DescriptionColumn());
    EXPECT_GT(DescriptionColumn(), 100);
    SizeTo(300, 120);
    EXPECT_EQ(100, DescriptionColumn());
}

TEST_F(ViewerLayout, HidingTheTreeLetsTheListGrow)
{
    Show();
    const CRect list = RectOf(IDC_LIST);
    const CRect count = RectOf(IDC_COUNT);
    const CRect tab = RectOf(IDC_TAB);
    std::vector<CRect> before;
    for (int id : kToolRow)
        before.push_back(RectOf(id));
    const int shift = list.left - tab.left;

    Click(IDC_SHOW_TREE);
    EXPECT_FALSE(IsShown(IDC_TAB));
    EXPECT_FALSE(IsShown(IDC_TREE));
    EXPECT_EQ(CRect(tab.left, list.top, list.right, list.bottom), RectOf(IDC_LIST));
    EXPECT_EQ(CRect(count.left - shift, count.top, count.right, count.bottom), RectOf(IDC_COUNT));
    for (size_t i = 0; i < before.size(); ++i)
        EXPECT_EQ(before[i] - CPoint(shift, 0), RectOf(kToolRow[i])) << kToolRow[i];
    EXPECT_EQ(0, GetShowTree());
}

TEST_F(ViewerLayout, ShowingTheTreeAgainBringsEverythingBack)
{
    Show();
    const CRect list = RectOf(IDC_LIST);
    const CRect zoom = RectOf(IDC_ZOOM);
    EXPECT_EQ(RectOf(IDC_TAB).right + 5, list.left);
    Click(IDC_SHOW_TREE);
    Click(IDC_SHOW_TREE);
    EXPECT_TRUE(IsShown(IDC_TAB));
    EXPECT_TRUE(IsShown(IDC_TREE));
    EXPECT_EQ(list, RectOf(IDC_LIST));
    EXPECT_EQ(zoom, RectOf(IDC_ZOOM));
    EXPECT_EQ(1, GetShowTree());
}

TEST_F(ViewerLayout, ToggleIsCheckedWhileTheTreeIsShown)
{
    Show();
    EXPECT_EQ(BST_CHECKED, ::SendMessageW(Item(IDC_SHOW_TREE), BM_GETCHECK, 0, 0));
    Click(IDC_SHOW_TREE);
    EXPECT_EQ(BST_UNCHECKED, ::SendMessageW(Item(IDC_SHOW_TREE), BM_GETCHECK, 0, 0));
}

TEST_F(ViewerLayout, TreeStaysHiddenWhenTheModuleIsLoadedAgain)
{
    SetShowTree(false);
    Show();
    EXPECT_FALSE(IsShown(IDC_TREE));
    EXPECT_EQ(RectOf(IDC_TAB).left, RectOf(IDC_LIST).left);
    EXPECT_EQ(0, GetShowTree());
    CMsgViewWnd::DestroyInstance();
    SetShowTree(true);
    Show();
    EXPECT_TRUE(IsShown(IDC_TREE));
}

TEST_F(ViewerLayout, CommandsWorkWhileTheTreeIsHidden)
{
    SetShowTree(false);
    Add(L"a", L"1");
    Show();
    Click(IDC_DELETE_SELECTED);
    EXPECT_EQ(0, Rows());
}

TEST_F(ViewerLayout, EnterAndEscapeLeaveTheViewerOpen)
{
    Show();
    for (const WPARAM key : {VK_RETURN, VK_ESCAPE})
    {
        MSG message = {};
        message.hwnd = Item(IDC_LIST);
        message.message = WM_KEYDOWN;
        message.wParam = key;
        Dialog().PreTranslateMessage(&message);
        ::SendMessageW(Viewer(), WM_COMMAND, key == VK_RETURN ? IDOK : IDCANCEL, 0);
        EXPECT_TRUE(::IsWindow(Viewer()));
        EXPECT_TRUE(::IsWindowVisible(Viewer()));
    }
}

TEST_F(ViewerLayout, KeepsTheFocusWhileTheCursorIsInside)
{
    Show();
    CRect rect;
    ::GetWindowRect(Viewer(), &rect);
    const auto isKept = [](CPoint cursor, LRESULT kept) {
        // Moves that the display reports late may take the cursor back: it is put there anew until the answers fit.
        return WaitFor([=] {
            ::SetCursorPos(cursor.x, cursor.y);
            return ::SendMessageW(Viewer(), 0x7101, 0, 0) == kept &&
                   CMsgViewWnd::Instance(false)->CanFrameworkTakeFocus() == (kept == 0);
        });
    };
    EXPECT_TRUE(isKept(rect.CenterPoint(), 1));
    CRect set;
    CMsgViewWnd::Instance(false)->GetWindowRect(&set);
    EXPECT_TRUE(isKept(CPoint(set.right + 30, set.CenterPoint().y), 0));
}

TEST_F(ViewerLayout, ButtonsHaveTheirTips)
{
    Show();
    const struct
    {
        int id;
        const wchar_t* tip;
    } tips[] = {{IDC_SHOW_TREE, L"显示/隐藏“树”"},
                {IDC_DELETE_SELECTED, L"删除选中消息"},
                {IDC_DELETE_SHOWN, L"删除显示的全部消息"},
                {IDC_ZOOM, L"缩放到"},
                {IDC_FLASH, L"闪烁"},
                {IDC_SELECT, L"选中"}};
    HWND tipWindow = NULL;
    while ((tipWindow = ::FindWindowExW(NULL, tipWindow, TOOLTIPS_CLASSW, NULL)) != NULL)
    {
        if (::SendMessageW(tipWindow, TTM_GETTOOLCOUNT, 0, 0) == 6 &&
            ::GetWindowThreadProcessId(tipWindow, NULL) == ::GetCurrentThreadId())
            break;
    }
    ASSERT_TRUE(tipWindow != NULL);
    CToolTipCtrl* const control = dynamic_cast<CToolTipCtrl*>(CWnd::FromHandlePermanent(tipWindow));
    ASSERT_TRUE(control != NULL);
    for (const auto& tip : tips)
    {
        CString text;
        control->GetText(text, CWnd::FromHandle(Item(tip.id)));
        EXPECT_STREQ(tip.tip, text);
    }
}

TEST_F(ViewerLayout, ButtonsHaveTheirStylesAndIconsAndNoCaption)
{
    Show();
    for (int id : {IDC_SHOW_TREE, IDC_DELETE_SELECTED, IDC_DELETE_SHOWN, IDC_ZOOM, IDC_FLASH, IDC_SELECT})
    {
        CXTButton* const button = dynamic_cast<CXTButton*>(CWnd::FromHandlePermanent(Item(id)));
        ASSERT_TRUE(button != NULL) << id;
        EXPECT_EQ(id == IDC_SHOW_TREE ? 0x1021u : 0x1001u, button->GetXButtonStyle());
        EXPECT_TRUE(dynamic_cast<CXTToolbarButtonTheme*>(button->GetTheme()) != NULL) << id;
        EXPECT_TRUE(button->GetIcon() != NULL) << id;
        EXPECT_EQ(L"", TextOf(id));
    }
}

TEST_F(ViewerLayout, EveryButtonHasItsOwnPicture)
{
    Show();
    const struct
    {
        int id;
        int icon;
    } buttons[] = {{101, 104}, {106, 105}, {107, 106}, {108, 108}, {109, 107}, {112, 1001}};
    for (const auto& button : buttons)
    {
        CXTButton* const control = dynamic_cast<CXTButton*>(CWnd::FromHandlePermanent(Item(button.id)));
        ASSERT_TRUE(control != NULL) << button.id;
        EXPECT_EQ(PixelsOfResource(button.icon), PixelsOf(control->GetIcon())) << button.id;
    }
}
