#include "afx/ctrl/Edit.h"

IMPLEMENT_DYNAMIC(CEdit, CWnd)

BOOL CEdit::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create(WC_EDIT, nullptr, style, rect, parent, id);
}

void CEdit::GetSel(int& start, int& end) const
{
    DWORD first = 0;
    DWORD last = 0;
    ::SendMessage(m_hWnd, EM_GETSEL, WPARAM(&first), LPARAM(&last));
    start = static_cast<int>(first);
    end = static_cast<int>(last);
}

void CEdit::SetSel(DWORD selection, BOOL noScroll)
{
    // Signed words: -1 as an end means the end of the text.
    SetSel(static_cast<short>(LOWORD(selection)), static_cast<short>(HIWORD(selection)), noScroll);
}

void CEdit::SetSel(int start, int end, BOOL noScroll)
{
    ::SendMessage(m_hWnd, EM_SETSEL, start, end);
    if (!noScroll)
        ::SendMessage(m_hWnd, EM_SCROLLCARET, 0, 0);
}

int CEdit::GetLine(int index, LPTSTR buffer, int maxLength) const
{
    // The message takes the size of the buffer from its first word.
    *reinterpret_cast<LPWORD>(buffer) = static_cast<WORD>(maxLength);
    return GetLine(index, buffer);
}

int CEdit::CharFromPos(CPoint point) const
{
    return static_cast<int>(::SendMessage(m_hWnd, EM_CHARFROMPOS, 0, MAKELPARAM(point.x, point.y)));
}

CPoint CEdit::PosFromChar(UINT index) const
{
    const LRESULT position = ::SendMessage(m_hWnd, EM_POSFROMCHAR, index, 0);
    return CPoint(static_cast<short>(LOWORD(position)), static_cast<short>(HIWORD(position)));
}

void CEdit::SetMargins(UINT left, UINT right)
{
    ::SendMessage(m_hWnd, EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELPARAM(left, right));
}

BOOL CEdit::SetCueBanner(LPCWSTR text, BOOL drawIfFocused)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, EM_SETCUEBANNER, drawIfFocused, LPARAM(text)));
}
