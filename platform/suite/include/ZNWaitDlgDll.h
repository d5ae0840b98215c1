// The suite's wait dialog: a small window over the main frame while an operation keeps the main thread busy.
//
//     CShowWaitDlg dialog;
//     dialog.SetWatchWnd(AfxGetMainWnd()->m_hWnd);
//     dialog.SetEnableCancel(1);
//     for (int i = 0; i < count && !dialog.GetIsCanceled(); ++i)
//     {
//         dialog.SetMsg(texts[i]);
//         ... work ...
//     }
//
// The window lives on a thread of its own and shares no input with the watched window, so it moves, tells the time and
// answers its button whatever the calling thread does. It never takes the focus. It comes up a moment after
// construction: an operation that is over by then shows nothing.
// All operations may be called from any thread, one at a time, and never wait for the window, but for the destructor.
#pragma once

#include <windows.h>

#ifdef ZNWaitDlgDll_EXPORTS
#define ZNWAIT_API __declspec(dllexport)
#else
#define ZNWAIT_API __declspec(dllimport)
#endif

class WaitThread;

class ZNWAIT_API CShowWaitDlg
{
public:
    CShowWaitDlg();
    // Closes the window. Messages sent to the calling thread's windows are answered meanwhile.
    ~CShowWaitDlg();

    // The window to stay above and to be centred over; null or a window that was destroyed: the middle of the screen.
    // While it is disabled its own dialogs stay in front.
    void SetWatchWnd(HWND window);

    // Non-zero: there is a Cancel button. Zero, as at first: there is none.
    void SetEnableCancel(int enable);

    // Replaces the text: lines separated by "\n", of which the last ten are shown, each cut with an ellipsis where it
    // is too long. Null is the same as "".
    void SetMsg(const wchar_t* text);

    // Non-zero once the user pressed Cancel; it stays so.
    int GetIsCanceled() const;

private:
    CShowWaitDlg(const CShowWaitDlg&);
    void operator=(const CShowWaitDlg&);

    WaitThread* m_thread; // owned
};
