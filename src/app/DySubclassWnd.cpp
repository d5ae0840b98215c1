#include "app/DySubclassWnd.h"

#include "app/HookDispatch.h"
#include "app/SubclassWndMap.h"

#include <afxstat_.h>

IMPLEMENT_DYNAMIC(CDySubclassWnd, CObject)

CDySubclassWnd::CDySubclassWnd() : m_hooked(NULL), m_previous(NULL), m_next(NULL), m_wasHooked(false) {}

CDySubclassWnd::~CDySubclassWnd()
{
    HookWindow(NULL);
    if (m_wasHooked)
        CHookDispatch::Forget(*this);
}

BOOL CDySubclassWnd::HookWindow(HWND hwnd)
{
    if (m_hooked != NULL)
        CSubclassWndMap::Instance().Remove(*this);
    if (hwnd != NULL)
        CSubclassWndMap::Instance().Add(hwnd, *this);
    return TRUE;
}

LRESULT CDySubclassWnd::WindowProc(UINT msg, WPARAM wParam, LPARAM lParam)
{
    if (!m_wasHooked)
        return 0;
    // A hook that left its chain during this message passes it on from the place that it had.
    LRESULT result = 0;
    if (CHookDispatch::PassOn(*this, msg, wParam, lParam, result))
        return result;
    if (m_next != NULL)
        return m_next->WindowProc(msg, wParam, lParam);
    return m_hooked == NULL ? 0 : ::CallWindowProc(m_previous, m_hooked, msg, wParam, lParam);
}

LRESULT CDySubclassWnd::Default()
{
    const MSG current = AfxGetThreadState()->m_lastSentMsg;
    return CDySubclassWnd::WindowProc(current.message, current.wParam, current.lParam);
}
