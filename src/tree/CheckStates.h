// The check values of a CStateTreeCtrl and what it tells its parent.
#pragma once

#include <afxwin.h>
#include <afxcmn.h>

// The check value of an item is its state image: bits 12 to 15 of its state hold it (INDEXTOSTATEIMAGEMASK).
enum
{
    STATE_NONE = 0, // no check box
    STATE_UNCHECKED = 1,
    STATE_CHECKED = 2,
    STATE_PARTIAL = 3,  // some of the children are checked, but not all
    STATE_DISABLED = 4, // cannot be checked; skipped with its subtree when an ancestor is checked
    STATE_FIXED = 5     // keeps its value when relatives are checked; looks unchecked
};

// The user pressed a mouse button on the tree; sent for every click but those on the box of a disabled or fixed item.
// WM_NOTIFY with a bare NMHDR.
const UINT STATETREEN_CLICK = static_cast<UINT>(-1533);

// The user checked or unchecked an item by a click. WM_NOTIFY with an NMSTATETREECHECK; STATETREEN_CLICK follows.
const UINT STATETREEN_CHECKCHANGED = static_cast<UINT>(-1532);

struct NMSTATETREECHECK
{
    NMHDR hdr;
    HTREEITEM hItem; // the item that was clicked
    int bCheck;      // 1: it was checked, 0: unchecked
};
