// The icons of items, scrolling, the press of the mouse.
#include "IconTreeFixture.h"

#include "tree/MFCCommonTree.h"

namespace
{

class IconTree : public IconTreeFixture
{
protected:
    // More items than fit, wider than the window.
    void FillBeyondTheWindow()
    {
        for (int i = 0; i < 60; ++i)
            m_tree.InsertItem(CString(L'w', 90));
        Repaint();
    }

    static CTreeItemImages One(int index)
    {
        CTreeItemImages images;
        images.AddImage(index);
        return images;
    }

    // Whether a message invalidates a part of the tree that scrolling alone never does: it moves the first row away.
    bool InvalidatesAll(UINT message, WPARAM wParam)
    {
        Repaint();
        m_tree.SendMessage(message, wParam, 0);
        CRect update;
        CRect client;
        ::GetUpdateRect(m_tree.m_hWnd, &update, FALSE);
        m_tree.GetClientRect(&client);
        return update == client;
    }

    BOOL Press(CPoint point, HWND window)
    {
        MSG message = {};
        message.hwnd = window;
        message.message = WM_LBUTTONDOWN;
        message.wParam = MK_LBUTTON;
        message.lParam = MAKELPARAM(point.x, point.y);
        return m_tree.PreTranslateMessage(&message);
    }
};

// Counts how often its whole ground was erased.
class ErasedTree : public CAddedIconTreeCtrl
{
public:
    int whole = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_ERASEBKGND)
        {
            CRect clip;
            CRect client;
            ::GetClipBox(reinterpret_cast<HDC>(wParam), &clip);
            GetClientRect(&client);
            whole += clip == client;
        }
        return CAddedIconTreeCtrl::WindowProc(message, wParam, lParam);
    }
};

} // namespace

TEST_F(IconTree, HasRunTimeClassInformation)
{
    EXPECT_TRUE(m_tree.IsKindOf(RUNTIME_CLASS(CTreeCtrl)));
    EXPECT_STREQ("CAddedIconTreeCtrl", m_tree.GetRuntimeClass()->m_lpszClassName);
}

TEST_F(IconTree, TheCommonTreeIsATreeWithAddedIconsOfItsOwnClass)
{
    CMFCCommonTree common;
    EXPECT_TRUE(common.IsKindOf(RUNTIME_CLASS(CAddedIconTreeCtrl)));
    EXPECT_STREQ("CMFCCommonTree", common.GetRuntimeClass()->m_lpszClassName);
    ASSERT_TRUE(common.Create(kStyle, CRect(0, 0, 100, 100), &m_owner, 6));
    const HTREEITEM item = common.InsertItem(L"item");
    common.SetAddedIcons(item, One(1));
    EXPECT_EQ(1, common.GetAddedIcons(item).GetCount());
}

TEST_F(IconTree, HasNoAddedListAtFirstAndBorrowsOne)
{
    EXPECT_EQ(nullptr, m_tree.GetAddedImageList());
    CImageList list;
    m_tree.SetAddedImageList(&list);
    EXPECT_EQ(&list, m_tree.GetAddedImageList());
    m_tree.SetAddedImageList(NULL);
    EXPECT_EQ(nullptr, m_tree.GetAddedImageList());
}

TEST_F(IconTree, StoresReplacesAndDropsTheIconsOfAnItem)
{
    const HTREEITEM item = m_tree.InsertItem(L"item");
    const HTREEITEM other = m_tree.InsertItem(L"other");
    EXPECT_EQ(0, m_tree.GetAddedIcons(item).GetCount());
    m_tree.SetAddedIcons(item, One(4));
    m_tree.SetAddedIcons(other, One(9));
    EXPECT_EQ(4, m_tree.GetAddedIcons(item).GetIndex(0));
    CTreeItemImages two = One(5);
    two.AddImage(6);
    m_tree.SetAddedIcons(item, two);
    two.AddImage(7);
    EXPECT_EQ(2, m_tree.GetAddedIcons(item).GetCount()) << "copied in";
    CTreeItemImages out = m_tree.GetAddedIcons(item);
    out.AddImage(8);
    EXPECT_EQ(2, m_tree.GetAddedIcons(item).GetCount()) << "copied out";
    m_tree.RemoveAddedIcons(item);
    EXPECT_EQ(0, m_tree.GetAddedIcons(item).GetCount());
    EXPECT_EQ(1, m_tree.GetAddedIcons(other).GetCount());
    m_tree.RemoveAllAddedIcons();
    EXPECT_EQ(0, m_tree.GetAddedIcons(other).GetCount());
}

TEST_F(IconTree, TheEntryOfADeletedItemStaysUntilTheOwnerDropsIt)
{
    const HTREEITEM item = m_tree.InsertItem(L"item");
    m_tree.InsertItem(L"other");
    m_tree.SetAddedIcons(item, One(0));
    m_tree.DeleteItem(item);
    Repaint();
    EXPECT_EQ(1, m_tree.GetAddedIcons(item).GetCount());
    m_tree.RemoveAddedIcons(item);
    EXPECT_EQ(0, m_tree.GetAddedIcons(item).GetCount());
}

TEST_F(IconTree, NullItemsAndUnknownItemsAreAccepted)
{
    m_tree.SetAddedIcons(NULL, One(0));
    EXPECT_EQ(0, m_tree.GetAddedIcons(NULL).GetCount());
    m_tree.RemoveAddedIcons(NULL);
    m_tree.RemoveAddedIcons(reinterpret_cast<HTREEITEM>(static_cast<ULONG_PTR>(1)));
    m_tree.RemoveAllAddedIcons();
    EXPECT_EQ(0, m_tree.GetAddedIcons(reinterpret_cast<HTREEITEM>(static_cast<ULONG_PTR>(1))).GetCount());
}

TEST_F(IconTree, ScrollingInvalidatesEverythingWhenAnItemHasIcons)
{
    FillBeyondTheWindow();
    m_tree.SetAddedIcons(m_tree.GetRootItem(), One(0));
    EXPECT_TRUE(InvalidatesAll(WM_VSCROLL, SB_LINEDOWN));
    EXPECT_TRUE(InvalidatesAll(WM_HSCROLL, SB_LINERIGHT));
    EXPECT_TRUE(InvalidatesAll(WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-WHEEL_DELTA))));
}

TEST_F(IconTree, ScrollingDoesNotInvalidateEverythingWithoutIcons)
{
    FillBeyondTheWindow();
    EXPECT_FALSE(InvalidatesAll(WM_VSCROLL, SB_LINEDOWN));
    m_tree.SetAddedIcons(m_tree.GetRootItem(), One(0));
    m_tree.RemoveAllAddedIcons();
    EXPECT_FALSE(InvalidatesAll(WM_VSCROLL, SB_LINEDOWN));
}

TEST_F(IconTree, TheGroundIsErasedAfterScrolling)
{
    ErasedTree tree;
    tree.Create(kStyle, CRect(0, 0, 100, 100), &m_owner, 6);
    for (int i = 0; i < 60; ++i)
        tree.InsertItem(L"item");
    tree.SetAddedIcons(tree.GetRootItem(), One(0));
    tree.UpdateWindow();
    tree.whole = 0;
    tree.SendMessage(WM_VSCROLL, SB_LINEDOWN, 0);
    tree.UpdateWindow();
    EXPECT_EQ(1, tree.whole);
}

TEST_F(IconTree, ScrollingScrolls)
{
    FillBeyondTheWindow();
    const HTREEITEM first = m_tree.GetFirstVisibleItem();
    m_tree.SendMessage(WM_VSCROLL, SB_LINEDOWN, 0);
    const HTREEITEM second = m_tree.GetFirstVisibleItem();
    EXPECT_EQ(m_tree.GetNextVisibleItem(first), second);
    m_tree.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-WHEEL_DELTA)), 0);
    EXPECT_NE(second, m_tree.GetFirstVisibleItem());
    m_tree.SendMessage(WM_HSCROLL, SB_PAGERIGHT, 0);
    EXPECT_GT(::GetScrollPos(m_tree.m_hWnd, SB_HORZ), 0);
}

TEST_F(IconTree, APressSelectsTheItemBeforeItIsDispatched)
{
    const HTREEITEM first = m_tree.InsertItem(L"first");
    const HTREEITEM second = m_tree.InsertItem(L"second");
    EXPECT_FALSE(Press(Label(second).CenterPoint(), m_tree.m_hWnd)) << "it is dispatched all the same";
    EXPECT_EQ(second, m_tree.GetSelectedItem());
    Press(Label(first).CenterPoint(), m_owner.m_hWnd);
    EXPECT_EQ(second, m_tree.GetSelectedItem()) << "the press was not on the tree";
    Press(CPoint(10, kHeight - 5), m_tree.m_hWnd);
    EXPECT_EQ(second, m_tree.GetSelectedItem()) << "there is no item";
}

TEST_F(IconTree, OtherMessagesDoNotSelect)
{
    const HTREEITEM first = m_tree.InsertItem(L"first");
    const CPoint point = Label(first).CenterPoint();
    MSG message = {};
    message.hwnd = m_tree.m_hWnd;
    message.message = WM_RBUTTONDOWN;
    message.lParam = MAKELPARAM(point.x, point.y);
    m_tree.SelectItem(NULL);
    m_tree.PreTranslateMessage(&message);
    EXPECT_EQ(nullptr, m_tree.GetSelectedItem());
}

TEST_F(IconTree, TheOwnerMayEmptyTheTreeWhenAPressSelects)
{
    m_tree.InsertItem(L"first");
    const HTREEITEM item = m_tree.InsertItem(L"second");
    m_owner.onNotify = [&](NMHDR& header) {
        if (header.code != static_cast<UINT>(TVN_SELCHANGED))
            return;
        m_owner.onNotify = nullptr;
        m_tree.DeleteAllItems();
    };
    Press(Label(item).CenterPoint(), m_tree.m_hWnd);
    EXPECT_EQ(0u, m_tree.GetCount());
}

TEST_F(IconTree, APressThatMakesTheOwnerDestroyTheTreeIsNotDispatched)
{
    m_tree.InsertItem(L"first");
    const HTREEITEM item = m_tree.InsertItem(L"second");
    m_owner.onNotify = [&](NMHDR& header) {
        if (header.code != static_cast<UINT>(TVN_SELCHANGED))
            return;
        m_owner.onNotify = nullptr;
        m_tree.DestroyWindow();
    };
    EXPECT_TRUE(Press(Label(item).CenterPoint(), m_tree.m_hWnd));
    EXPECT_EQ(nullptr, m_tree.m_hWnd);
}

TEST_F(IconTree, ATreeWithoutAWindowKeepsIconsAndTakesNoPress)
{
    CAddedIconTreeCtrl unborn;
    const HTREEITEM item = m_tree.InsertItem(L"item");
    unborn.SetAddedIcons(item, One(3));
    EXPECT_EQ(3, unborn.GetAddedIcons(item).GetIndex(0));
    MSG message = {};
    message.message = WM_LBUTTONDOWN;
    EXPECT_FALSE(unborn.PreTranslateMessage(&message));
}
