#include "afx/ctrl/ListBox.h"

#include "afx/ctrl/OwnerDrawnItems.h"

IMPLEMENT_DYNAMIC(CListBox, CWnd)

BOOL CListBox::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create(WC_LISTBOX, nullptr, style, rect, parent, id);
}

void CListBox::GetText(int index, CString& text) const
{
    const int length = GetTextLen(index);
    if (length == LB_ERR)
        return;
    GetText(index, text.GetBufferSetLength(length));
    text.ReleaseBuffer(length);
}

int CListBox::GetSelItems(int maxItems, LPINT indices) const
{
    return static_cast<int>(::SendMessage(m_hWnd, LB_GETSELITEMS, maxItems, LPARAM(indices)));
}

int CListBox::SelItemRange(BOOL select, int first, int last)
{
    // The message selects upwards and clears downwards: it can't clear a single item.
    if (first == last)
        return SetSel(first, select);
    return static_cast<int>(select ? ::SendMessage(m_hWnd, LB_SELITEMRANGEEX, first, last)
                                   : ::SendMessage(m_hWnd, LB_SELITEMRANGEEX, last, first));
}

UINT CListBox::ItemFromPoint(CPoint point, BOOL& outside) const
{
    const LRESULT found = ::SendMessage(m_hWnd, LB_ITEMFROMPOINT, 0, MAKELPARAM(point.x, point.y));
    outside = HIWORD(found) != 0;
    return LOWORD(found);
}

void CListBox::DrawItem(LPDRAWITEMSTRUCT) {}

void CListBox::MeasureItem(LPMEASUREITEMSTRUCT) {}

int CListBox::CompareItem(LPCOMPAREITEMSTRUCT)
{
    return 0;
}

void CListBox::DeleteItem(LPDELETEITEMSTRUCT) {}

int CListBox::VKeyToItem(UINT, UINT)
{
    return -1; // the list box does what the key stands for
}

int CListBox::CharToItem(UINT, UINT)
{
    return -1;
}

BOOL CListBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    if (afx::RouteItemMessage(*this, message, lParam, result))
        return TRUE;
    switch (message)
    {
    case WM_VKEYTOITEM:
        *result = VKeyToItem(LOWORD(wParam), HIWORD(wParam));
        return TRUE;
    case WM_CHARTOITEM:
        *result = CharToItem(LOWORD(wParam), HIWORD(wParam));
        return TRUE;
    default:
        return CWnd::OnChildNotify(message, wParam, lParam, result);
    }
}
