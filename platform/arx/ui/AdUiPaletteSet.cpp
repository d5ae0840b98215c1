#include "aduiPaletteSet.h"

#include "arx/ui/Colours.h"
#include "arx/ui/DockBarParts.h"
#include "arx/ui/GdiGuards.h"
#include "arx/ui/UiFont.h"

#include <algorithm>

namespace
{

const int tabHeight = 24;
const int tabWidth = 96;
const int smallestExtent = 60;
const int solid = 100;
const int faintest = 10;
const int opaqueAlpha = 255;

} // namespace

IMPLEMENT_DYNCREATE(CAdUiPaletteSet, CAdUiDockControlBar)

BEGIN_MESSAGE_MAP(CAdUiPaletteSet, CAdUiDockControlBar)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_SIZE()
    ON_WM_PARENTNOTIFY()
END_MESSAGE_MAP()

CAdUiPaletteSet::CAdUiPaletteSet(int nStyle)
    : CAdUiDockControlBar(nStyle), m_active(-1), m_setStyle(0), m_opacity(solid)
{
}

CAdUiPaletteSet::~CAdUiPaletteSet()
{
    // Here the set's own overridables still answer; the base's destructor is too late for that.
    DestroyWindow();
}

BOOL CAdUiPaletteSet::Create(LPCTSTR lpszTitle, DWORD dwStyle, const RECT& rect, CWnd* pParent, DWORD dwPaletteSetStyle)
{
    m_setStyle = dwPaletteSetStyle;
    return CAdUiDockControlBar::Create(lpszTitle, dwStyle, rect, pParent, 0);
}

int CAdUiPaletteSet::AddPalette(CAdUiPalette* pPalette)
{
    if (GetSafeHwnd() == NULL || pPalette == NULL || pPalette->GetSafeHwnd() == NULL ||
        std::find(m_palettes.begin(), m_palettes.end(), pPalette) != m_palettes.end())
        return -1;
    if (pPalette->GetParent() != this)
        pPalette->SetParent(this);
    m_palettes.push_back(pPalette);
    const int index = GetPaletteCount() - 1;
    if (m_active < 0)
        SetActivePalette(index);
    else
        pPalette->ShowWindow(SW_HIDE);
    LayOut();
    return index;
}

BOOL CAdUiPaletteSet::RemovePalette(int nPaletteIndex)
{
    CAdUiPalette* palette = GetPalette(nPaletteIndex);
    if (palette == NULL)
        return FALSE;
    m_palettes.erase(m_palettes.begin() + nPaletteIndex);
    if (palette->GetSafeHwnd() != NULL)
        palette->ShowWindow(SW_HIDE);
    const bool wasActive = nPaletteIndex == m_active;
    if (nPaletteIndex < m_active || m_active >= GetPaletteCount())
        --m_active;
    if (wasActive && m_active >= 0)
        ShowActive();
    if (GetSafeHwnd() != NULL)
        LayOut();
    return TRUE;
}

int CAdUiPaletteSet::GetPaletteCount() const
{
    return static_cast<int>(m_palettes.size());
}

CAdUiPalette* CAdUiPaletteSet::GetPalette(int nPaletteIndex) const
{
    return nPaletteIndex >= 0 && nPaletteIndex < GetPaletteCount() ? m_palettes[nPaletteIndex] : NULL;
}

BOOL CAdUiPaletteSet::SetActivePalette(int nPaletteIndex)
{
    if (GetPalette(nPaletteIndex) == NULL)
        return FALSE;
    CAdUiPalette* before = GetActivePalette();
    m_active = nPaletteIndex;
    if (before != NULL && before != GetActivePalette())
        before->ShowWindow(SW_HIDE);
    ShowActive();
    LayOut();
    return TRUE;
}

CAdUiPalette* CAdUiPaletteSet::GetActivePalette() const
{
    return GetPalette(m_active);
}

int CAdUiPaletteSet::GetActivePaletteTabIndex() const
{
    return m_active;
}

DWORD CAdUiPaletteSet::GetPaletteSetStyle() const
{
    return m_setStyle;
}

void CAdUiPaletteSet::SetPaletteSetStyle(DWORD dwStyle)
{
    m_setStyle = dwStyle;
    if (GetSafeHwnd() == NULL)
        return;
    if (!AutoRollupStyle())
        SetAutomaticRollUp(false);
    LayOut();
}

BOOL CAdUiPaletteSet::AutoRollupStyle() const
{
    return (m_setStyle & PSS_AUTO_ROLLUP) != 0;
}

BOOL CAdUiPaletteSet::PropertiesMenuStyle() const
{
    return (m_setStyle & PSS_PROPERTIES_MENU) != 0;
}

BOOL CAdUiPaletteSet::CloseButtonStyle() const
{
    return (m_setStyle & PSS_CLOSE_BUTTON) != 0;
}

BOOL CAdUiPaletteSet::EditNameStyle() const
{
    return (m_setStyle & PSS_EDIT_NAME) != 0;
}

BOOL CAdUiPaletteSet::GetAutoRollup() const
{
    return IsAutomaticRollUp();
}

BOOL CAdUiPaletteSet::SetAutoRollup(BOOL bAutoRollup)
{
    if (GetSafeHwnd() == NULL || (bAutoRollup && !AutoRollupStyle()))
        return FALSE;
    SetAutomaticRollUp(bAutoRollup != FALSE);
    return TRUE;
}

BOOL CAdUiPaletteSet::GetRolledUp() const
{
    return IsRolledUpState();
}

void CAdUiPaletteSet::RollUp()
{
    SetRolledUpState(true);
}

void CAdUiPaletteSet::RollDown()
{
    SetRolledUpState(false);
}

void CAdUiPaletteSet::GetFullRect(CRect& rect) const
{
    if (IsFloating())
        GetFloatingRect(rect);
    else
        GetWindowRect(&rect);
}

int CAdUiPaletteSet::GetOpacity() const
{
    return m_opacity;
}

BOOL CAdUiPaletteSet::SetOpacity(int nOpacity)
{
    if (nOpacity < faintest || nOpacity > solid)
        return FALSE;
    m_opacity = nOpacity;
    ApplyOpacity();
    return TRUE;
}

BOOL CAdUiPaletteSet::Load(IUnknown* pUnk)
{
    BOOL loaded = TRUE;
    for (CAdUiPalette* palette : m_palettes)
        loaded = palette->Load(pUnk) && loaded;
    return loaded;
}

BOOL CAdUiPaletteSet::Save(IUnknown* pUnk)
{
    BOOL saved = TRUE;
    for (CAdUiPalette* palette : m_palettes)
        saved = palette->Save(pUnk) && saved;
    return saved;
}

void CAdUiPaletteSet::GetMinimumSize(CSize& size)
{
    size = CSize(smallestExtent, smallestExtent);
}

bool CAdUiPaletteSet::CanFrameworkTakeFocus()
{
    CAdUiPalette* palette = GetActivePalette();
    return palette == NULL || palette->CanFrameworkTakeFocus();
}

bool CAdUiPaletteSet::HasCloseButton() const
{
    return CloseButtonStyle() != FALSE;
}

bool CAdUiPaletteSet::HasRollUpButton() const
{
    return AutoRollupStyle() != FALSE;
}

bool CAdUiPaletteSet::HasMenu() const
{
    return PropertiesMenuStyle() != FALSE;
}

void CAdUiPaletteSet::LayOutContents(const CRect& area)
{
    CRect page(area);
    page.bottom = TabArea(area).top;
    CAdUiPalette* palette = GetActivePalette();
    if (palette != NULL && palette->GetSafeHwnd() != NULL && !IsRolledUpState())
        palette->MoveWindow(&page);
}

void CAdUiPaletteSet::DrawContents(CDC& dc, const CRect& area)
{
    CAdUiDockControlBar::DrawContents(dc, area);
    const CRect tabs = TabArea(area);
    const arxui::SelectGuard font(dc.GetSafeHdc(), arxui::UiFont());
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(arxui::colours::text);
    for (int i = 0; i < GetPaletteCount() && !tabs.IsRectEmpty(); ++i)
    {
        CRect tab = TabAt(tabs, i);
        const bool active = i == m_active;
        arxui::FillColour(dc.GetSafeHdc(), tab, active ? arxui::colours::tabActive : arxui::colours::tabIdle);
        dc.DrawText(m_palettes[i]->GetName(), &tab,
                    DT_SINGLELINE | DT_CENTER | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
    }
}

bool CAdUiPaletteSet::ContentsClicked(CPoint point)
{
    const CRect tabs = TabArea(ContentsArea());
    for (int i = 0; i < GetPaletteCount(); ++i)
    {
        if (TabAt(tabs, i).PtInRect(point))
            return SetActivePalette(i) != FALSE;
    }
    return false;
}

void CAdUiPaletteSet::LayoutRestored(const arxui::PaletteLayout& layout)
{
    CAdUiDockControlBar::LayoutRestored(layout);
    if (!AutoRollupStyle())
        SetAutomaticRollUp(false);
    SetActivePalette(layout.activeTab);
    Load(NULL);
}

void CAdUiPaletteSet::LayoutSaving(arxui::PaletteLayout& layout)
{
    CAdUiDockControlBar::LayoutSaving(layout);
    layout.activeTab = std::max(m_active, 0);
    Save(NULL);
}

int CAdUiPaletteSet::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    return CAdUiDockControlBar::OnCreate(lpCreateStruct);
}

void CAdUiPaletteSet::OnDestroy()
{
    CAdUiDockControlBar::OnDestroy();
}

void CAdUiPaletteSet::OnSize(UINT nType, int cx, int cy)
{
    CAdUiDockControlBar::OnSize(nType, cx, cy);
}

void CAdUiPaletteSet::OnParentNotify(UINT message, LPARAM lParam)
{
    CAdUiDockControlBar::OnParentNotify(message, lParam);
    const HWND child = reinterpret_cast<HWND>(lParam);
    const auto ending = std::find_if(m_palettes.begin(), m_palettes.end(),
                                     [&](CAdUiPalette* palette) { return palette->GetSafeHwnd() == child; });
    if (LOWORD(message) == WM_DESTROY && ending != m_palettes.end())
        RemovePalette(static_cast<int>(ending - m_palettes.begin()));
}

void CAdUiPaletteSet::ShowActive()
{
    CAdUiPalette* palette = GetActivePalette();
    palette->ShowWindow(SW_SHOW);
    palette->OnSetActive();
}

void CAdUiPaletteSet::ApplyOpacity()
{
    CWnd* frame = GetFloatingFrame();
    if (frame == NULL)
        return;
    if (m_opacity == solid)
    {
        frame->ModifyStyleEx(WS_EX_LAYERED, 0);
        return;
    }
    frame->ModifyStyleEx(0, WS_EX_LAYERED);
    ::SetLayeredWindowAttributes(frame->m_hWnd, 0, static_cast<BYTE>(MulDiv(m_opacity, opaqueAlpha, solid)), LWA_ALPHA);
}

// One palette needs no tab: the area is empty, at the lower edge.
CRect CAdUiPaletteSet::TabArea(const CRect& area) const
{
    CRect tabs(area);
    tabs.top = GetPaletteCount() > 1 ? std::max(area.top, area.bottom - tabHeight) : area.bottom;
    return tabs;
}

CRect CAdUiPaletteSet::TabAt(const CRect& tabs, int index) const
{
    const int width = std::min<int>(tabWidth, tabs.Width() / std::max(1, GetPaletteCount()));
    const int left = tabs.left + index * width;
    return CRect(left, tabs.top, left + width - 1, tabs.bottom);
}
