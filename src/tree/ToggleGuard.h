// Guard: while the native tree works on a key or a press of the mouse, the check box of one item keeps its value
// against the native control.
//
// A tree with TVS_CHECKBOXES cycles the state image of an item by itself. Depending on the version it does so whatever
// its notification was answered, and on double clicks without one. What the owner sets meanwhile stays: the tree
// reports it with KeepNew.
//
// Guards of nested messages form a chain, whose innermost one the tree holds.
#pragma once

#include <afxwin.h>
#include <afxcmn.h>

class CToggleGuard
{
public:
    CToggleGuard(CTreeCtrl& tree, CToggleGuard*& innermost, HTREEITEM item);
    ~CToggleGuard();

    // A message is about to change an item.
    static void KeepNew(CToggleGuard* innermost, const TVITEM& change);
    // An item does not exist any more.
    static void Forget(CToggleGuard* innermost, HTREEITEM item);
    // The tree object itself goes away.
    static void Abandon(CToggleGuard* innermost);

private:
    CToggleGuard(const CToggleGuard&);
    CToggleGuard& operator=(const CToggleGuard&);

    CTreeCtrl* m_tree; // null when it is gone
    CToggleGuard** m_innermost;
    CToggleGuard* m_outer;
    HTREEITEM m_item; // null when it is gone
    UINT m_wanted;    // the bits of the state image
};
