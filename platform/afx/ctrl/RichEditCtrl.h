// CRichEditCtrl: a text field with character and paragraph formats, of version 2 of the control (class RichEdit20W).
//
// Positions count characters from the beginning of the text; a line break is one. Formats take the measures of the
// control's own interface: twips, 20 to a point.
//
// A dialog template can name the class only after AfxInitRichEdit2() was called; Create calls it itself.
#pragma once

#include "afx/wnd/Wnd.h"

#include <richedit.h>

class CDC;

// Registers the control's window class for the rest of the process.
AFX_API BOOL AFXAPI AfxInitRichEdit2();

class AFX_API CRichEditCtrl : public CWnd
{
    DECLARE_DYNAMIC(CRichEditCtrl)

public:
    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    virtual BOOL CreateEx(DWORD exStyle, DWORD style, const RECT& rect, CWnd* parent, UINT id);

    // Lines.
    int GetLineCount() const { return static_cast<int>(Ask(EM_GETLINECOUNT)); }
    // Copies without a terminating zero and returns the number of characters copied. The first form takes the size of
    // the buffer from its first word.
    int GetLine(int index, LPTSTR buffer) const { return static_cast<int>(Ask(EM_GETLINE, index, LPARAM(buffer))); }
    int GetLine(int index, LPTSTR buffer, int maxLength) const;
    int GetFirstVisibleLine() const { return static_cast<int>(Ask(EM_GETFIRSTVISIBLELINE)); }
    int LineIndex(int line = -1) const { return static_cast<int>(Ask(EM_LINEINDEX, line)); }
    int LineLength(int line = -1) const { return static_cast<int>(Ask(EM_LINELENGTH, line)); }
    long LineFromChar(long index) const { return static_cast<long>(Ask(EM_EXLINEFROMCHAR, 0, index)); }
    void LineScroll(int lines, int chars = 0) { Ask(EM_LINESCROLL, chars, lines); }
    CPoint PosFromChar(UINT index) const;
    CPoint GetCharPos(long index) const { return PosFromChar(static_cast<UINT>(index)); }
    int CharFromPos(CPoint point) const;

    // Selection.
    void GetSel(long& start, long& end) const;
    void GetSel(CHARRANGE& range) const { Ask(EM_EXGETSEL, 0, LPARAM(&range)); }
    void SetSel(long start, long end);
    void SetSel(CHARRANGE& range) { Ask(EM_EXSETSEL, 0, LPARAM(&range)); }
    WORD GetSelectionType() const { return static_cast<WORD>(Ask(EM_SELECTIONTYPE)); }
    // The control of this version writes UTF-16 characters, whatever the documented type of the buffer says.
    long GetSelText(LPSTR buffer) const { return static_cast<long>(Ask(EM_GETSELTEXT, 0, LPARAM(buffer))); }
    CString GetSelText() const;
    void HideSelection(BOOL hide, BOOL changeStyle) { Ask(EM_HIDESELECTION, hide, changeStyle); }
    void ReplaceSel(LPCTSTR text, BOOL canUndo = FALSE) { Ask(EM_REPLACESEL, canUndo, LPARAM(text)); }

    // Text.
    long GetTextLength() const { return static_cast<long>(Ask(WM_GETTEXTLENGTH)); }
    long GetTextLengthEx(DWORD flags, UINT codePage = UINT(-1)) const; // GTL_ bits; -1: UTF-16
    int GetTextRange(int first, int last, CString& text) const;
    long GetLimitText() const { return static_cast<long>(Ask(EM_GETLIMITTEXT)); }
    void LimitText(long maxChars = 0) { Ask(EM_EXLIMITTEXT, 0, maxChars); } // 0: the control's default
    BOOL GetModify() const { return static_cast<BOOL>(Ask(EM_GETMODIFY)); }
    void SetModify(BOOL modified = TRUE) { Ask(EM_SETMODIFY, modified); }
    BOOL SetReadOnly(BOOL readOnly = TRUE) { return static_cast<BOOL>(Ask(EM_SETREADONLY, readOnly)); }
    long FindText(DWORD flags, FINDTEXTEX* find) const;
    DWORD FindWordBreak(UINT code, DWORD start) const { return static_cast<DWORD>(Ask(EM_FINDWORDBREAK, code, start)); }
    UINT GetTextMode() const { return static_cast<UINT>(Ask(EM_GETTEXTMODE)); }
    BOOL SetTextMode(UINT mode) { return static_cast<BOOL>(Ask(EM_SETTEXTMODE, mode)); } // 0: done; only when empty

    // Formats. The control fills in or takes what the mask names; the getters return the mask of what is the same
    // throughout the selection. Every function sets the size of the structure itself.
    DWORD GetDefaultCharFormat(CHARFORMAT& format) const { return AskFormat(SCF_DEFAULT, format); }
    DWORD GetDefaultCharFormat(CHARFORMAT2& format) const { return AskFormat(SCF_DEFAULT, format); }
    BOOL SetDefaultCharFormat(CHARFORMAT& format) { return SetFormat(SCF_DEFAULT, format); }
    BOOL SetDefaultCharFormat(CHARFORMAT2& format) { return SetFormat(SCF_DEFAULT, format); }
    DWORD GetSelectionCharFormat(CHARFORMAT& format) const { return AskFormat(SCF_SELECTION, format); }
    DWORD GetSelectionCharFormat(CHARFORMAT2& format) const { return AskFormat(SCF_SELECTION, format); }
    BOOL SetSelectionCharFormat(CHARFORMAT& format) { return SetFormat(SCF_SELECTION, format); }
    BOOL SetSelectionCharFormat(CHARFORMAT2& format) { return SetFormat(SCF_SELECTION, format); }
    BOOL SetWordCharFormat(CHARFORMAT& format) { return SetFormat(SCF_SELECTION | SCF_WORD, format); }
    BOOL SetWordCharFormat(CHARFORMAT2& format) { return SetFormat(SCF_SELECTION | SCF_WORD, format); }
    DWORD GetParaFormat(PARAFORMAT& format) const { return AskParagraph(format); }
    DWORD GetParaFormat(PARAFORMAT2& format) const { return AskParagraph(format); }
    BOOL SetParaFormat(PARAFORMAT& format) { return SetParagraph(format); }
    BOOL SetParaFormat(PARAFORMAT2& format) { return SetParagraph(format); }

    // Look and events.
    void GetRect(LPRECT rect) const { Ask(EM_GETRECT, 0, LPARAM(rect)); }
    void SetRect(LPCRECT rect) { Ask(EM_SETRECT, 0, LPARAM(rect)); }
    COLORREF SetBackgroundColor(BOOL systemColor, COLORREF color); // the previous colour
    DWORD GetEventMask() const { return static_cast<DWORD>(Ask(EM_GETEVENTMASK)); }
    DWORD SetEventMask(DWORD mask) { return static_cast<DWORD>(Ask(EM_SETEVENTMASK, 0, mask)); } // the previous one
    void SetOptions(WORD operation, DWORD flags) { Ask(EM_SETOPTIONS, operation, flags); }
    BOOL GetAutoURLDetect() const { return static_cast<BOOL>(Ask(EM_GETAUTOURLDETECT)); }
    BOOL SetAutoURLDetect(BOOL enable = TRUE) { return static_cast<BOOL>(Ask(EM_AUTOURLDETECT, enable)); } // 0: done
    void RequestResize() { Ask(EM_REQUESTRESIZE); }

    // Clipboard and undo.
    BOOL CanPaste(UINT format = 0) const { return static_cast<BOOL>(Ask(EM_CANPASTE, format)); } // 0: any format
    BOOL CanUndo() const { return static_cast<BOOL>(Ask(EM_CANUNDO)); }
    BOOL CanRedo() const { return static_cast<BOOL>(Ask(EM_CANREDO)); }
    void Clear() { Ask(WM_CLEAR); }
    void Copy() { Ask(WM_COPY); }
    void Cut() { Ask(WM_CUT); }
    void Paste() { Ask(WM_PASTE); }
    void PasteSpecial(UINT format, DWORD aspect = 0, HMETAFILE metafile = nullptr);
    BOOL Undo() { return static_cast<BOOL>(Ask(EM_UNDO)); }
    BOOL Redo() { return static_cast<BOOL>(Ask(EM_REDO)); }
    void EmptyUndoBuffer() { Ask(EM_EMPTYUNDOBUFFER); }
    void StopGroupTyping() { Ask(EM_STOPGROUPTYPING); }
    UINT SetUndoLimit(UINT limit) { return static_cast<UINT>(Ask(EM_SETUNDOLIMIT, limit)); }
    UNDONAMEID GetUndoName() const { return static_cast<UNDONAMEID>(Ask(EM_GETUNDONAME)); }
    UNDONAMEID GetRedoName() const { return static_cast<UNDONAMEID>(Ask(EM_GETREDONAME)); }

    // Streams: SF_ bits; the number of bytes or characters read or written. stream.dwError tells of a failure.
    long StreamIn(int format, EDITSTREAM& stream)
    {
        return static_cast<long>(Ask(EM_STREAMIN, format, LPARAM(&stream)));
    }
    long StreamOut(int format, EDITSTREAM& stream)
    {
        return static_cast<long>(Ask(EM_STREAMOUT, format, LPARAM(&stream)));
    }

    // Output. FormatRange with a null range frees what the control keeps for it.
    long FormatRange(FORMATRANGE* range, BOOL display = TRUE)
    {
        return static_cast<long>(Ask(EM_FORMATRANGE, display, LPARAM(range)));
    }
    BOOL DisplayBand(LPRECT band) { return static_cast<BOOL>(Ask(EM_DISPLAYBAND, 0, LPARAM(band))); }
    BOOL SetTargetDevice(HDC dc, long lineWidth)
    {
        return static_cast<BOOL>(Ask(EM_SETTARGETDEVICE, WPARAM(dc), lineWidth));
    }
    BOOL SetTargetDevice(CDC& dc, long lineWidth);

private:
    LRESULT Ask(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const
    {
        return ::SendMessage(m_hWnd, message, wParam, lParam);
    }

    template<class FORMAT>
    DWORD AskFormat(WPARAM scope, FORMAT& format) const
    {
        format.cbSize = sizeof(format);
        return static_cast<DWORD>(Ask(EM_GETCHARFORMAT, scope, LPARAM(&format)));
    }

    template<class FORMAT>
    BOOL SetFormat(WPARAM scope, FORMAT& format)
    {
        format.cbSize = sizeof(format);
        return static_cast<BOOL>(Ask(EM_SETCHARFORMAT, scope, LPARAM(&format)));
    }

    template<class FORMAT>
    DWORD AskParagraph(FORMAT& format) const
    {
        format.cbSize = sizeof(format);
        return static_cast<DWORD>(Ask(EM_GETPARAFORMAT, 0, LPARAM(&format)));
    }

    template<class FORMAT>
    BOOL SetParagraph(FORMAT& format)
    {
        format.cbSize = sizeof(format);
        return static_cast<BOOL>(Ask(EM_SETPARAFORMAT, 0, LPARAM(&format)));
    }
};
