#include "arx/ui/FloatingFrame.h"

#include "arx/ui/DockBarParts.h"

namespace arxui
{

BEGIN_MESSAGE_MAP(FloatingFrame, CWnd)
    ON_WM_CLOSE()
    ON_WM_SIZE()
    ON_WM_GETMINMAXINFO()
    ON_WM_WINDOWPOSCHANGED()
    ON_WM_ERASEBKGND()
    ON_WM_ACTIVATE()
END_MESSAGE_MAP()

FloatingFrame::FloatingFrame(CAdUiDockControlBar& bar) : m_bar(bar) {}

FloatingFrame::~FloatingFrame()
{
    DestroyWindow();
}

bool FloatingFrame::Create(CWnd* owner, const CRect& rect, const CString& title)
{
    const CString className = AfxRegisterWndClass(CS_DBLCLKS, LoadCursor(NULL, IDC_ARROW));
    return CreateEx(WS_EX_TOOLWINDOW, className, title, WS_POPUP | WS_THICKFRAME | WS_CLIPCHILDREN, rect, owner, 0) !=
           FALSE;
}

void FloatingFrame::TakeBar()
{
    CRect client;
    GetClientRect(&client);
    m_bar.m_parts->layingOut = true;
    m_bar.SetWindowPos(NULL, 0, 0, client.Width(), client.Height(), SWP_NOZORDER | SWP_NOACTIVATE);
    m_bar.m_parts->layingOut = false;
}

void FloatingFrame::MoveQuietly(const CRect& rect)
{
    m_quiet = true;
    SetWindowPos(NULL, rect.left, rect.top, rect.Width(), rect.Height(), SWP_NOZORDER | SWP_NOACTIVATE);
    m_quiet = false;
}

CSize FloatingFrame::FrameSizeOf(CSize barSize) const
{
    CRect rect(CPoint(0, 0), barSize);
    AdjustWindowRectEx(&rect, GetStyle(), FALSE, GetExStyle());
    return rect.Size();
}

void FloatingFrame::OnClose()
{
    m_bar.CloseByUser();
}

void FloatingFrame::OnSize(UINT nType, int cx, int cy)
{
    CWnd::OnSize(nType, cx, cy);
    if (m_bar.GetSafeHwnd() != NULL && m_bar.GetParent() == this)
        TakeBar();
}

void FloatingFrame::OnGetMinMaxInfo(MINMAXINFO* lpMMI)
{
    CWnd::OnGetMinMaxInfo(lpMMI);
    if (m_bar.GetSafeHwnd() == NULL)
        return;
    const CSize smallest = FrameSizeOf(m_bar.SmallestSize());
    lpMMI->ptMinTrackSize = CPoint(smallest.cx, smallest.cy);
    CSize largest(0, 0);
    m_bar.GetMaximumSize(largest);
    const CSize largestFrame = FrameSizeOf(largest);
    if (largest.cx > 0)
        lpMMI->ptMaxTrackSize.x = largestFrame.cx;
    if (largest.cy > 0)
        lpMMI->ptMaxTrackSize.y = largestFrame.cy;
}

void FloatingFrame::OnWindowPosChanged(WINDOWPOS* lpwndpos)
{
    CWnd::OnWindowPosChanged(lpwndpos);
    const UINT unmoved = SWP_NOMOVE | SWP_NOSIZE;
    if (m_quiet || (lpwndpos->flags & unmoved) == unmoved || IsIconic())
        return;
    CRect rect;
    GetWindowRect(&rect);
    m_bar.FrameMoved(rect);
}

BOOL FloatingFrame::OnEraseBkgnd(CDC* /*pDC*/)
{
    return TRUE;
}

void FloatingFrame::OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized)
{
    CWnd::OnActivate(nState, pWndOther, bMinimized);
    if (m_bar.GetSafeHwnd() != NULL)
        m_bar.Invalidate();
}

} // namespace arxui
