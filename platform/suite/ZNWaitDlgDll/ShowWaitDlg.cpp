#include "ZNWaitDlgDll.h"

#include "suite/ZNWaitDlgDll/WaitThread.h"

CShowWaitDlg::CShowWaitDlg() : m_thread(new WaitThread) {}

CShowWaitDlg::~CShowWaitDlg()
{
    delete m_thread;
}

void CShowWaitDlg::SetWatchWnd(HWND window)
{
    m_thread->State().watched = window;
}

void CShowWaitDlg::SetEnableCancel(int enable)
{
    m_thread->State().cancelEnabled = enable != 0;
}

void CShowWaitDlg::SetMsg(const wchar_t* text)
{
    m_thread->State().text.Put(text);
}

int CShowWaitDlg::GetIsCanceled() const
{
    return m_thread->State().canceled ? 1 : 0;
}
