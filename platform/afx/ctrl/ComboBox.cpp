#include "afx/ctrl/ComboBox.h"

#include "afx/ctrl/OwnerDrawnItems.h"

IMPLEMENT_DYNAMIC(CComboBox, CWnd)

BOOL CComboBox::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create(WC_COMBOBOX, nullptr, style, rect, parent, id);
}

void CComboBox::GetLBText(int index, CString& text) const
{
    const int length = GetLBTextLen(index);
    if (length == CB_ERR)
        return;
    GetLBText(index, text.GetBufferSetLength(length));
    text.ReleaseBuffer(length);
}

void CComboBox::DrawItem(LPDRAWITEMSTRUCT) {}

void CComboBox::MeasureItem(LPMEASUREITEMSTRUCT) {}

int CComboBox::CompareItem(LPCOMPAREITEMSTRUCT)
{
    return 0;
}

void CComboBox::DeleteItem(LPDELETEITEMSTRUCT) {}

BOOL CComboBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    return afx::RouteItemMessage(*this, message, lParam, result) ||
           CWnd::OnChildNotify(message, wParam, lParam, result);
}
