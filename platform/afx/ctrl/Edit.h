// CEdit: a text field of one or several lines.
#pragma once

#include "afx/wnd/Wnd.h"

class AFX_API CEdit : public CWnd
{
    DECLARE_DYNAMIC(CEdit)

public:
    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    BOOL CanUndo() const { return static_cast<BOOL>(::SendMessage(m_hWnd, EM_CANUNDO, 0, 0)); }
    int GetLineCount() const { return static_cast<int>(::SendMessage(m_hWnd, EM_GETLINECOUNT, 0, 0)); }
    BOOL GetModify() const { return static_cast<BOOL>(::SendMessage(m_hWnd, EM_GETMODIFY, 0, 0)); }
    void SetModify(BOOL modified = TRUE) { ::SendMessage(m_hWnd, EM_SETMODIFY, modified, 0); }
    BOOL SetReadOnly(BOOL readOnly = TRUE)
    {
        return static_cast<BOOL>(::SendMessage(m_hWnd, EM_SETREADONLY, readOnly, 0));
    }
    void GetRect(LPRECT rect) const { ::SendMessage(m_hWnd, EM_GETRECT, 0, LPARAM(rect)); }
    void SetRect(LPCRECT rect) { ::SendMessage(m_hWnd, EM_SETRECT, 0, LPARAM(rect)); }
    void SetRectNP(LPCRECT rect) { ::SendMessage(m_hWnd, EM_SETRECTNP, 0, LPARAM(rect)); }

    // The selection as start (low word) and end (high word); use the second form for long texts.
    DWORD GetSel() const { return static_cast<DWORD>(::SendMessage(m_hWnd, EM_GETSEL, 0, 0)); }
    void GetSel(int& start, int& end) const;
    void SetSel(DWORD selection, BOOL noScroll = FALSE);
    void SetSel(int start, int end, BOOL noScroll = FALSE);
    void ReplaceSel(LPCTSTR text, BOOL canUndo = FALSE) { ::SendMessage(m_hWnd, EM_REPLACESEL, canUndo, LPARAM(text)); }

    void LimitText(int maxChars = 0) { ::SendMessage(m_hWnd, EM_LIMITTEXT, maxChars, 0); }
    void SetLimitText(UINT maxChars) { ::SendMessage(m_hWnd, EM_SETLIMITTEXT, maxChars, 0); }
    UINT GetLimitText() const { return static_cast<UINT>(::SendMessage(m_hWnd, EM_GETLIMITTEXT, 0, 0)); }

    // Copies without a terminating zero and returns the number of characters copied.
    int GetLine(int index, LPTSTR buffer) const
    {
        return int(::SendMessage(m_hWnd, EM_GETLINE, index, LPARAM(buffer)));
    }
    int GetLine(int index, LPTSTR buffer, int maxLength) const;
    int LineFromChar(int index = -1) const
    {
        return static_cast<int>(::SendMessage(m_hWnd, EM_LINEFROMCHAR, index, 0));
    }
    int LineIndex(int line = -1) const { return static_cast<int>(::SendMessage(m_hWnd, EM_LINEINDEX, line, 0)); }
    int LineLength(int line = -1) const { return static_cast<int>(::SendMessage(m_hWnd, EM_LINELENGTH, line, 0)); }
    void LineScroll(int lines, int chars = 0) { ::SendMessage(m_hWnd, EM_LINESCROLL, chars, lines); }
    int GetFirstVisibleLine() const { return static_cast<int>(::SendMessage(m_hWnd, EM_GETFIRSTVISIBLELINE, 0, 0)); }
    int CharFromPos(CPoint point) const;
    CPoint PosFromChar(UINT index) const;

    void SetMargins(UINT left, UINT right);
    DWORD GetMargins() const { return static_cast<DWORD>(::SendMessage(m_hWnd, EM_GETMARGINS, 0, 0)); }
    void SetPasswordChar(TCHAR c) { ::SendMessage(m_hWnd, EM_SETPASSWORDCHAR, c, 0); }
    TCHAR GetPasswordChar() const { return static_cast<TCHAR>(::SendMessage(m_hWnd, EM_GETPASSWORDCHAR, 0, 0)); }
    BOOL SetTabStops(const int& stop)
    {
        return static_cast<BOOL>(::SendMessage(m_hWnd, EM_SETTABSTOPS, 1, LPARAM(&stop)));
    }
    HLOCAL GetHandle() const { return reinterpret_cast<HLOCAL>(::SendMessage(m_hWnd, EM_GETHANDLE, 0, 0)); }
    BOOL FmtLines(BOOL addEol) { return static_cast<BOOL>(::SendMessage(m_hWnd, EM_FMTLINES, addEol, 0)); }

    BOOL SetCueBanner(LPCWSTR text, BOOL drawIfFocused = FALSE);
    BOOL ShowBalloonTip(PEDITBALLOONTIP tip) { return BOOL(::SendMessage(m_hWnd, EM_SHOWBALLOONTIP, 0, LPARAM(tip))); }
    BOOL HideBalloonTip() { return static_cast<BOOL>(::SendMessage(m_hWnd, EM_HIDEBALLOONTIP, 0, 0)); }

    BOOL Undo() { return static_cast<BOOL>(::SendMessage(m_hWnd, EM_UNDO, 0, 0)); }
    void EmptyUndoBuffer() { ::SendMessage(m_hWnd, EM_EMPTYUNDOBUFFER, 0, 0); }
    void Clear() { ::SendMessage(m_hWnd, WM_CLEAR, 0, 0); }
    void Copy() { ::SendMessage(m_hWnd, WM_COPY, 0, 0); }
    void Cut() { ::SendMessage(m_hWnd, WM_CUT, 0, 0); }
    void Paste() { ::SendMessage(m_hWnd, WM_PASTE, 0, 0); }
};
