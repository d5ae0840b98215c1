// CToolTipCtrl: tool tips for windows and for rectangles of windows.
//
// A tool is a window (id 0, no rectangle) or a rectangle in client coordinates of a window (id other than 0). Texts are
// passed directly, by string resource or asked for when needed (LPSTR_TEXTCALLBACK: the window gets TTN_NEEDTEXT).
// A dialog shows its tips by passing mouse messages to RelayEvent in PreTranslateMessage.
#pragma once

#include "afx/wnd/Wnd.h"

#include <commctrl.h>

// Description of a tool together with room for its text.
class CToolInfo : public TOOLINFO
{
public:
    static const int MaxTextLength = 256;
    TCHAR szText[MaxTextLength];
};

class AFX_API CToolTipCtrl : public CWnd
{
    DECLARE_DYNAMIC(CToolTipCtrl)

public:
    CToolTipCtrl();
    ~CToolTipCtrl() override;

    virtual BOOL Create(CWnd* parent, DWORD style = 0);
    virtual BOOL CreateEx(CWnd* parent, DWORD style = 0, DWORD exStyle = 0);

    // Tools. A NULL rectangle goes with id 0, a rectangle with any other id.
    BOOL AddTool(CWnd* window, UINT textId, LPCRECT rect = nullptr, UINT_PTR id = 0);
    BOOL AddTool(CWnd* window, LPCTSTR text = LPSTR_TEXTCALLBACK, LPCRECT rect = nullptr, UINT_PTR id = 0);
    void DelTool(CWnd* window, UINT_PTR id = 0);
    int GetToolCount() const { return static_cast<int>(::SendMessage(m_hWnd, TTM_GETTOOLCOUNT, 0, 0)); }
    BOOL GetToolInfo(CToolInfo& info, CWnd* window, UINT_PTR id = 0) const;
    void SetToolInfo(LPTOOLINFO info) { ::SendMessage(m_hWnd, TTM_SETTOOLINFO, 0, LPARAM(info)); }
    // FALSE while no tip is shown.
    BOOL GetCurrentTool(LPTOOLINFO info) const
    {
        return BOOL(::SendMessage(m_hWnd, TTM_GETCURRENTTOOL, 0, LPARAM(info)));
    }
    void SetToolRect(CWnd* window, UINT_PTR id, LPCRECT rect);
    BOOL HitTest(CWnd* window, CPoint point, LPTOOLINFO info) const;

    // At most CToolInfo::MaxTextLength - 1 characters are read.
    void GetText(CString& text, CWnd* window, UINT_PTR id = 0) const;
    void UpdateTipText(LPCTSTR text, CWnd* window, UINT_PTR id = 0);
    void UpdateTipText(UINT textId, CWnd* window, UINT_PTR id = 0);
    // icon: TTI_...; a title of up to 99 characters.
    BOOL SetTitle(UINT icon, LPCTSTR title) { return BOOL(::SendMessage(m_hWnd, TTM_SETTITLE, icon, LPARAM(title))); }

    // Only mouse moves and mouse buttons have an effect.
    void RelayEvent(LPMSG message) { ::SendMessage(m_hWnd, TTM_RELAYEVENT, 0, LPARAM(message)); }
    void Activate(BOOL activate) { ::SendMessage(m_hWnd, TTM_ACTIVATE, activate, 0); }
    void Pop() { ::SendMessage(m_hWnd, TTM_POP, 0, 0); }
    void Popup() { ::SendMessage(m_hWnd, TTM_POPUP, 0, 0); }
    void Update() { ::SendMessage(m_hWnd, TTM_UPDATE, 0, 0); }

    // Times in milliseconds; duration is TTDT_...
    void SetDelayTime(UINT delay) { ::SendMessage(m_hWnd, TTM_SETDELAYTIME, TTDT_AUTOMATIC, delay); }
    void SetDelayTime(DWORD duration, int time)
    {
        ::SendMessage(m_hWnd, TTM_SETDELAYTIME, duration, MAKELPARAM(time, 0));
    }
    int GetDelayTime(DWORD duration) const
    {
        return static_cast<int>(::SendMessage(m_hWnd, TTM_GETDELAYTIME, duration, 0));
    }

    // Look. Widths in pixels; a tip breaks its lines only when a maximal width is set (-1: not).
    int GetMaxTipWidth() const { return static_cast<int>(::SendMessage(m_hWnd, TTM_GETMAXTIPWIDTH, 0, 0)); }
    int SetMaxTipWidth(int width) { return static_cast<int>(::SendMessage(m_hWnd, TTM_SETMAXTIPWIDTH, 0, width)); }
    void GetMargin(LPRECT rect) const { ::SendMessage(m_hWnd, TTM_GETMARGIN, 0, LPARAM(rect)); }
    void SetMargin(LPRECT rect) { ::SendMessage(m_hWnd, TTM_SETMARGIN, 0, LPARAM(rect)); }
    COLORREF GetTipBkColor() const { return static_cast<COLORREF>(::SendMessage(m_hWnd, TTM_GETTIPBKCOLOR, 0, 0)); }
    void SetTipBkColor(COLORREF color) { ::SendMessage(m_hWnd, TTM_SETTIPBKCOLOR, color, 0); }
    COLORREF GetTipTextColor() const { return static_cast<COLORREF>(::SendMessage(m_hWnd, TTM_GETTIPTEXTCOLOR, 0, 0)); }
    void SetTipTextColor(COLORREF color) { ::SendMessage(m_hWnd, TTM_SETTIPTEXTCOLOR, color, 0); }
    BOOL AdjustRect(LPRECT rect, BOOL larger = TRUE)
    {
        return BOOL(::SendMessage(m_hWnd, TTM_ADJUSTRECT, larger, LPARAM(rect)));
    }
    CSize GetBubbleSize(LPTOOLINFO info) const;

protected:
    // Only the fields that name the tool: window and id.
    static void FillInToolInfo(TOOLINFO& info, CWnd* window, UINT_PTR id);
};
