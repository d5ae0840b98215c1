#include "app/SubclassWndMap.h"

#include "app/DySubclassWnd.h"
#include "app/HookDispatch.h"

#include <afxstat_.h>

namespace
{

const UINT kHashTableSize = 10;

// Guard: a message is the thread's current one while it lives, so that Default() and the framework find it.
class CCurrentMessage
{
public:
    explicit CCurrentMessage(const MSG& message)
        : m_current(AfxGetThreadState()->m_lastSentMsg), m_former(AfxGetThreadState()->m_lastSentMsg)
    {
        m_current = message;
    }

    ~CCurrentMessage() { m_current = m_former; }

private:
    CCurrentMessage(const CCurrentMessage&);
    CCurrentMessage& operator=(const CCurrentMessage&);

    MSG& m_current;
    MSG m_former;
};

WNDPROC SetProcedure(HWND hwnd, WNDPROC procedure)
{
    return reinterpret_cast<WNDPROC>(::SetWindowLongPtr(hwnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure)));
}

} // namespace

CSubclassWndMap::CSubclassWndMap()
{
    InitHashTable(kHashTableSize);
}

CSubclassWndMap::~CSubclassWndMap()
{
    while (!IsEmpty())
    {
        void* hwnd = NULL;
        void* first = NULL;
        POSITION position = GetStartPosition();
        GetNextAssoc(position, hwnd, first);
        RemoveAll(static_cast<HWND>(hwnd));
    }
}

CSubclassWndMap& CSubclassWndMap::Instance()
{
    static CSubclassWndMap map;
    return map;
}

void CSubclassWndMap::Add(HWND hwnd, CDySubclassWnd& hook)
{
    CDySubclassWnd* const first = First(hwnd);
    const WNDPROC previous = first != NULL ? first->m_previous : SetProcedure(hwnd, &CSubclassWndMap::HookProc);
    if (previous == NULL)
        return;
    hook.m_next = first;
    SetAt(hwnd, &hook);
    hook.m_previous = previous;
    hook.m_hooked = hwnd;
    hook.m_wasHooked = true;
}

void CSubclassWndMap::Remove(CDySubclassWnd& hook)
{
    const HWND hwnd = hook.m_hooked;
    CHookDispatch::Leave(hook);
    CDySubclassWnd* at = First(hwnd);
    if (at != &hook)
    {
        while (at->m_next != &hook)
            at = at->m_next;
        at->m_next = hook.m_next;
    }
    else if (hook.m_next != NULL)
    {
        SetAt(hwnd, hook.m_next);
    }
    else
    {
        RemoveKey(hwnd);
        SetProcedure(hwnd, hook.m_previous);
    }
    hook.m_next = NULL;
    hook.m_previous = NULL;
    hook.m_hooked = NULL;
}

CDySubclassWnd* CSubclassWndMap::First(HWND hwnd) const
{
    return static_cast<CDySubclassWnd*>(GetValueAt(hwnd));
}

void CSubclassWndMap::RemoveAll(HWND hwnd)
{
    for (CDySubclassWnd* hook = First(hwnd); hook != NULL; hook = First(hwnd))
        Remove(*hook);
}

LRESULT CSubclassWndMap::Dispatch(const MSG& message)
{
    CDySubclassWnd* const first = First(message.hwnd);
    // Somebody who had subclassed the window after the first hook may put our procedure back when no hook is left.
    if (first == NULL)
        return ::DefWindowProc(message.hwnd, message.message, message.wParam, message.lParam);
    if (message.message == WM_NCDESTROY)
        return Destroy(message);
    const CHookDispatch dispatch(message.hwnd);
    return first->WindowProc(message.message, message.wParam, message.lParam);
}

LRESULT CSubclassWndMap::Destroy(const MSG& message)
{
    const WNDPROC previous = First(message.hwnd)->m_previous;
    RemoveAll(message.hwnd);
    CHookDispatch::EndOf(message.hwnd);
    return ::CallWindowProc(previous, message.hwnd, message.message, message.wParam, message.lParam);
}

LRESULT CALLBACK CSubclassWndMap::HookProc(HWND hwnd, UINT msg, WPARAM wParam, LPARAM lParam)
{
    MSG message = {};
    message.hwnd = hwnd;
    message.message = msg;
    message.wParam = wParam;
    message.lParam = lParam;
    try
    {
        const CCurrentMessage current(message);
        return Instance().Dispatch(message);
    }
    catch (CException* e)
    {
        // No exception may leave a window procedure; the framework's own procedures end them so, too.
        CWinThread* const thread = AfxGetThread();
        const LRESULT result = thread == NULL ? 0 : thread->ProcessWndProcException(e, &message);
        e->Delete();
        return result;
    }
}
