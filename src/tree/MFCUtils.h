// What dialogs do again and again with trees and windows, and the named icons of the suite.
//
// Trees and windows that do not exist are accepted: nothing is found, deleted or sent. The companion module has a
// namespace of this name as well (ZNKTPub.h).
#pragma once

#include <vector>

#include <afxwin.h>
#include <afxcmn.h>
#include <afxcoll.h>

#include "base/ZnktApi.h"

namespace MFCUtils
{

// Deletes all children of an item with what is below them; the item stays. Answers how many direct children there were.
// TVI_ROOT deletes all items; null deletes nothing.
ZNKT_API int DeleteTreeChildItems(CTreeCtrl* pTree, HTREEITEM hParent);

// The first item below `hParent` (null: of the whole tree), in the order in which a fully open tree shows them, that
// has this item data. The item itself is not tested. Null where there is none.
ZNKT_API HTREEITEM FindTreeItem(const CTreeCtrl* pTree, DWORD_PTR dwData, HTREEITEM hParent);

// The same by text, letter case ignored. Other than above the item itself is tested first, and null is an item with an
// empty text: an empty text searched from null finds null. A null text finds nothing.
ZNKT_API HTREEITEM FindTreeItem(const CTreeCtrl* pTree, const wchar_t* pszText, HTREEITEM hItem);

// Follows a path of places among siblings, from 0, downwards from `hItem` (null: from above the first items). An empty
// path answers hItem. Null where the path leaves the tree. A negative place counts as 0.
ZNKT_API HTREEITEM FindTreeItem(const CTreeCtrl* pTree, const std::vector<int>& path, HTREEITEM hItem);

// Sends a window WM_SIZE with the size that it has, so that it lays itself out. Answers the result of the message.
ZNKT_API int SendSizeMessageManual(CWnd* pWnd);

// Loads the icons of these resource names from ZNKTRes.dll in the suite's folder, cx by cy pixels each. Answers the
// number of names; an icon that could not be loaded is null. `pIcons` has room for one icon a name, which the caller
// destroys (DestroyIcon); null loads nothing.
ZNKT_API int LoadIcons(CStringArray& names, HICON* pIcons, int cx, int cy);

} // namespace MFCUtils
