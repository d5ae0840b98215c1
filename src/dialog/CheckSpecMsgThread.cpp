#include "dialog/CheckSpecMsgThread.h"

#include <rxmfcapi.h>

#include "base/ModuleResources.h"
#include "base/ModuleThreads.h"
#include "dialog/CheckMsgBlock.h"
#include "dialog/CheckMsgPosts.h"
#include "dialog/CheckSpecificationMsgDlg.h"
#include "res/resource.h"

namespace
{

const HWND kThreadMessages = reinterpret_cast<HWND>(-1); // PeekMessage: those of no window

// Whether this thread runs a loop of the system in place of its own: the user drags or sizes a window, or has a menu
// open.
bool IsInModalLoop()
{
    GUITHREADINFO info = {sizeof(info), 0, NULL, NULL, NULL, NULL, NULL, NULL, {0, 0, 0, 0}};
    const DWORD loops = GUI_INMOVESIZE | GUI_INMENUMODE | GUI_POPUPMENUMODE | GUI_SYSTEMMENUMODE;
    return ::GetGUIThreadInfo(::GetCurrentThreadId(), &info) && (info.flags & loops) != 0;
}

bool IsCheckMessage(const MSG& message)
{
    return message.hwnd == NULL && (message.message == UM_CHECKMSG_SHOW || message.message == UM_CHECKMSG_SETTEXT);
}

bool IsCheckMessageQueued()
{
    MSG message;
    return ::PeekMessage(&message, kThreadMessages, UM_CHECKMSG_SHOW, UM_CHECKMSG_SETTEXT, PM_NOREMOVE) != FALSE;
}

} // namespace

IMPLEMENT_DYNCREATE(CCheckSpecMsgThread, CWinThread)

CCheckSpecMsgThread::CCheckSpecMsgThread()
    : m_pDlg(NULL), m_hDlg(NULL), m_pPosts(new CCheckMsgPosts(&::PostThreadMessage)), m_hook(NULL)
{
}

CCheckSpecMsgThread::CCheckSpecMsgThread(CCheckMsgPosts* pPosts)
    : m_pDlg(NULL), m_hDlg(NULL), m_pPosts(pPosts), m_hook(NULL)
{
}

CCheckSpecMsgThread::~CCheckSpecMsgThread()
{
    delete m_pPosts;
}

void CCheckSpecMsgThread::ShowMsg(const CStringArray& msgs)
{
    m_pPosts->PostText(m_nThreadID, msgs);
}

void CCheckSpecMsgThread::ShowWindow(int nCmdShow)
{
    m_pPosts->PostShow(m_nThreadID, nCmdShow);
}

void CCheckSpecMsgThread::End()
{
    m_pPosts->PostEnd(m_nThreadID);
}

bool CCheckSpecMsgThread::IsDlgShowed() const
{
    const HWND dialog = m_hDlg;
    return dialog != NULL && ::IsWindow(dialog) && ::IsWindowVisible(dialog);
}

BOOL CCheckSpecMsgThread::InitInstance()
{
    AddModuleThread();
    m_hook = ::SetWindowsHookEx(WH_GETMESSAGE, &CCheckSpecMsgThread::OnGetMessage, NULL, ::GetCurrentThreadId());
    const CModuleResources resources;
    m_pDlg = new CCheckSpecificationMsgDlg;
    // The frame's own object belongs to the main thread: only its handle is used here.
    if (m_pDlg->Create(IDD_CHECK_SPECIFICATION, CWnd::FromHandle(adsw_acadMainWnd())))
    {
        m_pDlg->ShowWindow(SW_HIDE);
        m_hDlg = m_pDlg->m_hWnd;
    }
    if (m_pPosts->TakeEnd())
        ::PostQuitMessage(0); // it came before this thread had a queue
    return TRUE;
}

int CCheckSpecMsgThread::ExitInstance()
{
    m_pPosts->Close();
    FreeQueuedTexts();
    if (m_hook != NULL)
        ::UnhookWindowsHookEx(m_hook);
    m_hook = NULL;
    m_hDlg = NULL;
    delete m_pDlg;
    m_pDlg = NULL;
    return CWinThread::ExitInstance();
}

BOOL CCheckSpecMsgThread::PreTranslateMessage(MSG* pMsg)
{
    TakeMessage(*pMsg);
    TakeKept();
    if (pMsg->message == WM_KEYDOWN && pMsg->wParam == VK_ESCAPE && IsDlgShowed())
        m_pDlg->ShowWindow(SW_HIDE);
    return CWinThread::PreTranslateMessage(pMsg);
}

// Loops of the system drop messages that belong to no window, and with them the texts and the end of the thread.
LRESULT CALLBACK CCheckSpecMsgThread::OnGetMessage(int code, WPARAM wParam, LPARAM lParam)
{
    CCheckSpecMsgThread* const thread = DYNAMIC_DOWNCAST(CCheckSpecMsgThread, AfxGetThread());
    if (code == HC_ACTION && wParam == PM_REMOVE && thread != NULL)
        thread->TakeInModalLoop(*reinterpret_cast<MSG*>(lParam));
    return ::CallNextHookEx(NULL, code, wParam, lParam);
}

void CCheckSpecMsgThread::TakeMessage(MSG& message)
{
    if (!IsCheckMessage(message))
        return;
    if (message.message == UM_CHECKMSG_SETTEXT)
    {
        wchar_t* const block = reinterpret_cast<wchar_t*>(message.wParam);
        message.wParam = 0; // whoever sees the message later finds no block that is gone
        SetTexts(block);
    }
    else if (m_pDlg->GetSafeHwnd() != NULL)
        m_pDlg->ShowWindow(static_cast<int>(message.wParam));
}

void CCheckSpecMsgThread::TakeInModalLoop(MSG& message)
{
    const bool isEnd = message.hwnd == NULL && message.message == WM_QUIT;
    if ((!isEnd && !IsCheckMessage(message)) || !IsInModalLoop())
        return;
    if (isEnd)
    {
        // The loop swallows it, and that of a menu need not even end by it: this thread's own loop must be told again.
        ::EndMenu();
        m_pPosts->KeepEnd();
        ::PostThreadMessage(::GetCurrentThreadId(), WM_NULL, 0, 0);
        return;
    }
    TakeMessage(message);
    message.message = WM_NULL;
}

// What the queue had no room for is newer than all that is in it.
void CCheckSpecMsgThread::TakeKept()
{
    if (!m_pPosts->HasKept() || IsCheckMessageQueued())
        return;
    wchar_t* const block = m_pPosts->TakeText();
    if (block != NULL)
        SetTexts(block);
    int command = SW_HIDE;
    if (m_pPosts->TakeShow(command) && m_pDlg->GetSafeHwnd() != NULL)
        m_pDlg->ShowWindow(command);
    if (m_pPosts->TakeEnd())
        ::PostQuitMessage(0);
}

void CCheckSpecMsgThread::SetTexts(wchar_t* block)
{
    const CCheckMsgBlock owner(block);
    CStringArray texts;
    owner.Unpack(texts);
    if (m_pDlg != NULL)
        m_pDlg->SetMessages(texts);
}

void CCheckSpecMsgThread::FreeQueuedTexts()
{
    MSG message;
    while (::PeekMessage(&message, kThreadMessages, UM_CHECKMSG_SETTEXT, UM_CHECKMSG_SETTEXT, PM_REMOVE))
        const CCheckMsgBlock block(reinterpret_cast<wchar_t*>(message.wParam));
    const CCheckMsgBlock kept(m_pPosts->TakeText());
}
