#include "tip/ToolTipXTButton.h"

#include "tip/ButtonTipPlace.h"
#include "tip/XTButtonToolTipWnd.h"

namespace
{

const UINT kTipId = 10001;
const CSize kTipSize(120, 74);
const COLORREF kTipBackground = RGB(255, 255, 200);
const COLORREF kTipTextColor = RGB(0, 0, 0);
const int kTipFontHeight = 12;

} // namespace

IMPLEMENT_DYNCREATE(CToolTipXTButton, CXTButton)

BEGIN_MESSAGE_MAP(CToolTipXTButton, CXTButton)
    ON_WM_DESTROY()
END_MESSAGE_MAP()

CToolTipXTButton::CToolTipXTButton(CRuntimeClass* theme)
    : CXTButton(theme), m_tipWnd(NULL), m_side(SIDE_ABOVE), m_tipSize(kTipSize)
{
}

CToolTipXTButton::~CToolTipXTButton()
{
    ShowTipWindow(0);
}

void CToolTipXTButton::SetToolTip(const wchar_t* text)
{
    m_tipText = text;
}

void CToolTipXTButton::SetToolTipWndSide(ESide side)
{
    m_side = side;
}

void CToolTipXTButton::SetToolTipWndSize(const CSize& size)
{
    m_tipSize = size;
}

BOOL CToolTipXTButton::PreTranslateMessage(MSG* message)
{
    switch (message->message)
    {
    case WM_MOUSEMOVE:
        ShowTipWindow(1);
        break;
    case WM_LBUTTONDOWN:
    case WM_KEYDOWN:
        HideTip();
        break;
    case WM_MOUSELEAVE:
        ShowTipWindow(0);
        break;
    }
    return CXTButton::PreTranslateMessage(message);
}

void CToolTipXTButton::DrawItem(DRAWITEMSTRUCT* item)
{
    if (!IsHot())
        ShowTipWindow(0);
    CXTButton::DrawItem(item);
}

void CToolTipXTButton::ShowTipWindow(int show)
{
    if (show == 0)
    {
        delete m_tipWnd;
        m_tipWnd = NULL;
    }
    else
    {
        OpenTip();
    }
}

void CToolTipXTButton::OnDestroy()
{
    ShowTipWindow(0);
    CXTButton::OnDestroy();
}

void CToolTipXTButton::OpenTip()
{
    // The window of a tip may have ended with the window that the button stands in.
    if (m_tipWnd->GetSafeHwnd() != NULL || GetSafeHwnd() == NULL)
        return;
    ShowTipWindow(0);
    CRect button;
    GetWindowRect(&button);
    const CSize screen(::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN));
    const CRect place(PlaceButtonTip(m_side, button, m_tipSize, screen), m_tipSize);
    m_tipWnd = new CXTButtonToolTipWnd(m_tipText, kTipBackground, kTipTextColor, kTipFontHeight);
    m_tipWnd->Create(place, this, kTipId);
}

void CToolTipXTButton::HideTip()
{
    if (m_tipWnd->GetSafeHwnd() != NULL)
        m_tipWnd->ShowWindow(SW_HIDE);
}
