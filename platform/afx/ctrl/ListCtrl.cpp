#include "afx/ctrl/ListCtrl.h"

#include "afx/ctrl/ControlHandles.h"

IMPLEMENT_DYNCREATE(CListCtrl, CWnd)

namespace
{
const int DefaultWidth = -1;
const int NoSubItem = -1;
} // namespace

CListCtrl::CListCtrl() = default;

CListCtrl::~CListCtrl()
{
    m_header.m_hWnd = nullptr; // the window belongs to the list
}

BOOL CListCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create(WC_LISTVIEW, nullptr, style, rect, parent, id);
}

BOOL CListCtrl::CreateEx(DWORD exStyle, DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::CreateEx(exStyle, WC_LISTVIEW, nullptr, style | WS_CHILD, rect, parent, id);
}

BOOL CListCtrl::SetItemCountEx(int count, DWORD flags)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, LVM_SETITEMCOUNT, count, flags));
}

int CListCtrl::InsertItem(int row, LPCTSTR text)
{
    return InsertItem(LVIF_TEXT, row, text, 0, 0, 0, 0);
}

int CListCtrl::InsertItem(int row, LPCTSTR text, int image)
{
    return InsertItem(LVIF_TEXT | LVIF_IMAGE, row, text, 0, 0, image, 0);
}

int CListCtrl::InsertItem(UINT mask, int row, LPCTSTR text, UINT state, UINT stateMask, int image, LPARAM data)
{
    LVITEM item = {};
    item.mask = mask;
    item.iItem = row;
    item.pszText = const_cast<LPTSTR>(text);
    item.state = state;
    item.stateMask = stateMask;
    item.iImage = image;
    item.lParam = data;
    return InsertItem(&item);
}

BOOL CListCtrl::SetItem(int row, int column, UINT mask, LPCTSTR text, int image, UINT state, UINT stateMask,
                        LPARAM data)
{
    return SetItem(row, column, mask, text, image, state, stateMask, data, 0);
}

BOOL CListCtrl::SetItem(int row, int column, UINT mask, LPCTSTR text, int image, UINT state, UINT stateMask,
                        LPARAM data, int indent)
{
    LVITEM item = {};
    item.mask = mask;
    item.iItem = row;
    item.iSubItem = column;
    item.pszText = const_cast<LPTSTR>(text);
    item.iImage = image;
    item.state = state;
    item.stateMask = stateMask;
    item.lParam = data;
    item.iIndent = indent;
    return SetItem(&item);
}

CString CListCtrl::GetItemText(int row, int column) const
{
    // A text that fills the buffer may have been cut.
    for (int size = FirstTextLength;; size *= 2)
    {
        CString text;
        const int length = GetItemText(row, column, text.GetBufferSetLength(size), size);
        text.ReleaseBuffer(length);
        if (length < size - 1)
            return text;
    }
}

int CListCtrl::GetItemText(int row, int column, LPTSTR text, int maxLength) const
{
    LVITEM item = {};
    item.iSubItem = column;
    item.pszText = text;
    item.cchTextMax = maxLength;
    text[0] = 0;
    return static_cast<int>(::SendMessage(m_hWnd, LVM_GETITEMTEXT, row, LPARAM(&item)));
}

BOOL CListCtrl::SetItemText(int row, int column, LPCTSTR text)
{
    LVITEM item = {};
    item.iSubItem = column;
    item.pszText = const_cast<LPTSTR>(text);
    return static_cast<BOOL>(::SendMessage(m_hWnd, LVM_SETITEMTEXT, row, LPARAM(&item)));
}

DWORD_PTR CListCtrl::GetItemData(int row) const
{
    LVITEM item = {};
    item.mask = LVIF_PARAM;
    item.iItem = row;
    return GetItem(&item) ? static_cast<DWORD_PTR>(item.lParam) : 0;
}

BOOL CListCtrl::SetItemData(int row, DWORD_PTR data)
{
    return SetItem(row, 0, LVIF_PARAM, nullptr, 0, 0, 0, static_cast<LPARAM>(data));
}

BOOL CListCtrl::SetItemState(int row, UINT state, UINT mask)
{
    LVITEM item = {};
    item.state = state;
    item.stateMask = mask;
    return SetItemState(row, &item);
}

BOOL CListCtrl::GetCheck(int row) const
{
    return GetItemState(row, LVIS_STATEIMAGEMASK) >> StateImageShift == CheckedImage;
}

BOOL CListCtrl::SetCheck(int row, BOOL check)
{
    const UINT image = check ? CheckedImage : UncheckedImage;
    return SetItemState(row, INDEXTOSTATEIMAGEMASK(image), LVIS_STATEIMAGEMASK);
}

// A position is the row number plus one, so that NULL means "no more".
POSITION CListCtrl::GetFirstSelectedItemPosition() const
{
    return reinterpret_cast<POSITION>(static_cast<INT_PTR>(GetNextItem(-1, LVNI_SELECTED) + 1));
}

int CListCtrl::GetNextSelectedItem(POSITION& position) const
{
    const int row = static_cast<int>(reinterpret_cast<INT_PTR>(position)) - 1;
    position = reinterpret_cast<POSITION>(static_cast<INT_PTR>(GetNextItem(row, LVNI_SELECTED) + 1));
    return row;
}

BOOL CListCtrl::SortItemsEx(PFNLVCOMPARE compare, DWORD_PTR data)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, LVM_SORTITEMSEX, data, LPARAM(compare)));
}

int CListCtrl::InsertColumn(int column, LPCTSTR heading, int format, int width, int subItem)
{
    LVCOLUMN info = {};
    info.mask = LVCF_TEXT | LVCF_FMT;
    info.pszText = const_cast<LPTSTR>(heading);
    info.fmt = format;
    info.mask |= width == DefaultWidth ? 0 : LVCF_WIDTH;
    info.cx = width;
    info.mask |= subItem == NoSubItem ? 0 : LVCF_SUBITEM;
    info.iSubItem = subItem;
    return InsertColumn(column, &info);
}

BOOL CListCtrl::GetColumnOrderArray(LPINT order, int count)
{
    const int columns = count < 0 ? GetHeaderCtrl()->GetItemCount() : count;
    return static_cast<BOOL>(::SendMessage(m_hWnd, LVM_GETCOLUMNORDERARRAY, columns, LPARAM(order)));
}

BOOL CListCtrl::SetColumnOrderArray(int count, LPINT order)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, LVM_SETCOLUMNORDERARRAY, count, LPARAM(order)));
}

CHeaderCtrl* CListCtrl::GetHeaderCtrl()
{
    const HWND header = reinterpret_cast<HWND>(::SendMessage(m_hWnd, LVM_GETHEADER, 0, 0));
    if (header == nullptr)
        return nullptr;
    if (CHeaderCtrl* owner = DYNAMIC_DOWNCAST(CHeaderCtrl, CWnd::FromHandlePermanent(header)))
        return owner;
    m_header.m_hWnd = header;
    return &m_header;
}

BOOL CListCtrl::GetItemRect(int row, LPRECT rect, UINT code) const
{
    rect->left = static_cast<LONG>(code);
    return static_cast<BOOL>(::SendMessage(m_hWnd, LVM_GETITEMRECT, row, LPARAM(rect)));
}

BOOL CListCtrl::GetSubItemRect(int row, int column, int area, CRect& rect) const
{
    RECT found = {};
    found.top = column;
    found.left = area;
    const BOOL answered = static_cast<BOOL>(::SendMessage(m_hWnd, LVM_GETSUBITEMRECT, row, LPARAM(&found)));
    if (answered)
        rect = found;
    return answered;
}

int CListCtrl::HitTest(CPoint point, UINT* flags) const
{
    LVHITTESTINFO info = {};
    info.pt = point;
    const int row = HitTest(&info);
    if (flags != nullptr)
        *flags = info.flags;
    return row;
}

CImageList* CListCtrl::GetImageList(int kind) const
{
    return ImageListOf(::SendMessage(m_hWnd, LVM_GETIMAGELIST, kind, 0));
}

CImageList* CListCtrl::SetImageList(CImageList* images, int kind)
{
    return ImageListOf(::SendMessage(m_hWnd, LVM_SETIMAGELIST, kind, LPARAM(images->GetSafeHandle())));
}

CToolTipCtrl* CListCtrl::GetToolTips() const
{
    return ToolTipOf(::SendMessage(m_hWnd, LVM_GETTOOLTIPS, 0, 0));
}

CToolTipCtrl* CListCtrl::SetToolTips(CToolTipCtrl* tip)
{
    return ToolTipOf(::SendMessage(m_hWnd, LVM_SETTOOLTIPS, WPARAM(tip->GetSafeHwnd()), 0));
}

CEdit* CListCtrl::EditLabel(int row)
{
    return EditOf(::SendMessage(m_hWnd, LVM_EDITLABEL, row, 0));
}

CEdit* CListCtrl::GetEditControl() const
{
    return EditOf(::SendMessage(m_hWnd, LVM_GETEDITCONTROL, 0, 0));
}

void CListCtrl::DrawItem(LPDRAWITEMSTRUCT) {}

BOOL CListCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    if (message != WM_DRAWITEM)
        return CWnd::OnChildNotify(message, wParam, lParam, result);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}
