// The device contexts of a window.
#include "afx/core/Exceptions.h"
#include "afx/gdi/DC.h"
#include "afx/wnd/Wnd.h"

IMPLEMENT_DYNAMIC(CClientDC, CDC)
IMPLEMENT_DYNAMIC(CWindowDC, CDC)
IMPLEMENT_DYNAMIC(CPaintDC, CDC)

namespace
{
void AttachOrThrow(CDC& dc, HDC handle)
{
    if (!dc.Attach(handle))
        AfxThrowResourceException();
}
} // namespace

CClientDC::CClientDC(CWnd* window) : m_hWnd(window->GetSafeHwnd())
{
    AttachOrThrow(*this, ::GetDC(m_hWnd));
}

CClientDC::~CClientDC()
{
    ::ReleaseDC(m_hWnd, Detach());
}

CWindowDC::CWindowDC(CWnd* window) : m_hWnd(window->GetSafeHwnd())
{
    AttachOrThrow(*this, ::GetWindowDC(m_hWnd));
}

CWindowDC::~CWindowDC()
{
    ::ReleaseDC(m_hWnd, Detach());
}

CPaintDC::CPaintDC(CWnd* window) : m_ps(), m_hWnd(window->GetSafeHwnd())
{
    AttachOrThrow(*this, ::BeginPaint(m_hWnd, &m_ps));
}

CPaintDC::~CPaintDC()
{
    Detach();
    ::EndPaint(m_hWnd, &m_ps);
}
