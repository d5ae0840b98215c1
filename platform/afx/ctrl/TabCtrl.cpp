#include "afx/ctrl/TabCtrl.h"

#include "afx/ctrl/ToolTipCtrl.h"
#include "afx/gdi/ImageList.h"

IMPLEMENT_DYNAMIC(CTabCtrl, CWnd)

BOOL CTabCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create(WC_TABCONTROL, nullptr, style, rect, parent, id);
}

LONG CTabCtrl::InsertItem(int index, LPCTSTR text)
{
    return InsertItem(TCIF_TEXT, index, text, 0, 0);
}

LONG CTabCtrl::InsertItem(int index, LPCTSTR text, int image)
{
    return InsertItem(TCIF_TEXT | TCIF_IMAGE, index, text, image, 0);
}

LONG CTabCtrl::InsertItem(UINT mask, int index, LPCTSTR text, int image, LPARAM data)
{
    TCITEM item = {};
    item.mask = mask;
    item.pszText = const_cast<LPTSTR>(text);
    item.iImage = image;
    item.lParam = data;
    return InsertItem(index, &item);
}

CSize CTabCtrl::SetItemSize(CSize size)
{
    const LRESULT previous = ::SendMessage(m_hWnd, TCM_SETITEMSIZE, 0, MAKELPARAM(size.cx, size.cy));
    return CSize(LOWORD(previous), HIWORD(previous));
}

BOOL CTabCtrl::HighlightItem(int index, BOOL highlight)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, TCM_HIGHLIGHTITEM, index, MAKELPARAM(highlight, 0)));
}

CImageList* CTabCtrl::GetImageList() const
{
    return CImageList::FromHandle(reinterpret_cast<HIMAGELIST>(::SendMessage(m_hWnd, TCM_GETIMAGELIST, 0, 0)));
}

CImageList* CTabCtrl::SetImageList(CImageList* images)
{
    const LPARAM handle = LPARAM(images->GetSafeHandle());
    return CImageList::FromHandle(reinterpret_cast<HIMAGELIST>(::SendMessage(m_hWnd, TCM_SETIMAGELIST, 0, handle)));
}

CToolTipCtrl* CTabCtrl::GetToolTips() const
{
    const HWND tip = reinterpret_cast<HWND>(::SendMessage(m_hWnd, TCM_GETTOOLTIPS, 0, 0));
    return static_cast<CToolTipCtrl*>(CWnd::FromHandle(tip));
}

void CTabCtrl::SetToolTips(CToolTipCtrl* tip)
{
    ::SendMessage(m_hWnd, TCM_SETTOOLTIPS, WPARAM(tip->GetSafeHwnd()), 0);
}

void CTabCtrl::DrawItem(LPDRAWITEMSTRUCT) {}

BOOL CTabCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    if (message != WM_DRAWITEM)
        return CWnd::OnChildNotify(message, wParam, lParam, result);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}
