#include "adui.h"

#include "arx/ui/DockBarParts.h"
#include "arx/ui/DockBarRegistry.h"

#include <algorithm>

namespace
{

// What a docked bar leaves of the frame for the drawing, pixels.
const int spaceForDrawing = 120;
const int defaultThickness = 240;
const int smallestExtent = 40;

DWORD AlignmentOf(arxui::DockSide side)
{
    switch (side)
    {
    case arxui::DockSide::Left:
        return CBRS_ALIGN_LEFT;
    case arxui::DockSide::Top:
        return CBRS_ALIGN_TOP;
    case arxui::DockSide::Right:
        return CBRS_ALIGN_RIGHT;
    case arxui::DockSide::Bottom:
        return CBRS_ALIGN_BOTTOM;
    default:
        return CBRS_FLOATING;
    }
}

CRect ScreenArea()
{
    return CRect(CPoint(GetSystemMetrics(SM_XVIRTUALSCREEN), GetSystemMetrics(SM_YVIRTUALSCREEN)),
                 CSize(GetSystemMetrics(SM_CXVIRTUALSCREEN), GetSystemMetrics(SM_CYVIRTUALSCREEN)));
}

} // namespace

IMPLEMENT_DYNAMIC(CAdUiDockControlBar, CControlBar)

BEGIN_MESSAGE_MAP(CAdUiDockControlBar, CControlBar)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_CLOSE()
    ON_WM_SIZE()
    ON_WM_WINDOWPOSCHANGING()
    ON_WM_WINDOWPOSCHANGED()
    ON_WM_SHOWWINDOW()
    ON_WM_ERASEBKGND()
    ON_WM_PAINT()
    ON_WM_MOUSEACTIVATE()
    ON_WM_SETCURSOR()
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_LBUTTONUP()
    ON_WM_RBUTTONUP()
    ON_WM_CAPTURECHANGED()
    ON_WM_TIMER()
END_MESSAGE_MAP()

CAdUiDockControlBar::CAdUiDockControlBar(int /*nStyle*/) : m_parts(new arxui::DockBarParts) {}

CAdUiDockControlBar::~CAdUiDockControlBar()
{
    DestroyWindow();
    m_parts->floating.reset();
}

BOOL CAdUiDockControlBar::Create(LPCTSTR lpszTitle, DWORD dwStyle, const RECT& rect, CWnd* pParent, UINT nID)
{
    m_parts->frame = DYNAMIC_DOWNCAST(CFrameWnd, pParent);
    if (m_parts->frame == NULL)
        return FALSE;
    m_parts->name = lpszTitle;
    m_parts->layout.floating = arxui::KeepReachable(rect, ScreenArea());
    m_parts->layout.width = std::max<int>(rect.right - rect.left, defaultThickness);
    m_parts->layout.height = std::max<int>(rect.bottom - rect.top, smallestExtent);
    const CString className = AfxRegisterWndClass(CS_DBLCLKS, LoadCursor(NULL, IDC_ARROW));
    // The caption styles that clients pass belong to the floating frame; a docked bar is a plain child.
    const DWORD style = WS_CHILD | WS_CLIPCHILDREN | WS_CLIPSIBLINGS | (dwStyle & WS_VISIBLE);
    if (!CWnd::Create(className, lpszTitle, style, CRect(0, 0, 0, 0), pParent, nID))
        return FALSE;
    CRect floating(m_parts->layout.floating);
    InitFloatingPosition(&floating);
    FloatControlBar(floating);
    return TRUE;
}

void CAdUiDockControlBar::SetToolID(const void* pToolId)
{
    m_parts->hasToolId = pToolId != NULL;
    if (pToolId != NULL)
        m_parts->toolId = *static_cast<const CLSID*>(pToolId);
}

void* CAdUiDockControlBar::GetToolID()
{
    return m_parts->hasToolId ? &m_parts->toolId : NULL;
}

CString CAdUiDockControlBar::GetName() const
{
    return m_parts->name;
}

BOOL CAdUiDockControlBar::SetName(LPCTSTR lpszName)
{
    if (lpszName == NULL)
        return FALSE;
    m_parts->name = lpszName;
    if (GetSafeHwnd() == NULL)
        return TRUE;
    SetWindowText(lpszName);
    if (m_parts->floating)
        m_parts->floating->SetWindowText(lpszName);
    Invalidate();
    return TRUE;
}

void CAdUiDockControlBar::EnableDocking(DWORD dwDockStyle)
{
    m_parts->allowedSides = dwDockStyle & CBRS_ALIGN_ANY;
    m_dwDockStyle = m_parts->allowedSides;
}

void CAdUiDockControlBar::RestoreControlBar(int nPreferredDockBar, const CRect* pRect)
{
    if (GetSafeHwnd() == NULL)
        return;
    arxui::PaletteLayout saved;
    if (m_parts->hasToolId && arxui::ReadLayout(m_parts->toolId, saved))
    {
        saved.floating = arxui::KeepReachable(saved.floating, ScreenArea());
        m_parts->layout = saved;
        if (!arxui::IsSideAllowed(saved.side, m_parts->allowedSides))
            m_parts->layout.side = arxui::DockSide::Floating;
        ApplyLayout();
        LayoutRestored(saved);
        m_parts->frame->ShowControlBar(this, saved.visible, FALSE);
    }
    else if (nPreferredDockBar == AFX_IDW_DOCKBAR_FLOAT)
        FloatControlBar(pRect != NULL ? *pRect : FrameRect());
    else
        DockControlBar(nPreferredDockBar);
}

BOOL CAdUiDockControlBar::DockControlBar(UINT nDockBarID, LPCRECT lpRect)
{
    const arxui::DockSide side = nDockBarID == 0 ? m_parts->lastDocked : arxui::SideOfDockBar(nDockBarID);
    if (GetSafeHwnd() == NULL || side == arxui::DockSide::Floating ||
        !arxui::IsSideAllowed(side, m_parts->allowedSides))
        return FALSE;
    if (lpRect != NULL && !::IsRectEmpty(lpRect))
    {
        const CRect rect(*lpRect);
        m_parts->layout.SetThickness(side, arxui::IsUpright(side) ? rect.Width() : rect.Height());
    }
    m_parts->layout.side = side;
    m_parts->lastDocked = side;
    ApplyLayout();
    return TRUE;
}

void CAdUiDockControlBar::FloatControlBar(const CRect& rect)
{
    if (GetSafeHwnd() == NULL)
        return;
    m_parts->layout.side = arxui::DockSide::Floating;
    m_parts->layout.floating = rect;
    ApplyLayout();
}

BOOL CAdUiDockControlBar::IsFloating() const
{
    return m_parts->layout.side == arxui::DockSide::Floating;
}

UINT CAdUiDockControlBar::GetDockBarID() const
{
    return arxui::DockBarOfSide(m_parts->layout.side);
}

CWnd* CAdUiDockControlBar::GetFloatingFrame() const
{
    return IsFloating() ? m_parts->floating.get() : NULL;
}

void CAdUiDockControlBar::GetFloatingRect(CRect& rect) const
{
    rect = m_parts->layout.floating;
}

void CAdUiDockControlBar::SetDockedSize(int thickness)
{
    if (IsFloating())
        return;
    m_parts->layout.SetThickness(m_parts->layout.side, thickness);
    m_parts->layout.SetThickness(m_parts->layout.side, DockedThickness());
    RecalcFrame();
}

void CAdUiDockControlBar::SaveLayout()
{
    if (!m_parts->hasToolId || GetSafeHwnd() == NULL)
        return;
    m_parts->layout.visible = (GetStyle() & WS_VISIBLE) != 0;
    LayoutSaving(m_parts->layout);
    arxui::WriteLayout(m_parts->toolId, m_parts->layout);
}

void CAdUiDockControlBar::GetMinimumSize(CSize& size)
{
    size = CSize(smallestExtent, smallestExtent);
}

void CAdUiDockControlBar::GetMaximumSize(CSize& size)
{
    size = CSize(0, 0);
}

bool CAdUiDockControlBar::CanFrameworkTakeFocus()
{
    return true;
}

BOOL CAdUiDockControlBar::OnClosing()
{
    return TRUE;
}

void CAdUiDockControlBar::SizeChanged(CRect* /*lpRect*/, BOOL /*bFloating*/, int /*flags*/) {}

void CAdUiDockControlBar::InitFloatingPosition(CRect* /*pRect*/) {}

CSize CAdUiDockControlBar::CalcFixedLayout(BOOL bStretch, BOOL bHorz)
{
    const int unlimited = 32767;
    const int along = bStretch ? unlimited : 0;
    const int thickness = DockedThickness();
    return bHorz ? CSize(along, thickness) : CSize(thickness, along);
}

void CAdUiDockControlBar::OnUpdateCmdUI(CFrameWnd* /*pTarget*/, BOOL /*bDisableIfNoHndler*/)
{
    if (m_parts->drawnActive != IsActiveBar())
        InvalidateRect(&m_parts->caption.strip, FALSE);
}

BOOL CAdUiDockControlBar::DestroyWindow()
{
    // The system hides a window before it tells it of its end; the layout has to say what was before.
    SaveLayout();
    m_parts->ending = true;
    const BOOL destroyed = CControlBar::DestroyWindow();
    m_parts->ending = false;
    // The frame outlives its child, so that it isn't destroyed in the middle of the child's own end.
    m_parts->floating.reset();
    return destroyed;
}

int CAdUiDockControlBar::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CControlBar::OnCreate(lpCreateStruct) == -1)
        return -1;
    arxui::AddDockBar(this);
    return 0;
}

void CAdUiDockControlBar::OnDestroy()
{
    if (!m_parts->ending)
        SaveLayout();
    arxui::RemoveDockBar(this);
    m_parts->drag.reset();
    CControlBar::OnDestroy();
}

void CAdUiDockControlBar::OnClose()
{
    CloseByUser();
}

void CAdUiDockControlBar::OnSize(UINT nType, int cx, int cy)
{
    CControlBar::OnSize(nType, cx, cy);
    LayOut();
    CRect rect;
    GetWindowRect(&rect);
    SizeChanged(&rect, IsFloating(), 0);
}

void CAdUiDockControlBar::OnWindowPosChanging(WINDOWPOS* lpwndpos)
{
    CControlBar::OnWindowPosChanging(lpwndpos);
    if (IsFloating() && m_parts->floating && GetParent() == m_parts->floating.get() && !m_parts->layingOut &&
        !m_parts->reparenting)
        MoveFrameInstead(*lpwndpos);
}

void CAdUiDockControlBar::OnWindowPosChanged(WINDOWPOS* lpwndpos)
{
    CControlBar::OnWindowPosChanged(lpwndpos);
    if ((lpwndpos->flags & SWP_SHOWWINDOW) != 0)
        SyncFrame(true);
    if ((lpwndpos->flags & SWP_HIDEWINDOW) != 0)
        SyncFrame(false);
}

void CAdUiDockControlBar::OnShowWindow(BOOL bShow, UINT nStatus)
{
    CControlBar::OnShowWindow(bShow, nStatus);
    if (nStatus == 0)
        SyncFrame(bShow != FALSE);
}

void CAdUiDockControlBar::ApplyLayout()
{
    m_dwStyle = (m_dwStyle & ~(CBRS_ALIGN_ANY | CBRS_FLOATING)) | AlignmentOf(m_parts->layout.side);
    if (IsFloating())
        ApplyFloating();
    else
        ApplyDocked();
    LayOut();
}

void CAdUiDockControlBar::ApplyFloating()
{
    if (!m_parts->floating)
    {
        m_parts->floating = std::make_unique<arxui::FloatingFrame>(*this);
        m_parts->floating->Create(m_parts->frame, m_parts->layout.floating, m_parts->name);
    }
    const bool wasDocked = GetParent() != m_parts->floating.get();
    if (wasDocked)
        MoveToParent(m_parts->floating.get());
    m_parts->floating->MoveQuietly(FrameRect());
    m_parts->floating->TakeBar();
    if (!wasDocked)
        return;
    SyncFrame((GetStyle() & WS_VISIBLE) != 0);
    RecalcFrame();
}

void CAdUiDockControlBar::ApplyDocked()
{
    if (GetParent() != m_parts->frame)
        MoveToParent(m_parts->frame);
    if (m_parts->floating)
        m_parts->floating->ShowWindow(SW_HIDE);
    // Bars are laid out from the top of the Z order: the one docked last stands innermost.
    SetWindowPos(&CWnd::wndBottom, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    SetDockedSize(m_parts->layout.ThicknessAt(m_parts->layout.side));
}

void CAdUiDockControlBar::MoveToParent(CWnd* parent)
{
    const bool captured = ::GetCapture() == m_hWnd;
    m_parts->reparenting = true;
    SetParent(parent);
    // The system takes the capture from a window it hides on the way.
    if (captured)
        SetCapture();
    m_parts->reparenting = false;
}

void CAdUiDockControlBar::SyncFrame(bool shown)
{
    if (m_parts->reparenting || !IsFloating() || !m_parts->floating || m_parts->floating->GetSafeHwnd() == NULL)
        return;
    m_parts->floating->ShowWindow(shown ? SW_SHOWNOACTIVATE : SW_HIDE);
}

void CAdUiDockControlBar::RecalcFrame()
{
    if (m_parts->frame->GetSafeHwnd() != NULL)
        m_parts->frame->RecalcLayout();
}

void CAdUiDockControlBar::FrameMoved(const CRect& rect)
{
    if (!IsFloating())
        return;
    const CRect before(m_parts->layout.floating);
    m_parts->layout.floating = rect;
    if (m_parts->roll.IsRolledUp())
        m_parts->layout.floating.bottom = rect.top + before.Height();
}

// A client may move a floating bar as if it were a top-level window: the frame around it follows. A move is read as
// screen coordinates, because that is what GetWindowRect gave the client.
void CAdUiDockControlBar::MoveFrameInstead(WINDOWPOS& position)
{
    const UINT unmoved = SWP_NOMOVE | SWP_NOSIZE;
    if ((position.flags & unmoved) == unmoved)
        return;
    CRect wanted;
    GetWindowRect(&wanted);
    if ((position.flags & SWP_NOSIZE) == 0)
        wanted.BottomRight() = wanted.TopLeft() + CSize(position.cx, position.cy);
    if ((position.flags & SWP_NOMOVE) == 0)
        wanted.MoveToXY(position.x, position.y);
    const CSize border = m_parts->floating->FrameSizeOf(CSize(0, 0));
    wanted.InflateRect(border.cx / 2, border.cy / 2);
    m_parts->floating->MoveWindow(&wanted);
    CRect client;
    m_parts->floating->GetClientRect(&client);
    position.x = position.y = 0;
    position.cx = client.Width();
    position.cy = client.Height();
}

// Where the floating frame belongs, rolled up or open.
CRect CAdUiDockControlBar::FrameRect() const
{
    CRect rect(m_parts->layout.floating);
    if (m_parts->roll.IsRolledUp() && m_parts->floating)
        rect.bottom = rect.top + m_parts->floating->FrameSizeOf(CSize(0, arxui::captionHeight)).cy;
    return rect;
}

int CAdUiDockControlBar::DockedThickness() const
{
    const bool upright = arxui::IsUpright(m_parts->layout.side);
    CRect area;
    m_parts->frame->GetClientRect(&area);
    CSize smallest;
    const_cast<CAdUiDockControlBar*>(this)->GetMinimumSize(smallest);
    const int minimum = upright ? smallest.cx : smallest.cy;
    const int available = upright ? area.Width() : area.Height();
    const int wanted = m_parts->layout.ThicknessAt(m_parts->layout.side);
    return arxui::LimitThickness(wanted > 0 ? wanted : defaultThickness, minimum, available, spaceForDrawing);
}

CSize CAdUiDockControlBar::SmallestSize()
{
    CSize smallest;
    GetMinimumSize(smallest);
    if (m_parts->roll.IsRolledUp())
        smallest.cy = arxui::captionHeight;
    return smallest;
}
