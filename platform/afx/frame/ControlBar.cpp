#include <afxpriv.h>

#include "afx/frame/ControlBar.h"

#include "afx/frame/FrameWnd.h"
#include "afx/gdi/DC.h"
#include "afx/wnd/MessageMacros.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CControlBar, CWnd)

BEGIN_MESSAGE_MAP(CControlBar, CWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_PAINT()
    ON_MESSAGE(WM_SIZEPARENT, &CControlBar::OnSizeParent)
    ON_MESSAGE(WM_IDLEUPDATECMDUI, &CControlBar::OnIdleUpdateCmdUI)
    ON_MESSAGE(WM_INITIALUPDATE, &CControlBar::OnInitialUpdate)
END_MESSAGE_MAP()

namespace
{
const int WholeEdge = 32767;
const int NoLength = -1;
const UINT KeepPlace = SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE;

bool IsMeantForOwner(UINT message)
{
    switch (message)
    {
    case WM_NOTIFY:
    case WM_COMMAND:
    case WM_DRAWITEM:
    case WM_MEASUREITEM:
    case WM_DELETEITEM:
    case WM_COMPAREITEM:
    case WM_VKEYTOITEM:
    case WM_CHARTOITEM:
        return true;
    default:
        return false;
    }
}

// Takes the bar's part off what is left and returns it.
CRect TakeEdge(AFX_SIZEPARENTPARAMS& layout, DWORD barStyle, CSize size)
{
    CRect bar = layout.rect;
    if (barStyle & CBRS_ORIENT_HORZ)
    {
        layout.sizeTotal.cx = std::max(layout.sizeTotal.cx, size.cx);
        layout.sizeTotal.cy += size.cy;
        if (barStyle & CBRS_ALIGN_TOP)
            layout.rect.top += size.cy;
        else
            layout.rect.bottom = bar.top = bar.bottom - size.cy;
    }
    else
    {
        layout.sizeTotal.cx += size.cx;
        layout.sizeTotal.cy = std::max(layout.sizeTotal.cy, size.cy);
        if (barStyle & CBRS_ALIGN_LEFT)
            layout.rect.left += size.cx;
        else
            layout.rect.right = bar.left = bar.right - size.cx;
    }
    return CRect(bar.TopLeft(), size);
}
} // namespace

CControlBar::CControlBar() = default;

CControlBar::~CControlBar()
{
    DestroyWindow(); // while the handlers of this class can still be called
}

void CControlBar::SetBarStyle(DWORD style)
{
    if (style == m_dwStyle)
        return;
    const DWORD oldStyle = m_dwStyle;
    m_dwStyle = style;
    OnBarStyleChange(oldStyle, style);
}

void CControlBar::SetBorders(int left, int top, int right, int bottom)
{
    m_cxLeftBorder = left;
    m_cyTopBorder = top;
    m_cxRightBorder = right;
    m_cyBottomBorder = bottom;
}

void CControlBar::SetBorders(LPCRECT rect)
{
    SetBorders(rect->left, rect->top, rect->right, rect->bottom);
}

CFrameWnd* CControlBar::GetDockingFrame() const
{
    return m_pDockSite != nullptr ? m_pDockSite : GetParentFrame();
}

BOOL CControlBar::IsVisible() const
{
    if (m_nStateFlags & delayHide)
        return FALSE;
    return (m_nStateFlags & delayShow) != 0 || (GetStyle() & WS_VISIBLE) != 0;
}

CSize CControlBar::CalcFixedLayout(BOOL stretch, BOOL horizontal)
{
    return CSize(stretch && horizontal ? WholeEdge : 0, stretch && !horizontal ? WholeEdge : 0);
}

CSize CControlBar::CalcDynamicLayout(int, DWORD mode)
{
    return CalcFixedLayout((mode & LM_STRETCH) != 0, (mode & LM_HORZ) != 0);
}

void CControlBar::CalcInsideRect(CRect& rect, BOOL horizontal) const
{
    const int line = 1;
    rect.left += (m_dwStyle & CBRS_BORDER_LEFT) ? line : 0;
    rect.top += (m_dwStyle & CBRS_BORDER_TOP) ? line : 0;
    rect.right -= (m_dwStyle & CBRS_BORDER_RIGHT) ? line : 0;
    rect.bottom -= (m_dwStyle & CBRS_BORDER_BOTTOM) ? line : 0;
    // The borders are given for a horizontal bar; a vertical one is turned.
    if (horizontal)
        rect.DeflateRect(m_cxLeftBorder, m_cyTopBorder, m_cxRightBorder, m_cyBottomBorder);
    else
        rect.DeflateRect(m_cyTopBorder, m_cxLeftBorder, m_cyBottomBorder, m_cxRightBorder);
}

void CControlBar::DelayShow(BOOL show)
{
    m_nStateFlags &= ~(delayHide | delayShow);
    const bool visible = (GetStyle() & WS_VISIBLE) != 0;
    if (show && !visible)
        m_nStateFlags |= delayShow;
    else if (!show && visible)
        m_nStateFlags |= delayHide;
}

DWORD CControlBar::RecalcDelayShow()
{
    if (m_nStateFlags & (delayHide | delayShow))
    {
        const UINT change = (m_nStateFlags & delayHide) ? SWP_HIDEWINDOW : SWP_SHOWWINDOW;
        m_nStateFlags &= ~(delayHide | delayShow);
        ::SetWindowPos(m_hWnd, nullptr, 0, 0, 0, 0, KeepPlace | change);
    }
    return GetStyle();
}

void CControlBar::OnBarStyleChange(DWORD, DWORD) {}

BOOL CControlBar::PreCreateWindow(CREATESTRUCT& create)
{
    if (!CWnd::PreCreateWindow(create))
        return FALSE;
    create.style |= WS_CLIPSIBLINGS; // bars overlap while the frame is being sized
    return TRUE;
}

void CControlBar::PostNcDestroy()
{
    if (m_bAutoDelete)
        delete this;
}

LRESULT CControlBar::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    CWnd* const owner = IsMeantForOwner(message) ? GetOwner() : nullptr;
    if (owner == nullptr)
        return CWnd::WindowProc(message, wParam, lParam);
    LRESULT result = 0;
    if (OnWndMsg(message, wParam, lParam, &result))
        return result;
    return owner->SendMessage(message, wParam, lParam);
}

void CControlBar::DrawBorders(CDC* dc, CRect& rect)
{
    const COLORREF light = ::GetSysColor(COLOR_BTNHIGHLIGHT);
    const COLORREF dark = ::GetSysColor(COLOR_BTNSHADOW);
    if (m_dwStyle & CBRS_BORDER_LEFT)
        dc->FillSolidRect(rect.left, rect.top, 1, rect.Height(), dark);
    if (m_dwStyle & CBRS_BORDER_TOP)
        dc->FillSolidRect(rect.left, rect.top, rect.Width(), 1, dark);
    if (m_dwStyle & CBRS_BORDER_RIGHT)
        dc->FillSolidRect(rect.right - 1, rect.top, 1, rect.Height(), light);
    if (m_dwStyle & CBRS_BORDER_BOTTOM)
        dc->FillSolidRect(rect.left, rect.bottom - 1, rect.Width(), 1, light);
    CalcInsideRect(rect, (m_dwStyle & CBRS_ORIENT_HORZ) != 0);
}

void CControlBar::DoPaint(CDC* dc)
{
    CRect rect;
    GetClientRect(&rect);
    DrawBorders(dc, rect);
}

int CControlBar::OnCreate(LPCREATESTRUCT create)
{
    if (CWnd::OnCreate(create) == -1)
        return -1;
    CWnd* const parent = GetParent();
    if (parent != nullptr && parent->IsFrameWnd())
    {
        m_pDockSite = static_cast<CFrameWnd*>(parent);
        m_pDockSite->AddControlBar(this);
    }
    return 0;
}

void CControlBar::OnDestroy()
{
    if (m_pDockSite != nullptr)
        m_pDockSite->RemoveControlBar(this);
    m_pDockSite = nullptr;
    CWnd::OnDestroy();
}

void CControlBar::OnPaint()
{
    CPaintDC dc(this);
    DoPaint(&dc);
}

LRESULT CControlBar::OnSizeParent(WPARAM, LPARAM lParam)
{
    AFX_SIZEPARENTPARAMS* const layout = reinterpret_cast<AFX_SIZEPARENTPARAMS*>(lParam);
    if (layout->hDWP != nullptr)
        RecalcDelayShow();
    if (!IsVisible() || IsFloating() || !(m_dwStyle & CBRS_ALIGN_ANY))
        return 0;

    const bool horizontal = (m_dwStyle & CBRS_ORIENT_HORZ) != 0;
    const DWORD mode = (horizontal ? LM_HORZ | LM_HORZDOCK : LM_VERTDOCK) | (layout->bStretch ? LM_STRETCH : 0);
    CSize size = CalcDynamicLayout(NoLength, mode);
    const CSize available = CRect(layout->rect).Size();
    size.cx = std::min(size.cx, available.cx);
    size.cy = std::min(size.cy, available.cy);
    AfxRepositionWindow(layout, m_hWnd, TakeEdge(*layout, m_dwStyle, size));
    return 0;
}

LRESULT CControlBar::OnIdleUpdateCmdUI(WPARAM disableIfNoHandler, LPARAM)
{
    if (!(GetStyle() & WS_VISIBLE))
        return 0;
    CWnd* const owner = GetOwner();
    CFrameWnd* const target =
        owner != nullptr && owner->IsFrameWnd() ? static_cast<CFrameWnd*>(owner) : GetParentFrame();
    if (target != nullptr)
        OnUpdateCmdUI(target, static_cast<BOOL>(disableIfNoHandler));
    return 0;
}

LRESULT CControlBar::OnInitialUpdate(WPARAM, LPARAM)
{
    return OnIdleUpdateCmdUI(TRUE, 0);
}
