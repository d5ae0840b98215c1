// A small message window beside the cursor, on a thread of its own: what a check found about the object that the mouse
// rests on.
//
//     CCheckSpecMsgThread* m_window =
//         static_cast<CCheckSpecMsgThread*>(AfxBeginThread(RUNTIME_CLASS(CCheckSpecMsgThread)));
//
//     m_window->ShowMsg(texts); // the object under the mouse is another one
//     m_window->End();          // when the client is done; the object deletes itself with its thread
//
// The window shows itself when the cursor rests for 50 ms within ten pixels of where it was when the texts came, and
// hides when the cursor has left both that place and the window. The user may drag it by any point, size it, pin it in
// place and close it.
//
// Every function may be called by any thread and waits for nobody: it posts a message to the window's thread, which
// works it off in order. Of more texts than the system's queue takes, the last one is shown. On an object without a
// running thread the functions do nothing. After End the object is the client's no more, unless m_bAutoDelete is FALSE.
//
// The window is owned by the host's main frame, so that the two threads share the state of their input: a thread that
// waits for this one to end (with m_bAutoDelete FALSE) must dispatch messages meanwhile.
#pragma once

#include <afxwin.h>

#include "base/ZnktApi.h"

class CCheckMsgPosts;
class CCheckSpecificationMsgDlg;

class ZNKT_API CCheckSpecMsgThread : public CWinThread
{
    DECLARE_DYNCREATE(CCheckSpecMsgThread)

public:
    virtual ~CCheckSpecMsgThread();

    // The texts, a line each. An empty array says that there is nothing to show, and does not bring the window up. An
    // empty text ends the list: what follows it is not shown. The texts are copied.
    void ShowMsg(const CStringArray& msgs);

    // Shows or hides the window where it is: SW_ commands.
    void ShowWindow(int nCmdShow);

    // Ends the thread and with it the window.
    void End();

    // Whether the window is seen.
    bool IsDlgShowed() const;

    virtual BOOL InitInstance();
    virtual int ExitInstance();
    virtual BOOL PreTranslateMessage(MSG* pMsg);

protected:
    // By the run-time class.
    CCheckSpecMsgThread();

    // With a way of its own to post, which it takes over.
    explicit CCheckSpecMsgThread(CCheckMsgPosts* pPosts);

private:
    CCheckSpecMsgThread(const CCheckSpecMsgThread&);
    CCheckSpecMsgThread& operator=(const CCheckSpecMsgThread&);

    static LRESULT CALLBACK OnGetMessage(int code, WPARAM wParam, LPARAM lParam);

    void TakeMessage(MSG& message);
    void TakeInModalLoop(MSG& message);
    void TakeKept();
    void SetTexts(wchar_t* block);
    void FreeQueuedTexts();

    CCheckSpecificationMsgDlg* m_pDlg; // of the window's thread alone
    HWND volatile m_hDlg;              // for the other threads, which must not touch the object
    CCheckMsgPosts* m_pPosts;
    HHOOK m_hook;
};
