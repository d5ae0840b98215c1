#include "afx/ctrl/TreeCtrl.h"

#include "afx/ctrl/ControlHandles.h"

IMPLEMENT_DYNAMIC(CTreeCtrl, CWnd)

BOOL CTreeCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create(WC_TREEVIEW, nullptr, style, rect, parent, id);
}

BOOL CTreeCtrl::CreateEx(DWORD exStyle, DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::CreateEx(exStyle, WC_TREEVIEW, nullptr, style | WS_CHILD, rect, parent, id);
}

HTREEITEM CTreeCtrl::InsertItem(LPTVINSERTSTRUCT insert)
{
    return reinterpret_cast<HTREEITEM>(::SendMessage(m_hWnd, TVM_INSERTITEM, 0, LPARAM(insert)));
}

HTREEITEM CTreeCtrl::InsertItem(UINT mask, LPCTSTR text, int image, int selectedImage, UINT state, UINT stateMask,
                                LPARAM data, HTREEITEM parent, HTREEITEM insertAfter)
{
    TVINSERTSTRUCT insert = {};
    insert.hParent = parent;
    insert.hInsertAfter = insertAfter;
    insert.item.mask = mask;
    insert.item.pszText = const_cast<LPTSTR>(text);
    insert.item.iImage = image;
    insert.item.iSelectedImage = selectedImage;
    insert.item.state = state;
    insert.item.stateMask = stateMask;
    insert.item.lParam = data;
    return InsertItem(&insert);
}

HTREEITEM CTreeCtrl::InsertItem(LPCTSTR text, HTREEITEM parent, HTREEITEM insertAfter)
{
    return InsertItem(TVIF_TEXT, text, 0, 0, 0, 0, 0, parent, insertAfter);
}

HTREEITEM CTreeCtrl::InsertItem(LPCTSTR text, int image, int selectedImage, HTREEITEM parent, HTREEITEM insertAfter)
{
    const UINT mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    return InsertItem(mask, text, image, selectedImage, 0, 0, 0, parent, insertAfter);
}

BOOL CTreeCtrl::SetItem(HTREEITEM item, UINT mask, LPCTSTR text, int image, int selectedImage, UINT state,
                        UINT stateMask, LPARAM data)
{
    TVITEM info = {};
    info.hItem = item;
    info.mask = mask;
    info.pszText = const_cast<LPTSTR>(text);
    info.iImage = image;
    info.iSelectedImage = selectedImage;
    info.state = state;
    info.stateMask = stateMask;
    info.lParam = data;
    return SetItem(&info);
}

CString CTreeCtrl::GetItemText(HTREEITEM item) const
{
    // The control doesn't tell the length: a text that fills the buffer may have been cut.
    for (int size = FirstTextLength;; size *= 2)
    {
        CString text;
        TVITEM info = {};
        info.hItem = item;
        info.mask = TVIF_TEXT;
        info.cchTextMax = size;
        info.pszText = text.GetBufferSetLength(size);
        info.pszText[0] = 0;
        GetItem(&info);
        // A control that stores the text elsewhere answers with a pointer of its own.
        const CString answer(info.pszText);
        text.ReleaseBuffer(0);
        if (answer.GetLength() < size - 1)
            return answer;
    }
}

BOOL CTreeCtrl::SetItemText(HTREEITEM item, LPCTSTR text)
{
    return SetItem(item, TVIF_TEXT, text, 0, 0, 0, 0, 0);
}

BOOL CTreeCtrl::GetItemImage(HTREEITEM item, int& image, int& selectedImage) const
{
    TVITEM info = {};
    info.hItem = item;
    info.mask = TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    const BOOL found = GetItem(&info);
    image = info.iImage;
    selectedImage = info.iSelectedImage;
    return found;
}

BOOL CTreeCtrl::SetItemImage(HTREEITEM item, int image, int selectedImage)
{
    return SetItem(item, TVIF_IMAGE | TVIF_SELECTEDIMAGE, nullptr, image, selectedImage, 0, 0, 0);
}

UINT CTreeCtrl::GetItemState(HTREEITEM item, UINT mask) const
{
    return static_cast<UINT>(::SendMessage(m_hWnd, TVM_GETITEMSTATE, WPARAM(item), mask));
}

BOOL CTreeCtrl::SetItemState(HTREEITEM item, UINT state, UINT mask)
{
    return SetItem(item, TVIF_STATE, nullptr, 0, 0, state, mask, 0);
}

DWORD_PTR CTreeCtrl::GetItemData(HTREEITEM item) const
{
    TVITEM info = {};
    info.hItem = item;
    info.mask = TVIF_PARAM;
    return GetItem(&info) ? static_cast<DWORD_PTR>(info.lParam) : 0;
}

BOOL CTreeCtrl::SetItemData(HTREEITEM item, DWORD_PTR data)
{
    return SetItem(item, TVIF_PARAM, nullptr, 0, 0, 0, 0, static_cast<LPARAM>(data));
}

BOOL CTreeCtrl::ItemHasChildren(HTREEITEM item) const
{
    TVITEM info = {};
    info.hItem = item;
    info.mask = TVIF_CHILDREN;
    GetItem(&info);
    return info.cChildren != 0;
}

BOOL CTreeCtrl::GetCheck(HTREEITEM item) const
{
    return GetItemState(item, TVIS_STATEIMAGEMASK) >> StateImageShift == CheckedImage;
}

BOOL CTreeCtrl::SetCheck(HTREEITEM item, BOOL check)
{
    const UINT image = check ? CheckedImage : UncheckedImage;
    return SetItemState(item, INDEXTOSTATEIMAGEMASK(image), TVIS_STATEIMAGEMASK);
}

HTREEITEM CTreeCtrl::GetNextItem(HTREEITEM item, UINT code) const
{
    return reinterpret_cast<HTREEITEM>(::SendMessage(m_hWnd, TVM_GETNEXTITEM, code, LPARAM(item)));
}

BOOL CTreeCtrl::GetItemRect(HTREEITEM item, LPRECT rect, BOOL textOnly) const
{
    // The message takes the item from the place of its result.
    *reinterpret_cast<UNALIGNED HTREEITEM*>(rect) = item;
    return static_cast<BOOL>(::SendMessage(m_hWnd, TVM_GETITEMRECT, textOnly, LPARAM(rect)));
}

HTREEITEM CTreeCtrl::HitTest(CPoint point, UINT* flags) const
{
    TVHITTESTINFO info = {};
    info.pt = point;
    const HTREEITEM item = HitTest(&info);
    if (flags != nullptr)
        *flags = info.flags;
    return item;
}

HTREEITEM CTreeCtrl::HitTest(TVHITTESTINFO* info) const
{
    return reinterpret_cast<HTREEITEM>(::SendMessage(m_hWnd, TVM_HITTEST, 0, LPARAM(info)));
}

CImageList* CTreeCtrl::GetImageList(UINT kind) const
{
    return ImageListOf(::SendMessage(m_hWnd, TVM_GETIMAGELIST, kind, 0));
}

CImageList* CTreeCtrl::SetImageList(CImageList* images, int kind)
{
    return ImageListOf(::SendMessage(m_hWnd, TVM_SETIMAGELIST, kind, LPARAM(images->GetSafeHandle())));
}

CImageList* CTreeCtrl::CreateDragImage(HTREEITEM item)
{
    const LRESULT handle = ::SendMessage(m_hWnd, TVM_CREATEDRAGIMAGE, 0, LPARAM(item));
    if (handle == 0)
        return nullptr;
    CImageList* images = new CImageList;
    images->Attach(reinterpret_cast<HIMAGELIST>(handle));
    return images;
}

BOOL CTreeCtrl::SetInsertMark(HTREEITEM item, BOOL after)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, TVM_SETINSERTMARK, after, LPARAM(item)));
}

CToolTipCtrl* CTreeCtrl::GetToolTips() const
{
    return ToolTipOf(::SendMessage(m_hWnd, TVM_GETTOOLTIPS, 0, 0));
}

CToolTipCtrl* CTreeCtrl::SetToolTips(CToolTipCtrl* tip)
{
    return ToolTipOf(::SendMessage(m_hWnd, TVM_SETTOOLTIPS, WPARAM(tip->GetSafeHwnd()), 0));
}

CEdit* CTreeCtrl::EditLabel(HTREEITEM item)
{
    return EditOf(::SendMessage(m_hWnd, TVM_EDITLABEL, 0, LPARAM(item)));
}

CEdit* CTreeCtrl::GetEditControl() const
{
    return EditOf(::SendMessage(m_hWnd, TVM_GETEDITCONTROL, 0, 0));
}
