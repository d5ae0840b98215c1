// A tip of one or more lines that follows the mouse. There is one in the process.
//
//     CFollowMouseTipWnd::SetWatchWnd(&view);                        // shown while the mouse is over the view
//     CFollowMouseTipWnd::ShowMsg(L"指定下一点", 0, NULL);           // for 20 seconds
//     ...
//     CFollowMouseTipWnd::ShowMsg(L"长度: 12.5\n角度: 30", 5, NULL); // other lines in the same window
//     CFollowMouseTipWnd::Destroy();
//
// The tip stands at the right above the pointer and is not kept inside the screen. It takes neither focus nor clicks
// that are meant for others. Everything must be called from the thread that showed the tip first.
#pragma once

#include <afxwin.h>

#include "base/ZnktApi.h"

struct FollowTipHook;

class ZNKT_API CFollowMouseTipWnd : public CWnd
{
    DECLARE_DYNAMIC(CFollowMouseTipWnd)

public:
    // Shows the text, or shows it in place of the one before; lines end with "\n", null is the empty text. The tip goes
    // away by itself after so many seconds (up to one more); 0 stands for 20. A text that begins with "Debug:" is shown
    // as it is and writes trace lines. `parent`, unless null, becomes the parent of the window: the tip is seen inside
    // it only, and ends with it. Throws a resource exception when the window class cannot be registered; shows nothing
    // when the window cannot be made.
    static void ShowMsg(const wchar_t* text, unsigned long seconds, CWnd* parent);

    // Hides the tip until the next ShowMsg. Its time runs on.
    static void Hide();

    // Ends the tip and forgets the watched window.
    static void Destroy();

    // The tip is hidden while the mouse is over another window than this one, child windows of it included. Null: shown
    // everywhere.
    static void SetWatchWnd(CWnd* watch);

protected:
    // The object deletes itself with its window.
    CFollowMouseTipWnd(const wchar_t* text, unsigned long seconds);
    virtual ~CFollowMouseTipWnd();

    // Makes a new object the one that the operations speak to and creates its window. On failure the object is deleted.
    static bool Open(CFollowMouseTipWnd* tip, CWnd* parent);

    // `id` is for the caller's sake: a window of this kind has none. FALSE: no window.
    BOOL Create(const RECT& rect, CWnd* parent, UINT id);

    // The size that the text needs; remembers the height of a line.
    CSize CalWndSize();
    void SetMsg(const wchar_t* text, unsigned long seconds);

    // `under`: the window under the pointer, which is on the screen at that point, or where it is now.
    void OnMouseMove(HWND under);
    void OnMouseMove(HWND under, CPoint pointer);

    // The clock that the time of the tip is read from, in milliseconds.
    virtual DWORD TickCount() const;
    virtual void PostNcDestroy();

    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnPaint();
    afx_msg void OnTimer(UINT_PTR id);
    DECLARE_MESSAGE_MAP()

private:
    friend struct FollowTipHook;

    CFollowMouseTipWnd(const CFollowMouseTipWnd&);
    CFollowMouseTipWnd& operator=(const CFollowMouseTipWnd&);

    void MoveInto(CWnd& parent);
    void PlaceAt(CPoint screen, UINT flags);
    void Conceal();
    void Repaint();
    void TraceOutside(HWND under) const;

    static CFollowMouseTipWnd* s_instance;
    static HWND s_watch;

    bool m_debug;
    CString m_text;
    unsigned int m_duration;
    unsigned int m_shownAt;
    int m_lineHeight;
    bool m_hideMode;
    CFont m_font;
    FollowTipHook* m_hook;
};
