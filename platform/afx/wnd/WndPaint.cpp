#include <afxwin.h>

CDC* CWnd::BeginPaint(LPPAINTSTRUCT paint)
{
    return CDC::FromHandle(::BeginPaint(m_hWnd, paint));
}

CDC* CWnd::GetDC()
{
    return CDC::FromHandle(::GetDC(m_hWnd));
}

CDC* CWnd::GetWindowDC()
{
    return CDC::FromHandle(::GetWindowDC(m_hWnd));
}

CDC* CWnd::GetDCEx(CRgn* clip, DWORD flags)
{
    return CDC::FromHandle(::GetDCEx(m_hWnd, static_cast<HRGN>(clip->GetSafeHandle()), flags));
}

int CWnd::ReleaseDC(CDC* dc)
{
    return ::ReleaseDC(m_hWnd, dc->GetSafeHdc());
}

void CWnd::Print(CDC* dc, DWORD flags) const
{
    SendMessage(WM_PRINT, WPARAM(dc->GetSafeHdc()), static_cast<LPARAM>(flags));
}

void CWnd::PrintClient(CDC* dc, DWORD flags) const
{
    SendMessage(WM_PRINTCLIENT, WPARAM(dc->GetSafeHdc()), static_cast<LPARAM>(flags));
}

int CWnd::GetUpdateRgn(CRgn* region, BOOL erase)
{
    return ::GetUpdateRgn(m_hWnd, static_cast<HRGN>(region->GetSafeHandle()), erase);
}

void CWnd::InvalidateRgn(CRgn* region, BOOL erase)
{
    ::InvalidateRgn(m_hWnd, static_cast<HRGN>(region->GetSafeHandle()), erase);
}

void CWnd::ValidateRgn(CRgn* region)
{
    ::ValidateRgn(m_hWnd, static_cast<HRGN>(region->GetSafeHandle()));
}

BOOL CWnd::RedrawWindow(LPCRECT rect, CRgn* region, UINT flags)
{
    return ::RedrawWindow(m_hWnd, rect, static_cast<HRGN>(region->GetSafeHandle()), flags);
}
