#include <afxwin.h>

void CWnd::SetWindowText(LPCTSTR text)
{
    ::SetWindowText(m_hWnd, text);
}

void CWnd::GetWindowText(CString& text) const
{
    const int length = ::GetWindowTextLength(m_hWnd);
    ::GetWindowText(m_hWnd, text.GetBufferSetLength(length), length + 1);
    text.ReleaseBuffer();
}

int CWnd::GetDlgItemText(int id, CString& text) const
{
    const HWND item = ::GetDlgItem(m_hWnd, id);
    text.Empty();
    if (item != nullptr)
    {
        const int length = ::GetWindowTextLength(item);
        ::GetWindowText(item, text.GetBufferSetLength(length), length + 1);
        text.ReleaseBuffer();
    }
    return text.GetLength();
}

void CWnd::SetFont(CFont* font, BOOL redraw)
{
    SendMessage(WM_SETFONT, WPARAM(font->GetSafeHandle()), MAKELPARAM(redraw, 0));
}

CFont* CWnd::GetFont() const
{
    return CFont::FromHandle(reinterpret_cast<HFONT>(SendMessage(WM_GETFONT)));
}

CMenu* CWnd::GetMenu() const
{
    return CMenu::FromHandle(::GetMenu(m_hWnd));
}

BOOL CWnd::SetMenu(CMenu* menu)
{
    return ::SetMenu(m_hWnd, menu->GetSafeHmenu());
}

CMenu* CWnd::GetSystemMenu(BOOL revert) const
{
    return CMenu::FromHandle(::GetSystemMenu(m_hWnd, revert));
}

int CWnd::MessageBox(LPCTSTR text, LPCTSTR caption, UINT type)
{
    return ::MessageBox(m_hWnd, text, caption == nullptr ? AfxGetAppName() : caption, type);
}
