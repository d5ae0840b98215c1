#include "afx/ctrl/RichEditCtrl.h"

#include "afx/gdi/DC.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CRichEditCtrl, CWnd)

namespace
{
const UINT Utf16 = 1200; // code page of UTF-16 text
}

BOOL AFXAPI AfxInitRichEdit2()
{
    // The library stays: windows of its class may be created at any time.
    static const HMODULE library = ::LoadLibrary(L"riched20.dll");
    return library != nullptr;
}

BOOL CRichEditCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CreateEx(0, style, rect, parent, id);
}

BOOL CRichEditCtrl::CreateEx(DWORD exStyle, DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return AfxInitRichEdit2() && CWnd::CreateEx(exStyle, RICHEDIT_CLASSW, nullptr, style, rect, parent, id);
}

int CRichEditCtrl::GetLine(int index, LPTSTR buffer, int maxLength) const
{
    *reinterpret_cast<LPWORD>(buffer) = static_cast<WORD>(maxLength);
    return GetLine(index, buffer);
}

CPoint CRichEditCtrl::PosFromChar(UINT index) const
{
    POINTL point = {};
    Ask(EM_POSFROMCHAR, WPARAM(&point), index);
    return CPoint(point.x, point.y);
}

int CRichEditCtrl::CharFromPos(CPoint point) const
{
    POINTL place = {point.x, point.y};
    return static_cast<int>(Ask(EM_CHARFROMPOS, 0, LPARAM(&place)));
}

void CRichEditCtrl::GetSel(long& start, long& end) const
{
    CHARRANGE range = {};
    GetSel(range);
    start = range.cpMin;
    end = range.cpMax;
}

void CRichEditCtrl::SetSel(long start, long end)
{
    CHARRANGE range = {start, end};
    SetSel(range);
}

CString CRichEditCtrl::GetSelText() const
{
    CHARRANGE range = {};
    GetSel(range);
    CString text;
    const LPTSTR buffer = text.GetBufferSetLength(range.cpMax - range.cpMin + 1);
    text.ReleaseBuffer(GetSelText(reinterpret_cast<LPSTR>(buffer)));
    return text;
}

long CRichEditCtrl::GetTextLengthEx(DWORD flags, UINT codePage) const
{
    GETTEXTLENGTHEX asked = {flags, codePage == UINT(-1) ? Utf16 : codePage};
    return static_cast<long>(Ask(EM_GETTEXTLENGTHEX, WPARAM(&asked)));
}

int CRichEditCtrl::GetTextRange(int first, int last, CString& text) const
{
    const int end = GetTextLengthEx(GTL_DEFAULT);
    const int length = (last < 0 ? end : std::min(last, end)) - first;
    if (length <= 0)
    {
        text.Empty();
        return 0;
    }
    TEXTRANGE range = {{first, first + length}, text.GetBufferSetLength(length)};
    const int copied = static_cast<int>(Ask(EM_GETTEXTRANGE, 0, LPARAM(&range)));
    text.ReleaseBuffer(copied);
    return copied;
}

long CRichEditCtrl::FindText(DWORD flags, FINDTEXTEX* find) const
{
    return static_cast<long>(Ask(EM_FINDTEXTEXW, flags, LPARAM(find)));
}

COLORREF CRichEditCtrl::SetBackgroundColor(BOOL systemColor, COLORREF color)
{
    return static_cast<COLORREF>(Ask(EM_SETBKGNDCOLOR, systemColor, color));
}

void CRichEditCtrl::PasteSpecial(UINT format, DWORD aspect, HMETAFILE metafile)
{
    REPASTESPECIAL special = {aspect, DWORD_PTR(metafile)};
    Ask(EM_PASTESPECIAL, format, LPARAM(&special));
}

BOOL CRichEditCtrl::SetTargetDevice(CDC& dc, long lineWidth)
{
    return SetTargetDevice(dc.m_hDC, lineWidth);
}
