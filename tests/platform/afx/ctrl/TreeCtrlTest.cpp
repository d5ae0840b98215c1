#include "ControlFixture.h"

#include <string>

// One root with two children and a grandchild.
class TreeCtrl : public ControlFixture
{
protected:
    void SetUp() override
    {
        ControlFixture::SetUp();
        const DWORD style = TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT | TVS_EDITLABELS | TVS_CHECKBOXES;
        ASSERT_TRUE(m_tree.Create(Visible | style, m_place, &m_parent, ControlId));
        m_root = m_tree.InsertItem(L"root");
        m_second = m_tree.InsertItem(L"second", m_root);
        m_first = m_tree.InsertItem(L"first", m_root, TVI_FIRST);
        m_grandchild = m_tree.InsertItem(L"grandchild", m_first);
        ASSERT_NE(nullptr, m_grandchild);
    }

    static int CALLBACK CompareData(LPARAM one, LPARAM two, LPARAM) { return static_cast<int>(two - one); }

    CTreeCtrl m_tree;
    HTREEITEM m_root = nullptr;
    HTREEITEM m_first = nullptr;
    HTREEITEM m_second = nullptr;
    HTREEITEM m_grandchild = nullptr;
};

TEST_F(TreeCtrl, ItemsAreWalked)
{
    EXPECT_EQ(4u, m_tree.GetCount());
    EXPECT_EQ(m_root, m_tree.GetRootItem());
    EXPECT_EQ(m_first, m_tree.GetChildItem(m_root));
    EXPECT_EQ(m_second, m_tree.GetNextSiblingItem(m_first));
    EXPECT_EQ(m_first, m_tree.GetPrevSiblingItem(m_second));
    EXPECT_EQ(nullptr, m_tree.GetNextSiblingItem(m_second));
    EXPECT_EQ(m_first, m_tree.GetParentItem(m_grandchild));
    EXPECT_EQ(nullptr, m_tree.GetParentItem(m_root));
    EXPECT_TRUE(m_tree.ItemHasChildren(m_first));
    EXPECT_FALSE(m_tree.ItemHasChildren(m_second));
}

TEST_F(TreeCtrl, DeletingAnItemTakesItsChildren)
{
    EXPECT_TRUE(m_tree.DeleteItem(m_first));
    EXPECT_EQ(2u, m_tree.GetCount());
    EXPECT_TRUE(m_tree.DeleteAllItems());
    EXPECT_EQ(0u, m_tree.GetCount());
    EXPECT_EQ(nullptr, m_tree.GetRootItem());
}

TEST_F(TreeCtrl, TextsOfAnyLengthComeBackWhole)
{
    const int lengths[] = {0, 1, 254, 255, 256, 511, 3000};
    for (const int length : lengths)
    {
        const std::wstring text(length, L'x');
        EXPECT_TRUE(m_tree.SetItemText(m_second, text.c_str()));
        EXPECT_EQ(length, m_tree.GetItemText(m_second).GetLength());
    }
    EXPECT_STREQ(L"grandchild", m_tree.GetItemText(m_grandchild));
}

TEST_F(TreeCtrl, DataAndImagesBelongToTheItem)
{
    EXPECT_EQ(0u, m_tree.GetItemData(m_first));
    EXPECT_TRUE(m_tree.SetItemData(m_first, 99));
    EXPECT_EQ(99u, m_tree.GetItemData(m_first));
    EXPECT_TRUE(m_tree.SetItemImage(m_first, 3, 4));
    int image = 0;
    int selected = 0;
    EXPECT_TRUE(m_tree.GetItemImage(m_first, image, selected));
    EXPECT_EQ(3, image);
    EXPECT_EQ(4, selected);
    const HTREEITEM full = m_tree.InsertItem(TVIF_TEXT | TVIF_PARAM, L"full", 0, 0, 0, 0, 77, m_root, TVI_LAST);
    EXPECT_EQ(77u, m_tree.GetItemData(full));
    EXPECT_STREQ(L"full", m_tree.GetItemText(full));
}

TEST_F(TreeCtrl, StatesAndChecks)
{
    EXPECT_TRUE(m_tree.SetItemState(m_first, TVIS_BOLD, TVIS_BOLD));
    EXPECT_EQ(static_cast<UINT>(TVIS_BOLD), m_tree.GetItemState(m_first, TVIS_BOLD));
    EXPECT_FALSE(m_tree.GetCheck(m_first));
    EXPECT_TRUE(m_tree.SetCheck(m_first));
    EXPECT_TRUE(m_tree.GetCheck(m_first));
    EXPECT_TRUE(m_tree.GetItemState(m_first, TVIS_BOLD)); // untouched by the check
    EXPECT_TRUE(m_tree.SetCheck(m_first, FALSE));
    EXPECT_FALSE(m_tree.GetCheck(m_first));
}

TEST_F(TreeCtrl, SelectionAndExpansion)
{
    EXPECT_EQ(nullptr, m_tree.GetSelectedItem());
    EXPECT_TRUE(m_tree.SelectItem(m_grandchild)); // opens its parents
    EXPECT_EQ(m_grandchild, m_tree.GetSelectedItem());
    EXPECT_TRUE(m_tree.GetItemState(m_root, TVIS_EXPANDED));
    EXPECT_EQ(m_first, m_tree.GetNextVisibleItem(m_root));
    EXPECT_TRUE(m_tree.Expand(m_root, TVE_COLLAPSE));
    EXPECT_FALSE(m_tree.GetItemState(m_root, TVIS_EXPANDED));
}

TEST_F(TreeCtrl, TheDropTargetIsAnotherItemThanTheSelection)
{
    m_tree.SelectItem(m_root);
    EXPECT_TRUE(m_tree.SelectDropTarget(m_first));
    EXPECT_EQ(m_first, m_tree.GetDropHilightItem());
    EXPECT_EQ(m_root, m_tree.GetSelectedItem());
    m_tree.SelectDropTarget(nullptr);
    EXPECT_EQ(nullptr, m_tree.GetDropHilightItem());
}

TEST_F(TreeCtrl, ItemsLieWhereHitTestsFindThem)
{
    m_tree.Expand(m_root, TVE_EXPAND);
    CRect rect;
    ASSERT_TRUE(m_tree.GetItemRect(m_first, &rect, TRUE));
    UINT flags = 0;
    EXPECT_EQ(m_first, m_tree.HitTest(rect.CenterPoint(), &flags));
    EXPECT_EQ(static_cast<UINT>(TVHT_ONITEMLABEL), flags);
    EXPECT_EQ(nullptr, m_tree.HitTest(CPoint(50, 190), &flags));
    EXPECT_EQ(static_cast<UINT>(TVHT_NOWHERE), flags);
    m_tree.Expand(m_root, TVE_COLLAPSE);
    EXPECT_FALSE(m_tree.GetItemRect(m_first, &rect, TRUE));
}

TEST_F(TreeCtrl, SortsByTextAndByCallback)
{
    m_tree.InsertItem(L"aaa", m_root);
    EXPECT_TRUE(m_tree.SortChildren(m_root));
    EXPECT_STREQ(L"aaa", m_tree.GetItemText(m_tree.GetChildItem(m_root)));
    m_tree.SetItemData(m_second, 10);
    m_tree.SetItemData(m_first, 5);
    TVSORTCB sort = {m_root, &CompareData, 0};
    EXPECT_TRUE(m_tree.SortChildrenCB(&sort));
    EXPECT_EQ(m_second, m_tree.GetChildItem(m_root));
    EXPECT_EQ(m_first, m_tree.GetNextSiblingItem(m_second));
}

TEST_F(TreeCtrl, LookComesBack)
{
    m_tree.SetBkColor(RGB(1, 2, 3));
    EXPECT_EQ(RGB(1, 2, 3), m_tree.GetBkColor());
    m_tree.SetTextColor(RGB(4, 5, 6));
    EXPECT_EQ(RGB(4, 5, 6), m_tree.GetTextColor());
    m_tree.SetItemHeight(30);
    EXPECT_EQ(30, m_tree.GetItemHeight());
    CImageList images;
    ASSERT_TRUE(images.Create(16, 16, ILC_COLOR32, 1, 1));
    EXPECT_EQ(nullptr, m_tree.SetImageList(&images, TVSIL_NORMAL));
    EXPECT_EQ(&images, m_tree.GetImageList(TVSIL_NORMAL));
    EXPECT_EQ(&images, m_tree.SetImageList(nullptr, TVSIL_NORMAL));
}

TEST_F(TreeCtrl, ALabelIsEditedInAnEdit)
{
    ASSERT_TRUE(OpensLabel(m_tree, m_root));
    CString text;
    m_tree.GetEditControl()->GetWindowText(text);
    EXPECT_STREQ(L"root", text);
    m_tree.GetEditControl()->SetWindowText(L"renamed");
    EXPECT_TRUE(m_tree.EndEditLabelNow(TRUE));
    EXPECT_EQ(nullptr, m_tree.GetEditControl());
    EXPECT_STREQ(L"root", m_tree.GetItemText(m_root));
}
