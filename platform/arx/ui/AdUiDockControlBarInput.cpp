// The surface of a dock bar: what it draws and what the mouse does there.
#include "adui.h"

#include "arx/ui/Colours.h"
#include "arx/ui/DockBarParts.h"
#include "arx/ui/GdiGuards.h"
#include "arx/ui/UiFont.h"

namespace
{

const UINT_PTR rollUpTimer = 1;
const UINT rollUpInterval = 100;

enum MenuCommand
{
    menuDockLeft = 1,
    menuDockRight,
    menuFloat,
    menuRollUp,
    menuClose
};

} // namespace

bool CAdUiDockControlBar::HasCloseButton() const
{
    return true;
}

bool CAdUiDockControlBar::HasRollUpButton() const
{
    return false;
}

bool CAdUiDockControlBar::HasMenu() const
{
    return true;
}

void CAdUiDockControlBar::LayOutContents(const CRect& /*area*/) {}

void CAdUiDockControlBar::DrawContents(CDC& dc, const CRect& area)
{
    arxui::FillColour(dc.GetSafeHdc(), area, arxui::colours::surface);
}

bool CAdUiDockControlBar::ContentsClicked(CPoint /*point*/)
{
    return false;
}

void CAdUiDockControlBar::LayoutRestored(const arxui::PaletteLayout& layout)
{
    SetAutomaticRollUp(layout.autoRollUp);
    SetRolledUpState(layout.rolledUp);
}

void CAdUiDockControlBar::LayoutSaving(arxui::PaletteLayout& layout)
{
    layout.autoRollUp = m_parts->roll.IsAutomatic();
    layout.rolledUp = m_parts->roll.IsRolledUp();
}

void CAdUiDockControlBar::LayOut()
{
    CRect client;
    GetClientRect(&client);
    const RECT inside = arxui::InsideOf(client, m_parts->layout.side);
    m_parts->caption = arxui::LayOutCaption(inside, false, HasRollUpButton() && IsFloating(), HasCloseButton());
    LayOutContents(ContentsArea());
    Invalidate(FALSE);
}

CRect CAdUiDockControlBar::ContentsArea() const
{
    CRect client;
    GetClientRect(&client);
    CRect area(arxui::InsideOf(client, m_parts->layout.side));
    area.top = m_parts->caption.strip.bottom;
    if (area.bottom < area.top)
        area.bottom = area.top;
    return area;
}

void CAdUiDockControlBar::CloseByUser()
{
    if (!OnClosing())
        return;
    m_parts->frame->ShowControlBar(this, FALSE, FALSE);
    SaveLayout();
}

void CAdUiDockControlBar::SetRolledUpState(bool rolledUp)
{
    if (GetSafeHwnd() != NULL &&
        m_parts->roll.SetRolledUp(rolledUp && IsFloating()) != arxui::RollUpState::Change::None)
        ApplyLayout();
}

void CAdUiDockControlBar::SetAutomaticRollUp(bool automatic)
{
    const bool rolledBack = m_parts->roll.SetAutomatic(automatic) != arxui::RollUpState::Change::None;
    if (automatic)
        SetTimer(rollUpTimer, rollUpInterval, NULL);
    else
        KillTimer(rollUpTimer);
    if (rolledBack)
        ApplyLayout();
    InvalidateRect(&m_parts->caption.strip, FALSE);
}

bool CAdUiDockControlBar::IsRolledUpState() const
{
    return m_parts->roll.IsRolledUp();
}

bool CAdUiDockControlBar::IsAutomaticRollUp() const
{
    return m_parts->roll.IsAutomatic();
}

BOOL CAdUiDockControlBar::OnEraseBkgnd(CDC* /*pDC*/)
{
    return TRUE;
}

void CAdUiDockControlBar::OnPaint()
{
    CPaintDC paint(this);
    CRect client;
    GetClientRect(&client);
    const arxui::BackBuffer buffer(paint.GetSafeHdc(), client.Width(), client.Height());
    arxui::FillColour(buffer.Get(), client, arxui::colours::splitter);
    m_parts->drawnActive = IsActiveBar();
    const arxui::CaptionLook look{m_parts->name.GetString(),   m_parts->drawnActive, m_parts->roll.IsRolledUp(),
                                  m_parts->roll.IsAutomatic(), m_parts->hot,         m_parts->pressed};
    arxui::DrawCaption(buffer.Get(), m_parts->caption, look, arxui::UiFont());
    CDC dc;
    dc.Attach(buffer.Get());
    DrawContents(dc, ContentsArea());
    dc.Detach();
    buffer.Show();
}

int CAdUiDockControlBar::OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message)
{
    CPoint point;
    GetCursorPos(&point);
    ScreenToClient(&point);
    if (!IsFloating() || arxui::CaptionPartAt(m_parts->caption, point) == arxui::CaptionPart::None)
        return CControlBar::OnMouseActivate(pDesktopWnd, nHitTest, message);
    // Moving or closing a palette is no reason to take the focus from where the user works; and a frame that is
    // activated by the press loses the mouse capture again where the desktop hands the focus over late.
    m_parts->floating->SetWindowPos(&CWnd::wndTop, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    return MA_NOACTIVATE;
}

BOOL CAdUiDockControlBar::OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message)
{
    CPoint point;
    GetCursorPos(&point);
    ScreenToClient(&point);
    CRect client;
    GetClientRect(&client);
    const CRect splitter(arxui::SplitterOf(client, m_parts->layout.side));
    if (pWnd != this || !splitter.PtInRect(point))
        return CControlBar::OnSetCursor(pWnd, nHitTest, message);
    ::SetCursor(LoadCursor(NULL, arxui::IsUpright(m_parts->layout.side) ? IDC_SIZEWE : IDC_SIZENS));
    return TRUE;
}

void CAdUiDockControlBar::OnMouseMove(UINT nFlags, CPoint point)
{
    CControlBar::OnMouseMove(nFlags, point);
    CPoint screen(point);
    ClientToScreen(&screen);
    if (m_parts->drag)
        m_parts->drag->Track(screen);
    else
        UpdateHot(point);
}

void CAdUiDockControlBar::OnLButtonDown(UINT nFlags, CPoint point)
{
    CControlBar::OnLButtonDown(nFlags, point);
    CPoint screen(point);
    ClientToScreen(&screen);
    CRect client;
    GetClientRect(&client);
    const CRect splitter(arxui::SplitterOf(client, m_parts->layout.side));
    const arxui::CaptionPart part = arxui::CaptionPartAt(m_parts->caption, point);
    if (splitter.PtInRect(point))
        StartDrag(false, screen);
    else if (part == arxui::CaptionPart::Title)
        StartDrag(true, screen);
    else if (part != arxui::CaptionPart::None)
        PressButton(point);
    else
        ContentsClicked(point);
}

void CAdUiDockControlBar::OnLButtonDblClk(UINT nFlags, CPoint point)
{
    if (arxui::CaptionPartAt(m_parts->caption, point) != arxui::CaptionPart::Title)
    {
        OnLButtonDown(nFlags, point);
        return;
    }
    if (IsFloating())
        DockControlBar(0);
    else
        FloatControlBar(m_parts->layout.floating);
    SaveLayout();
}

void CAdUiDockControlBar::OnLButtonUp(UINT nFlags, CPoint point)
{
    CControlBar::OnLButtonUp(nFlags, point);
    const arxui::CaptionPart pressed = m_parts->pressed;
    CPoint screen(point);
    ClientToScreen(&screen);
    // The drag leaves its place before the capture goes: a lost capture cancels the drag that is still there.
    const std::unique_ptr<arxui::BarDrag> drag = std::move(m_parts->drag);
    if (::GetCapture() == m_hWnd)
        ReleaseCapture();
    if (drag)
        drag->Finish(screen);
    else if (pressed != arxui::CaptionPart::None && arxui::CaptionPartAt(m_parts->caption, point) == pressed)
    {
        if (pressed == arxui::CaptionPart::Close)
            CloseByUser();
        else
            SetAutomaticRollUp(!m_parts->roll.IsAutomatic());
    }
}

void CAdUiDockControlBar::OnRButtonUp(UINT nFlags, CPoint point)
{
    CControlBar::OnRButtonUp(nFlags, point);
    if (!HasMenu() || arxui::CaptionPartAt(m_parts->caption, point) == arxui::CaptionPart::None)
        return;
    ClientToScreen(&point);
    ShowMenu(point);
}

void CAdUiDockControlBar::OnCaptureChanged(CWnd* pWnd)
{
    CControlBar::OnCaptureChanged(pWnd);
    if (m_parts->reparenting || pWnd == this)
        return;
    m_parts->drag.reset();
    m_parts->pressed = arxui::CaptionPart::None;
    InvalidateRect(&m_parts->caption.strip, FALSE);
}

void CAdUiDockControlBar::OnTimer(UINT_PTR nIDEvent)
{
    CControlBar::OnTimer(nIDEvent);
    if (nIDEvent != rollUpTimer || !IsFloating() || !IsWindowVisible())
        return;
    CPoint cursor;
    GetCursorPos(&cursor);
    CRect rect;
    m_parts->floating->GetWindowRect(&rect);
    const bool held = IsActiveBar() || ::GetCapture() != NULL;
    const bool inside = rect.PtInRect(cursor) != FALSE;
    if (m_parts->roll.Observe(inside, held, GetTickCount()) != arxui::RollUpState::Change::None)
        ApplyLayout();
}

bool CAdUiDockControlBar::IsActiveBar() const
{
    const HWND focus = ::GetFocus();
    if (focus == NULL)
        return false;
    return ::IsChild(m_hWnd, focus) || (m_parts->floating && IsFloating() && focus == m_parts->floating->m_hWnd);
}

void CAdUiDockControlBar::StartDrag(bool place, CPoint screenPoint)
{
    using arxui::BarDrag;
    SetCapture();
    m_parts->drag = std::make_unique<BarDrag>(*this, place ? BarDrag::Kind::Place : BarDrag::Kind::Size, screenPoint);
}

void CAdUiDockControlBar::PressButton(CPoint point)
{
    SetCapture();
    m_parts->pressed = arxui::CaptionPartAt(m_parts->caption, point);
    InvalidateRect(&m_parts->caption.strip, FALSE);
}

void CAdUiDockControlBar::ShowMenu(CPoint screenPoint)
{
    CMenu menu;
    menu.CreatePopupMenu();
    const auto dockFlags = [this](arxui::DockSide side) {
        return arxui::IsSideAllowed(side, m_parts->allowedSides) ? MF_STRING : MF_STRING | MF_GRAYED;
    };
    menu.AppendMenu(dockFlags(arxui::DockSide::Left), menuDockLeft, L"固定到左侧(&L)");
    menu.AppendMenu(dockFlags(arxui::DockSide::Right), menuDockRight, L"固定到右侧(&R)");
    menu.AppendMenu(IsFloating() ? MF_STRING | MF_CHECKED : MF_STRING, menuFloat, L"浮动(&F)");
    if (HasRollUpButton() && IsFloating())
        menu.AppendMenu(m_parts->roll.IsAutomatic() ? MF_STRING | MF_CHECKED : MF_STRING, menuRollUp, L"自动卷起(&A)");
    menu.AppendMenu(MF_SEPARATOR);
    menu.AppendMenu(MF_STRING, menuClose, L"关闭(&C)");
    const UINT flags = TPM_RETURNCMD | TPM_RIGHTBUTTON;
    RunMenuCommand(::TrackPopupMenu(menu.m_hMenu, flags, screenPoint.x, screenPoint.y, 0, m_hWnd, NULL));
}

void CAdUiDockControlBar::RunMenuCommand(UINT command)
{
    if (command == menuDockLeft)
        DockControlBar(AFX_IDW_DOCKBAR_LEFT);
    else if (command == menuDockRight)
        DockControlBar(AFX_IDW_DOCKBAR_RIGHT);
    else if (command == menuFloat)
        FloatControlBar(m_parts->layout.floating);
    else if (command == menuRollUp)
        SetAutomaticRollUp(!m_parts->roll.IsAutomatic());
    else if (command == menuClose)
        CloseByUser();
    if (command != 0)
        SaveLayout();
}

void CAdUiDockControlBar::UpdateHot(CPoint point)
{
    const arxui::CaptionPart hot = arxui::CaptionPartAt(m_parts->caption, point);
    if (hot == m_parts->hot)
        return;
    m_parts->hot = hot;
    InvalidateRect(&m_parts->caption.strip, FALSE);
}
