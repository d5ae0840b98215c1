#include "afx/ctrl/HeaderCtrl.h"

#include "afx/gdi/ImageList.h"

IMPLEMENT_DYNAMIC(CHeaderCtrl, CWnd)

BOOL CHeaderCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create(WC_HEADER, nullptr, style, rect, parent, id);
}

BOOL CHeaderCtrl::GetOrderArray(LPINT order, int count)
{
    const int items = count < 0 ? GetItemCount() : count;
    return static_cast<BOOL>(::SendMessage(m_hWnd, HDM_GETORDERARRAY, items, LPARAM(order)));
}

CImageList* CHeaderCtrl::GetImageList() const
{
    return CImageList::FromHandle(reinterpret_cast<HIMAGELIST>(::SendMessage(m_hWnd, HDM_GETIMAGELIST, 0, 0)));
}

CImageList* CHeaderCtrl::SetImageList(CImageList* images)
{
    const LPARAM handle = LPARAM(images->GetSafeHandle());
    return CImageList::FromHandle(reinterpret_cast<HIMAGELIST>(::SendMessage(m_hWnd, HDM_SETIMAGELIST, 0, handle)));
}

void CHeaderCtrl::DrawItem(LPDRAWITEMSTRUCT) {}

BOOL CHeaderCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    if (message != WM_DRAWITEM)
        return CWnd::OnChildNotify(message, wParam, lParam, result);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}
