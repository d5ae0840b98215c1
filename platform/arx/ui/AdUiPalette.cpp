#include "aduiPaletteSet.h"

#include "arx/ui/Colours.h"
#include "arx/ui/GdiGuards.h"

IMPLEMENT_DYNCREATE(CAdUiPalette, CWnd)

BEGIN_MESSAGE_MAP(CAdUiPalette, CWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_SIZE()
    ON_WM_ERASEBKGND()
END_MESSAGE_MAP()

CAdUiPalette::CAdUiPalette() : m_set(NULL), m_paletteStyle(0) {}

CAdUiPalette::~CAdUiPalette()
{
    DestroyWindow();
}

BOOL CAdUiPalette::Create(DWORD dwStyle, LPCTSTR lpszTitle, CAdUiPaletteSet* pParent, DWORD dwPaletteStyle)
{
    if (pParent == NULL || pParent->GetSafeHwnd() == NULL)
        return FALSE;
    m_set = pParent;
    m_name = lpszTitle;
    m_paletteStyle = dwPaletteStyle;
    const CString className = AfxRegisterWndClass(CS_DBLCLKS, LoadCursor(NULL, IDC_ARROW));
    const DWORD style = dwStyle | WS_CHILD | WS_CLIPCHILDREN;
    return CWnd::Create(className, lpszTitle, style, CRect(0, 0, 0, 0), pParent, 0);
}

CString CAdUiPalette::GetName() const
{
    return m_name;
}

BOOL CAdUiPalette::SetName(LPCTSTR lpszName)
{
    if (lpszName == NULL)
        return FALSE;
    m_name = lpszName;
    if (m_set != NULL && m_set->GetSafeHwnd() != NULL)
        m_set->Invalidate(FALSE);
    return TRUE;
}

CAdUiPaletteSet* CAdUiPalette::GetPaletteSet() const
{
    return m_set;
}

BOOL CAdUiPalette::IsActive() const
{
    return m_set != NULL && m_set->GetActivePalette() == this;
}

DWORD CAdUiPalette::GetPaletteStyle() const
{
    return m_paletteStyle;
}

BOOL CAdUiPalette::Load(IUnknown* /*pUnk*/)
{
    return TRUE;
}

BOOL CAdUiPalette::Save(IUnknown* /*pUnk*/)
{
    return TRUE;
}

void CAdUiPalette::OnSetActive() {}

bool CAdUiPalette::CanFrameworkTakeFocus()
{
    return true;
}

int CAdUiPalette::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    return CWnd::OnCreate(lpCreateStruct);
}

void CAdUiPalette::OnDestroy()
{
    CWnd::OnDestroy();
}

void CAdUiPalette::OnSize(UINT nType, int cx, int cy)
{
    CWnd::OnSize(nType, cx, cy);
}

BOOL CAdUiPalette::OnEraseBkgnd(CDC* pDC)
{
    CRect client;
    GetClientRect(&client);
    arxui::FillColour(pDC->GetSafeHdc(), client, arxui::colours::surface);
    return TRUE;
}
