// Clicks and keys, what the parent is told, and owners that change the tree meanwhile.
#include "StateTreeFixture.h"

#include <memory>

namespace
{

class StateTreeClicks : public StateTreeFixture
{
protected:
    StateTreeClicks()
    {
        m_root = Add(NULL, 1);
        m_children = AddAll(m_root, {1, 1, 1});
        ExpandAll();
    }

    void Set(HTREEITEM item, int value)
    {
        m_tree.SetItemState(item, INDEXTOSTATEIMAGEMASK(value), TVIS_STATEIMAGEMASK);
    }

    int ImageCount() const
    {
        const LRESULT list = ::SendMessage(m_tree.m_hWnd, TVM_GETIMAGELIST, TVSIL_STATE, 0);
        return list == 0 ? -1 : ::ImageList_GetImageCount(reinterpret_cast<HIMAGELIST>(list));
    }

    // What the handler answers to a click of the cursor's place.
    LRESULT SendClickNotification()
    {
        NMHDR header = {m_tree.m_hWnd, kTreeId, static_cast<UINT>(NM_CLICK)};
        return m_owner.SendMessage(WM_NOTIFY, kTreeId, reinterpret_cast<LPARAM>(&header));
    }

    HTREEITEM m_root;
    Items m_children;
};

// Does something once, while an item of the tree is being set: what an owner may do that hears of every change.
class MeddledTree : public CStateTreeCtrl
{
public:
    HTREEITEM trigger = NULL;
    std::function<void()> meddle;

protected:
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        const LRESULT result = CStateTreeCtrl::DefWindowProc(message, wParam, lParam);
        if (message == TVM_SETITEM && trigger != NULL && reinterpret_cast<const TVITEM*>(lParam)->hItem == trigger)
        {
            trigger = NULL;
            meddle();
        }
        return result;
    }
};

} // namespace

TEST_F(StateTreeClicks, AClickOnABoxChecksAndTheNextOneUnchecks)
{
    ClickBox(m_children[0]);
    EXPECT_EQ((Ints{2, 1, 1}), Values(m_children));
    EXPECT_EQ(STATE_PARTIAL, Value(m_root));
    ClickBox(m_children[0]);
    EXPECT_EQ((Ints{1, 1, 1}), Values(m_children));
    EXPECT_EQ(STATE_UNCHECKED, Value(m_root));
}

TEST_F(StateTreeClicks, AClickOnABoxTellsTheChangeAndThenTheClick)
{
    ClickBox(m_children[1]);
    ASSERT_EQ((CodeList{STATETREEN_CHECKCHANGED, STATETREEN_CLICK}), Codes());
    EXPECT_EQ(m_children[1], m_owner.told[0].item);
    EXPECT_EQ(1, m_owner.told[0].check);
    for (const StateTreeOwner::Told& one : m_owner.told)
    {
        EXPECT_EQ(m_tree.m_hWnd, one.from);
        EXPECT_EQ(kTreeId, one.id);
        EXPECT_EQ(kTreeId, one.wParam);
    }
    ClickBox(m_children[1]);
    ASSERT_EQ(4u, m_owner.told.size());
    EXPECT_EQ(m_children[1], m_owner.told[2].item);
    EXPECT_EQ(0, m_owner.told[2].check);
}

TEST_F(StateTreeClicks, TheNumbersOfTheNotifications)
{
    EXPECT_EQ(0xFFFFFA03u, STATETREEN_CLICK);
    EXPECT_EQ(0xFFFFFA04u, STATETREEN_CHECKCHANGED);
}

TEST_F(StateTreeClicks, TheParentHearsOfTheChangeWhenItIsDone)
{
    Ints seen;
    m_owner.onTold = [&](const StateTreeOwner::Told& one) {
        if (one.code == STATETREEN_CHECKCHANGED)
            seen = Values({m_root, m_children[0], m_children[2]});
    };
    ClickBox(m_root);
    EXPECT_EQ((Ints{2, 2, 2}), seen);
}

TEST_F(StateTreeClicks, AClickOnTheLabelOnlyTellsTheClick)
{
    Click(LabelOf(m_children[0]));
    EXPECT_EQ((CodeList{STATETREEN_CLICK}), Codes());
    EXPECT_EQ((Ints{1, 1, 1}), Values(m_children));
    EXPECT_EQ(m_children[0], m_tree.GetSelectedItem());
}

TEST_F(StateTreeClicks, AClickBelowTheItemsOnlyTellsTheClick)
{
    PutUnderCursor(CPoint(150, 370));
    EXPECT_EQ(0, SendClickNotification());
    EXPECT_EQ((CodeList{STATETREEN_CLICK}), Codes());
}

TEST_F(StateTreeClicks, TheNativeToggleIsForbiddenOnABoxOnly)
{
    PutUnderCursor(BoxOf(m_children[0]));
    EXPECT_EQ(1, SendClickNotification());
    PutUnderCursor(LabelOf(m_children[0]));
    EXPECT_EQ(0, SendClickNotification());
    Set(m_children[1], 4);
    PutUnderCursor(BoxOf(m_children[1]));
    EXPECT_EQ(1, SendClickNotification());
}

TEST_F(StateTreeClicks, AClickOnADisabledOrFixedBoxChangesNothingAndTellsNothing)
{
    for (int value : {4, 5})
    {
        Set(m_children[0], value);
        Set(m_children[1], value);
        const HTREEITEM below = Add(m_children[1], 1);
        ClickBox(m_children[0]);
        ClickBox(m_children[1]);
        EXPECT_EQ((Ints{value, value, 1}), Values(m_children));
        EXPECT_EQ(STATE_UNCHECKED, Value(below));
        EXPECT_EQ(STATE_UNCHECKED, Value(m_root));
    }
    EXPECT_TRUE(m_owner.told.empty());
}

TEST_F(StateTreeClicks, AClickOnAPartialBoxUnchecksItsSubtree)
{
    Set(m_root, 3);
    Set(m_children[1], 2);
    ClickBox(m_root);
    EXPECT_EQ(STATE_UNCHECKED, Value(m_root));
    EXPECT_EQ((Ints{1, 1, 1}), Values(m_children));
    ASSERT_EQ(2u, m_owner.told.size());
    EXPECT_EQ(0, m_owner.told[0].check);
}

TEST_F(StateTreeClicks, ADoubleClickOnABoxCountsOnce)
{
    ClickBox(m_children[0]);
    Click(BoxOf(m_children[0]), WM_LBUTTONDBLCLK);
    EXPECT_EQ((Ints{2, 1, 1}), Values(m_children));
    EXPECT_EQ(STATE_PARTIAL, Value(m_root));
    EXPECT_EQ(2u, m_owner.told.size());
}

TEST_F(StateTreeClicks, APressWhoseCursorIsElsewhereDoesNotToggleByTheWay)
{
    PutUnderCursor(LabelOf(m_children[0]));
    const CPoint box = BoxOf(m_children[0]);
    const LPARAM at = MAKELPARAM(box.x, box.y);
    m_tree.PostMessage(WM_LBUTTONUP, 0, at);
    m_tree.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, at);
    m_tree.SendMessage(WM_LBUTTONUP, 0, at);
    EXPECT_EQ((Ints{1, 1, 1}), Values(m_children));
    EXPECT_EQ((CodeList{STATETREEN_CLICK}), Codes());
}

TEST_F(StateTreeClicks, SpaceTogglesTheSelectedItemOnceAndTellsNothing)
{
    m_tree.SelectItem(m_children[0]);
    PressSpace();
    EXPECT_EQ((Ints{2, 1, 1}), Values(m_children));
    EXPECT_EQ(STATE_PARTIAL, Value(m_root));
    PressSpace();
    EXPECT_EQ((Ints{1, 1, 1}), Values(m_children));
    EXPECT_EQ(STATE_UNCHECKED, Value(m_root));
    EXPECT_TRUE(m_owner.told.empty());
}

TEST_F(StateTreeClicks, WhatSpaceMakesOfEachValue)
{
    struct Row
    {
        const char* name;
        int before;
        int after;
    };
    const Row rows[] = {{"no box", 0, 2},  {"unchecked", 1, 2}, {"checked", 2, 1},
                        {"partial", 3, 1}, {"disabled", 4, 4},  {"fixed becomes an ordinary unchecked item", 5, 1}};
    for (const Row& row : rows)
    {
        const HTREEITEM item = Add(NULL, row.before);
        m_tree.SelectItem(item);
        PressSpace();
        EXPECT_EQ(row.after, Value(item)) << row.name;
    }
}

TEST_F(StateTreeClicks, SpaceOnAParentSetsItsSubtree)
{
    m_tree.SelectItem(m_root);
    PressSpace();
    EXPECT_EQ(STATE_CHECKED, Value(m_root));
    EXPECT_EQ((Ints{2, 2, 2}), Values(m_children));
}

TEST_F(StateTreeClicks, SpaceWithoutASelectionDoesNothing)
{
    m_tree.SelectItem(NULL);
    PressSpace();
    EXPECT_EQ((Ints{1, 1, 1}), Values(m_children));
}

TEST_F(StateTreeClicks, OtherKeysDoNotToggle)
{
    m_tree.SelectItem(m_root);
    for (UINT key : {VK_DOWN, VK_UP, VK_RETURN, int('A')})
        m_tree.SendMessage(WM_KEYDOWN, key, 1);
    EXPECT_EQ(STATE_UNCHECKED, Value(m_root));
    EXPECT_EQ((Ints{1, 1, 1}), Values(m_children));
}

TEST_F(StateTreeClicks, TheKeyStaysWithTheNativeTree)
{
    NMTVKEYDOWN key = {};
    key.hdr.hwndFrom = m_tree.m_hWnd;
    key.hdr.idFrom = kTreeId;
    key.hdr.code = static_cast<UINT>(TVN_KEYDOWN);
    key.wVKey = VK_SPACE;
    m_tree.SelectItem(m_children[0]);
    EXPECT_EQ(0, m_owner.SendMessage(WM_NOTIFY, kTreeId, reinterpret_cast<LPARAM>(&key)));
}

TEST_F(StateTreeClicks, AnInputBringsTheImagesBackBelowFour)
{
    struct Row
    {
        int images;
        int after;
    };
    // Items that cannot be set do not come to the other threshold of six images.
    Set(m_children[0], 4);
    const CPoint box = BoxOf(m_children[0]);
    for (const Row& row : {Row{0, 6}, Row{3, 6}, Row{4, 4}, Row{5, 5}})
    {
        CImageList foreign;
        foreign.Create(16, 16, ILC_COLOR24 | ILC_MASK, 6, 0);
        foreign.SetImageCount(6);
        m_tree.SetImageList(&foreign, TVSIL_STATE);
        foreign.SetImageCount(row.images);
        PutUnderCursor(box);
        SendClickNotification();
        EXPECT_EQ(row.after, ImageCount()) << row.images << " images, click";
        m_tree.SetImageList(NULL, TVSIL_STATE);
    }
}

TEST_F(StateTreeClicks, TheOwnerMayCheckTheClickedItemDifferently)
{
    // What the owner sets in a notification stays, against the native toggle as well.
    m_owner.onTold = [&](const StateTreeOwner::Told& one) {
        if (one.code == STATETREEN_CHECKCHANGED)
            m_tree.SetCheck(one.item, 0);
    };
    ClickBox(m_children[0]);
    EXPECT_EQ(STATE_UNCHECKED, Value(m_children[0]));
    m_owner.onTold = [&](const StateTreeOwner::Told& one) {
        if (one.code == STATETREEN_CLICK)
            m_tree.EnableCheck(m_children[1], 0);
    };
    ClickBox(m_children[1]);
    EXPECT_EQ(STATE_DISABLED, Value(m_children[1]));
}

TEST_F(StateTreeClicks, TheOwnerMayDeleteTheItemInTheCheckChange)
{
    m_owner.onTold = [&](const StateTreeOwner::Told& one) {
        if (one.code == STATETREEN_CHECKCHANGED)
            m_tree.DeleteItem(one.item);
    };
    ClickBox(m_children[0]);
    EXPECT_EQ((CodeList{STATETREEN_CHECKCHANGED, STATETREEN_CLICK}), Codes());
    EXPECT_EQ(3u, m_tree.GetCount());
    EXPECT_EQ((Ints{1, 1}), Values({m_children[1], m_children[2]}));
}

// The native tree gives the place of a deleted item, and with it its handle, to a later one.
TEST_F(StateTreeClicks, AnItemThatComesInThePlaceOfTheDeletedOneKeepsItsValue)
{
    HTREEITEM later = NULL;
    m_owner.onTold = [&](const StateTreeOwner::Told& one) {
        if (one.code != STATETREEN_CHECKCHANGED)
            return;
        m_tree.DeleteItem(one.item);
        for (int i = 0; i < 1000 && later != one.item; ++i)
            later = m_tree.InsertItem(L"later", m_root);
        m_owner.onTold = nullptr;
    };
    const HTREEITEM deleted = m_children[0];
    ClickBox(deleted);
    if (later != deleted)
        GTEST_SKIP() << "no later item got the handle";
    EXPECT_EQ(STATE_UNCHECKED, Value(later));
}

TEST_F(StateTreeClicks, TheOwnerMayDeleteTheItemInTheClick)
{
    m_owner.onTold = [&](const StateTreeOwner::Told& one) {
        if (one.code == STATETREEN_CLICK)
            m_tree.DeleteItem(m_children[0]);
    };
    ClickBox(m_children[0]);
    EXPECT_EQ(3u, m_tree.GetCount());
}

TEST_F(StateTreeClicks, TheOwnerMayEmptyTheTreeInEither)
{
    for (UINT code : {STATETREEN_CHECKCHANGED, STATETREEN_CLICK})
    {
        const HTREEITEM item = Add(NULL, 1);
        m_tree.UpdateWindow();
        m_owner.onTold = [&](const StateTreeOwner::Told& one) {
            if (one.code == code)
                m_tree.DeleteAllItems();
        };
        ClickBox(item);
        EXPECT_EQ(0u, m_tree.GetCount());
    }
}

TEST_F(StateTreeClicks, AfterTheWindowIsGoneTheClickIsNotTold)
{
    m_owner.onTold = [&](const StateTreeOwner::Told&) { m_tree.DestroyWindow(); };
    PutUnderCursor(BoxOf(m_children[0]));
    SendClickNotification();
    EXPECT_EQ((CodeList{STATETREEN_CHECKCHANGED}), Codes());
    EXPECT_EQ(nullptr, m_tree.m_hWnd);
}

TEST_F(StateTreeClicks, TheOwnerMayDestroyTheTreeInTheClick)
{
    m_owner.onTold = [&](const StateTreeOwner::Told& one) {
        if (one.code == STATETREEN_CLICK)
            m_tree.DestroyWindow();
    };
    PutUnderCursor(BoxOf(m_children[0]));
    SendClickNotification();
    EXPECT_EQ((CodeList{STATETREEN_CHECKCHANGED, STATETREEN_CLICK}), Codes());
    EXPECT_EQ(nullptr, m_tree.m_hWnd);
}

TEST_F(StateTreeClicks, TheOwnerMayDestroyTheTreeWhileTheNativeControlWorksOnThePress)
{
    for (UINT code : {STATETREEN_CHECKCHANGED, STATETREEN_CLICK})
    {
        CStateTreeCtrl tree;
        tree.Create(kStyle, Place(), &m_owner, 12);
        const HTREEITEM item = tree.InsertItem(L"item");
        tree.UpdateWindow();
        CRect label;
        tree.GetItemRect(item, &label, TRUE);
        const CPoint box(label.left - 10, label.CenterPoint().y);
        PutUnderCursor(tree, box);
        m_owner.onTold = [&](const StateTreeOwner::Told& one) {
            if (one.code == code)
                tree.DestroyWindow();
        };
        const HWND window = tree.m_hWnd;
        ::PostMessage(window, WM_LBUTTONUP, 0, MAKELPARAM(box.x, box.y));
        ::SendMessage(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(box.x, box.y));
        EXPECT_EQ(nullptr, tree.m_hWnd);
    }
}

TEST_F(StateTreeClicks, TheOwnerMayDeleteTheTreeObjectInTheCheckChange)
{
    std::unique_ptr<CStateTreeCtrl> tree(new CStateTreeCtrl);
    m_tree.DestroyWindow();
    tree->Create(kStyle, Place(), &m_owner, kTreeId);
    const HTREEITEM item = tree->InsertItem(L"item");
    tree->UpdateWindow();
    CRect label;
    tree->GetItemRect(item, &label, TRUE);
    CPoint box(label.left - 10, label.CenterPoint().y);
    UINT where = 0;
    ASSERT_EQ(item, tree->HitTest(box, &where));
    ASSERT_NE(0u, where & TVHT_ONITEMSTATEICON);
    PutUnderCursor(*tree, box);
    m_owner.onTold = [&](const StateTreeOwner::Told&) { tree.reset(); };
    NMHDR header = {tree->m_hWnd, kTreeId, static_cast<UINT>(NM_CLICK)};
    m_owner.SendMessage(WM_NOTIFY, kTreeId, reinterpret_cast<LPARAM>(&header));
    EXPECT_EQ(nullptr, tree);
    EXPECT_EQ((CodeList{STATETREEN_CHECKCHANGED}), Codes());
}

TEST_F(StateTreeClicks, ItemsThatVanishWhileTheSubtreeIsSetEndTheSetting)
{
    MeddledTree tree;
    tree.Create(kStyle, Place(), &m_owner, 12);
    const HTREEITEM root = tree.InsertItem(L"root");
    const HTREEITEM first = tree.InsertItem(L"first", root);
    tree.InsertItem(L"below", first);
    const HTREEITEM second = tree.InsertItem(L"second", root);
    const HTREEITEM last = tree.InsertItem(L"last", root);
    tree.trigger = first;
    tree.meddle = [&] { tree.DeleteItem(second); };
    EXPECT_NE(0, tree.SetCheck(root, 1));
    EXPECT_EQ((Ints{2, 2, 1}), (Ints{ValueIn(tree, root), ValueIn(tree, first), ValueIn(tree, last)}));
    tree.trigger = root;
    tree.meddle = [&] { tree.DeleteItem(root); };
    tree.SetCheck(root, 0);
    EXPECT_EQ(0u, tree.GetCount());
}

TEST_F(StateTreeClicks, ItemsThatVanishWhileTheyAreEnabledOrFixedEndIt)
{
    for (bool enable : {true, false})
    {
        MeddledTree tree;
        tree.Create(kStyle, Place(), &m_owner, 12);
        const HTREEITEM root = tree.InsertItem(L"root");
        const HTREEITEM first = tree.InsertItem(L"first", root);
        const HTREEITEM last = tree.InsertItem(L"last", root);
        tree.trigger = first;
        tree.meddle = [&] { tree.DeleteItem(first); };
        if (enable)
            tree.EnableCheck(root, 0);
        else
            tree.EnableChangeOtherItemState(root, 0);
        EXPECT_EQ(2u, tree.GetCount());
        EXPECT_EQ(STATE_UNCHECKED, ValueIn(tree, last));
    }
}

TEST_F(StateTreeClicks, AncestorsThatVanishOnTheWayUpEndIt)
{
    MeddledTree tree;
    tree.Create(kStyle, Place(), &m_owner, 12);
    const HTREEITEM root = tree.InsertItem(L"root");
    const HTREEITEM middle = tree.InsertItem(L"middle", root);
    const HTREEITEM leaf = tree.InsertItem(L"leaf", middle);
    tree.trigger = middle;
    tree.meddle = [&] { tree.DeleteAllItems(); };
    EXPECT_NE(0, tree.SetCheck(leaf, 1));
    EXPECT_EQ(0u, tree.GetCount());
}

TEST_F(StateTreeClicks, TheWindowMayVanishWhileTheSubtreeIsSet)
{
    MeddledTree tree;
    tree.Create(kStyle, Place(), &m_owner, 12);
    const HTREEITEM root = tree.InsertItem(L"root");
    tree.InsertItem(L"first", root);
    tree.trigger = root;
    tree.meddle = [&] { tree.DestroyWindow(); };
    tree.SetCheck(root, 1);
    EXPECT_EQ(nullptr, tree.m_hWnd);
}
