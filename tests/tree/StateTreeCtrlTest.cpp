// Checking with propagation, enabling, walking, the image list, bad input.
#include "StateTreeFixture.h"

namespace
{

class StateTree : public StateTreeFixture
{
protected:
    int ImageCount() const
    {
        const LRESULT list = ::SendMessage(m_tree.m_hWnd, TVM_GETIMAGELIST, TVSIL_STATE, 0);
        return list == 0 ? -1 : ::ImageList_GetImageCount(reinterpret_cast<HIMAGELIST>(list));
    }

    void Repaint() { m_tree.RedrawWindow(NULL, NULL, RDW_INVALIDATE | RDW_UPDATENOW); }

    // A foreign list of so many images in place of the tree's own.
    void Disturb(CImageList& foreign, int images)
    {
        foreign.Create(16, 16, ILC_COLOR24 | ILC_MASK, images, 0);
        foreign.SetImageCount(images);
        m_tree.SetImageList(&foreign, TVSIL_STATE);
    }
};

} // namespace

TEST_F(StateTree, ACheckedLeafWhoseSiblingsAreCheckedChecksItsParentAndAllAncestors)
{
    const HTREEITEM root = Add(NULL, 1);
    const HTREEITEM middle = Add(root, 3);
    const Items leaves = AddAll(middle, {2, 1, 2});
    EXPECT_NE(0, m_tree.SetCheck(leaves[1], 1));
    EXPECT_EQ((Ints{2, 2, 2}), Values(leaves));
    EXPECT_EQ(STATE_CHECKED, Value(middle));
    EXPECT_EQ(STATE_CHECKED, Value(root));
}

TEST_F(StateTree, TheWayUpEndsAtAnAncestorThatIsRightAlready)
{
    const HTREEITEM top = Add(NULL, 1); // wrong on purpose: it is not reached
    const HTREEITEM root = Add(top, 3);
    const Items leaves = AddAll(root, {1, 1, 2});
    m_tree.SetCheck(leaves[0], 1);
    EXPECT_EQ(STATE_PARTIAL, Value(root));
    EXPECT_EQ(STATE_UNCHECKED, Value(top));
}

TEST_F(StateTree, TheWayUpEndsAtAFixedAncestor)
{
    const HTREEITEM top = Add(NULL, 1);
    const HTREEITEM fixed = Add(top, 5);
    const HTREEITEM leaf = Add(fixed, 1);
    m_tree.SetCheck(leaf, 1);
    EXPECT_EQ(STATE_FIXED, Value(fixed));
    EXPECT_EQ(STATE_UNCHECKED, Value(top));
}

TEST_F(StateTree, AParentWhoseChildrenAreAllDisabledOrFixedBecomesUnchecked)
{
    const HTREEITEM root = Add(NULL, 2);
    const HTREEITEM parent = Add(root, 2);
    AddAll(parent, {4, 5});
    const HTREEITEM leaf = Add(parent, 2);
    m_tree.EnableCheck(leaf, 0);
    const HTREEITEM other = Add(parent, 1);
    m_tree.SetCheck(other, 1);
    EXPECT_EQ(STATE_CHECKED, Value(parent)) << "the one child that counts";
    m_tree.EnableChangeOtherItemState(other, 0);
    const HTREEITEM below = Add(other, 1);
    m_tree.SetCheck(below, 1);
    EXPECT_EQ(STATE_CHECKED, Value(parent)) << "a fixed item on the way up ends it";
    m_tree.DeleteItem(below);
    m_tree.SetItemState(root, INDEXTOSTATEIMAGEMASK(2), TVIS_STATEIMAGEMASK);
    const HTREEITEM sub = Add(parent, 1);
    m_tree.SetCheck(sub, 0);
    EXPECT_EQ(STATE_UNCHECKED, Value(parent));
    EXPECT_EQ(STATE_UNCHECKED, Value(root));
}

TEST_F(StateTree, OnlyTheChildrenThatCountMakeTheParent)
{
    struct Row
    {
        const char* name;
        std::vector<int> siblings;
        int check;
        int parent;
    };
    const Row rows[] = {
        {"alone, checked", {}, 1, 2},
        {"alone, unchecked", {}, 0, 1},
        {"among disabled, checked", {4, 4}, 1, 2},
        {"among disabled, unchecked", {4, 4}, 0, 1},
        {"among fixed, checked", {5}, 1, 2},
        {"among fixed, unchecked", {5}, 0, 1},
        {"beside a partial, checked", {3}, 1, 3},
        {"beside a partial, unchecked", {3}, 0, 3},
        {"beside one without a box, checked", {0}, 1, 3},
        {"beside one without a box, unchecked", {0}, 0, 1},
        {"last of the unchecked", {2, 2}, 1, 2},
        {"one of the checked, unchecked", {2, 2}, 0, 3},
        {"first of the unchecked", {1, 1}, 1, 3},
    };
    for (const Row& row : rows)
    {
        const HTREEITEM parent = Add(NULL, 0);
        AddAll(parent, row.siblings);
        const HTREEITEM leaf = Add(parent, 1);
        m_tree.SetCheck(leaf, row.check);
        EXPECT_EQ(row.parent, Value(parent)) << row.name;
    }
}

TEST_F(StateTree, TheOrderOfTheChildrenDoesNotMatter)
{
    const HTREEITEM parent = Add(NULL, 1);
    const HTREEITEM first = Add(parent, 1);
    AddAll(parent, {4, 2, 5});
    m_tree.SetCheck(first, 1);
    EXPECT_EQ(STATE_CHECKED, Value(parent));
    m_tree.SetCheck(first, 0);
    EXPECT_EQ(STATE_PARTIAL, Value(parent));
}

TEST_F(StateTree, CheckingAParentLeavesDisabledChildrenAndTheirSubtreesAlone)
{
    const HTREEITEM root = Add(NULL, 1);
    const Items children = AddAll(root, {1, 4, 1});
    const Items below = AddAll(children[1], {1, 2, 5});
    m_tree.SetCheck(root, 1);
    EXPECT_EQ((Ints{2, 4, 2}), Values(children));
    EXPECT_EQ((Ints{1, 2, 5}), Values(below));
    EXPECT_EQ(STATE_CHECKED, Value(root));
}

TEST_F(StateTree, CheckingAParentLeavesAFixedChildButSetsItsDescendants)
{
    const HTREEITEM root = Add(NULL, 1);
    const HTREEITEM fixed = Add(root, 5);
    const Items below = AddAll(fixed, {1, 4, 5, 3});
    const Items deeper = AddAll(below[2], {1, 0});
    m_tree.SetCheck(root, 1);
    EXPECT_EQ(STATE_FIXED, Value(fixed));
    EXPECT_EQ((Ints{2, 4, 5, 2}), Values(below));
    EXPECT_EQ((Ints{2, 2}), Values(deeper));
}

TEST_F(StateTree, ASubtreeWhoseRootHasTheValueAlreadyIsTakenToAgree)
{
    const HTREEITEM root = Add(NULL, 1);
    const HTREEITEM child = Add(root, 2);
    const HTREEITEM below = Add(child, 1); // does not agree, on purpose
    m_tree.SetCheck(root, 1);
    EXPECT_EQ(STATE_UNCHECKED, Value(below));
    m_tree.SetCheck(root, 0);
    EXPECT_EQ(STATE_UNCHECKED, Value(child));
}

TEST_F(StateTree, UncheckingAnItemUnchecksItsSubtree)
{
    const HTREEITEM root = Add(NULL, 3);
    const Items children = AddAll(root, {2, 3, 0, 1});
    const Items below = AddAll(children[1], {2, 1});
    m_tree.SetCheck(root, 0);
    EXPECT_EQ(STATE_UNCHECKED, Value(root));
    EXPECT_EQ((Ints{1, 1, 1, 1}), Values(children));
    EXPECT_EQ((Ints{1, 1}), Values(below));
}

TEST_F(StateTree, SiblingsAndOtherRootsStay)
{
    const Items roots = AddAll(NULL, {1, 2, 1});
    const Items children = AddAll(roots[0], {1, 1});
    const HTREEITEM below = Add(children[0], 1);
    m_tree.SetCheck(children[0], 1);
    EXPECT_EQ((Ints{3, 2, 1}), Values(roots));
    EXPECT_EQ((Ints{2, 1}), Values(children));
    EXPECT_EQ(STATE_CHECKED, Value(below));
}

TEST_F(StateTree, ADisabledItemIsNotCheckedAndAnswersZero)
{
    const HTREEITEM root = Add(NULL, 1);
    const HTREEITEM disabled = Add(root, 4);
    const HTREEITEM below = Add(disabled, 1);
    EXPECT_EQ(0, m_tree.SetCheck(disabled, 1));
    EXPECT_EQ(STATE_DISABLED, Value(disabled));
    EXPECT_EQ(STATE_UNCHECKED, Value(below));
    EXPECT_EQ(STATE_UNCHECKED, Value(root));
}

TEST_F(StateTree, ADisabledParentIsOverwrittenOnTheWayUp)
{
    const HTREEITEM disabled = Add(NULL, 4);
    const Items children = AddAll(disabled, {1, 1});
    m_tree.SetCheck(children[0], 1);
    EXPECT_EQ(STATE_PARTIAL, Value(disabled));
    m_tree.SetItemState(disabled, INDEXTOSTATEIMAGEMASK(4), TVIS_STATEIMAGEMASK);
    m_tree.SetCheck(children[1], 1);
    EXPECT_EQ(STATE_CHECKED, Value(disabled));
    m_tree.SetItemState(disabled, INDEXTOSTATEIMAGEMASK(4), TVIS_STATEIMAGEMASK);
    m_tree.SetItemState(children[1], INDEXTOSTATEIMAGEMASK(1), TVIS_STATEIMAGEMASK);
    m_tree.SetCheck(children[0], 0);
    EXPECT_EQ(STATE_UNCHECKED, Value(disabled));
}

TEST_F(StateTree, SetCheckMakesAFixedItemAnOrdinaryOne)
{
    const Items roots = AddAll(NULL, {5, 5});
    EXPECT_NE(0, m_tree.SetCheck(roots[0], 1));
    EXPECT_NE(0, m_tree.SetCheck(roots[1], 0));
    EXPECT_EQ((Ints{2, 1}), Values(roots));
}

TEST_F(StateTree, AnyOtherNumberThanZeroChecks)
{
    const HTREEITEM root = Add(NULL, 1);
    m_tree.SetCheck(root, -7);
    EXPECT_EQ(STATE_CHECKED, Value(root));
}

TEST_F(StateTree, OnlyTheCheckValueOfTheStateChanges)
{
    const HTREEITEM root = Add(NULL, 1);
    const HTREEITEM child = Add(root, 1);
    m_tree.SetItemState(child, TVIS_BOLD | TVIS_CUT, TVIS_BOLD | TVIS_CUT);
    m_tree.SetItemData(child, 77);
    m_tree.SetCheck(root, 1);
    EXPECT_EQ(UINT(TVIS_BOLD | TVIS_CUT), m_tree.GetItemState(child, TVIS_BOLD | TVIS_CUT));
    EXPECT_EQ(77u, m_tree.GetItemData(child));
    EXPECT_STREQ(L"item", m_tree.GetItemText(child));
}

TEST_F(StateTree, EnablingSetsTheWholeSubtreeWhateverItHeld)
{
    const HTREEITEM root = Add(NULL, 3);
    const HTREEITEM item = Add(root, 2);
    const Items children = AddAll(item, {0, 1, 2, 3, 4, 5});
    const HTREEITEM below = Add(children[4], 2);
    m_tree.EnableCheck(item, 0);
    EXPECT_EQ(STATE_DISABLED, Value(item));
    EXPECT_EQ((Ints{4, 4, 4, 4, 4, 4}), Values(children));
    EXPECT_EQ(STATE_DISABLED, Value(below));
    EXPECT_EQ(STATE_PARTIAL, Value(root)) << "ancestors stay";
    m_tree.EnableCheck(item, 1);
    EXPECT_EQ(STATE_UNCHECKED, Value(item));
    EXPECT_EQ((Ints{1, 1, 1, 1, 1, 1}), Values(children));
    EXPECT_EQ(STATE_UNCHECKED, Value(below));
}

TEST_F(StateTree, FixingSetsTheWholeSubtreeWhateverItHeld)
{
    const Items roots = AddAll(NULL, {2, 2});
    const Items children = AddAll(roots[0], {0, 1, 2, 3, 4, 5});
    const HTREEITEM below = Add(children[0], 2);
    m_tree.EnableChangeOtherItemState(roots[0], 0);
    EXPECT_EQ((Ints{5, 2}), Values(roots)) << "the next root is not below";
    EXPECT_EQ((Ints{5, 5, 5, 5, 5, 5}), Values(children));
    EXPECT_EQ(STATE_FIXED, Value(below));
    m_tree.EnableChangeOtherItemState(roots[0], 1);
    EXPECT_EQ((Ints{1, 2}), Values(roots));
    EXPECT_EQ((Ints{1, 1, 1, 1, 1, 1}), Values(children));
}

TEST_F(StateTree, TheWalkIsDepthFirstAndEndsAfterTheLast)
{
    const Items roots = AddAll(NULL, {1, 1});
    const Items children = AddAll(roots[0], {1, 1});
    const HTREEITEM deep = Add(Add(children[0], 1), 1);
    const HTREEITEM above = m_tree.GetParentItem(deep);
    Items seen;
    for (HTREEITEM item = roots[0]; item != NULL; item = CStateTreeCtrl::GetNextTreeItem(m_tree, item))
        seen.push_back(item);
    EXPECT_EQ((Items{roots[0], children[0], above, deep, children[1], roots[1]}), seen);
}

TEST_F(StateTree, TheWalkWorksOnAnyTree)
{
    CTreeCtrl plain;
    plain.Create(kStyle, Place(), &m_owner, 12);
    const HTREEITEM root = plain.InsertItem(L"root");
    const HTREEITEM child = plain.InsertItem(L"child", root);
    EXPECT_EQ(child, CStateTreeCtrl::GetNextTreeItem(plain, root));
    EXPECT_EQ(nullptr, CStateTreeCtrl::GetNextTreeItem(plain, child));
    EXPECT_EQ(nullptr, CStateTreeCtrl::GetNextTreeItem(plain, NULL));
}

TEST_F(StateTree, NullItemsChangeNothing)
{
    const Items roots = AddAll(NULL, {1, 2});
    EXPECT_EQ(0, m_tree.SetCheck(NULL, 1));
    m_tree.EnableCheck(NULL, 0);
    m_tree.EnableChangeOtherItemState(NULL, 0);
    EXPECT_EQ((Ints{1, 2}), Values(roots));
}

TEST_F(StateTree, ATreeWithoutAWindowAnswersNothing)
{
    CStateTreeCtrl unborn;
    const HTREEITEM item = Add(NULL, 1);
    EXPECT_EQ(0, unborn.SetCheck(item, 1));
    unborn.EnableCheck(item, 0);
    EXPECT_EQ(STATE_UNCHECKED, Value(item));
}

TEST_F(StateTree, CheckBoxesAreAddedToACreatedTree)
{
    EXPECT_NE(0u, m_tree.GetStyle() & TVS_CHECKBOXES);
}

TEST_F(StateTree, CheckBoxesAreAddedToASubclassedTreeThatHasItems)
{
    const HWND plain = ::CreateWindowW(WC_TREEVIEWW, L"", kStyle, 0, 0, 100, 100, m_owner.m_hWnd, NULL, NULL, NULL);
    CTreeCtrl before;
    before.Attach(plain);
    const HTREEITEM root = before.InsertItem(L"root");
    const HTREEITEM child = before.InsertItem(L"child", root);
    before.Detach();
    CStateTreeCtrl tree;
    ASSERT_TRUE(tree.SubclassWindow(plain));
    EXPECT_NE(0u, tree.GetStyle() & TVS_CHECKBOXES);
    tree.SetCheck(root, 1);
    EXPECT_EQ(STATE_CHECKED, ValueIn(tree, root));
    EXPECT_EQ(STATE_CHECKED, ValueIn(tree, child));
}

TEST_F(StateTree, ItsOwnImagesAreThereAfterTheFirstNotification)
{
    Add(NULL, 1);
    Repaint();
    EXPECT_EQ(6, ImageCount());
}

// A dialog that is shown a second time subclasses another window with the same object.
TEST_F(StateTree, TheSecondWindowOfTheSameObjectHasTheImagesToo)
{
    Add(NULL, 1);
    Repaint();
    m_tree.DestroyWindow();
    m_tree.Create(kStyle, Place(), &m_owner, kTreeId);
    Add(NULL, STATE_PARTIAL);
    Repaint();
    EXPECT_EQ(6, ImageCount());
    m_tree.DestroyWindow();
}

TEST_F(StateTree, SettingBringsTheImagesBackBelowSix)
{
    const HTREEITEM root = Add(NULL, 1);
    Repaint();
    for (int images : {0, 3, 4, 5})
    {
        CImageList foreign;
        Disturb(foreign, images);
        ASSERT_EQ(images, ImageCount());
        m_tree.SetCheck(root, 1);
        EXPECT_EQ(6, ImageCount()) << images;
        m_tree.SetImageList(&foreign, TVSIL_STATE);
        m_tree.EnableCheck(root, 1);
        EXPECT_EQ(6, ImageCount()) << images;
    }
    m_tree.SetImageList(NULL, TVSIL_STATE);
    m_tree.SetCheck(root, 0);
    EXPECT_EQ(6, ImageCount());
}

TEST_F(StateTree, AForeignListOfSixImagesStays)
{
    const HTREEITEM root = Add(NULL, 1);
    Repaint();
    CImageList foreign;
    Disturb(foreign, 7);
    m_tree.SetCheck(root, 1);
    EXPECT_EQ(7, ImageCount());
    m_tree.SetImageList(NULL, TVSIL_STATE);
}

TEST_F(StateTree, FixingDoesNotBringTheImagesBack)
{
    const HTREEITEM root = Add(NULL, 1);
    Repaint();
    CImageList foreign;
    Disturb(foreign, 2);
    m_tree.EnableChangeOtherItemState(root, 0);
    EXPECT_EQ(2, ImageCount());
    m_tree.SetImageList(NULL, TVSIL_STATE);
}

TEST_F(StateTree, AnOwnerThatCountsChildrenItselfIsNotMisread)
{
    const HTREEITEM root = Add(NULL, 1);
    const HTREEITEM parent = Add(root, 1);
    const HTREEITEM hidden = Add(parent, 1);
    TVITEM noButton = {};
    noButton.hItem = parent;
    noButton.mask = TVIF_CHILDREN; // the owner hides the button although there is a child
    m_tree.SetItem(&noButton);
    m_tree.SetCheck(root, 1);
    EXPECT_EQ(STATE_CHECKED, Value(hidden));
}

TEST_F(StateTree, AnOwnerThatAnswersWhetherThereAreChildrenIsNotAsked)
{
    const HTREEITEM root = Add(NULL, 1);
    TVINSERTSTRUCT insert = {};
    insert.hParent = root;
    insert.item.mask = TVIF_CHILDREN;
    insert.item.cChildren = I_CHILDRENCALLBACK;
    const HTREEITEM asked = m_tree.InsertItem(&insert);
    const HTREEITEM below = Add(asked, 1);
    int questions = 0;
    m_owner.onOther = [&](const NMHDR& header) { questions += header.code == TVN_GETDISPINFO; };
    m_tree.SetCheck(root, 1);
    EXPECT_EQ(0, questions);
    EXPECT_EQ(STATE_CHECKED, Value(asked));
    EXPECT_EQ(STATE_CHECKED, Value(below));
}

TEST_F(StateTree, AChainOfTenThousandItemsIsSetFromTopToBottom)
{
    m_tree.SetRedraw(FALSE);
    const HTREEITEM root = Add(NULL, 1);
    HTREEITEM last = root;
    for (int i = 0; i < 10000; ++i)
        last = m_tree.InsertItem(L"x", last);
    m_tree.SetCheck(root, 1);
    EXPECT_EQ(STATE_CHECKED, Value(last));
    m_tree.SetCheck(last, 0);
    EXPECT_EQ(STATE_UNCHECKED, Value(root));
    m_tree.EnableCheck(root, 0);
    EXPECT_EQ(STATE_DISABLED, Value(last));
    m_tree.EnableChangeOtherItemState(root, 0);
    EXPECT_EQ(STATE_FIXED, Value(last));
    m_tree.SetRedraw(TRUE);
}
