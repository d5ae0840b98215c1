#include "tip/XTButtonToolTipWnd.h"

#include "tip/ButtonTipDrawing.h"
#include "tip/TipWindow.h"

namespace
{

const wchar_t kWindowClass[] = L"ZNXTButtonToolTipWnd";
const int kUsualFontHeight = 12;

} // namespace

IMPLEMENT_DYNAMIC(CXTButtonToolTipWnd, CWnd)

BEGIN_MESSAGE_MAP(CXTButtonToolTipWnd, CWnd)
    ON_WM_PAINT()
END_MESSAGE_MAP()

CXTButtonToolTipWnd::CXTButtonToolTipWnd(const wchar_t* text, COLORREF background, COLORREF textColor, int fontHeight)
    : m_text(text), m_background(background), m_textColor(textColor)
{
    CreateTipFont(m_font, fontHeight < 1 ? kUsualFontHeight : fontHeight);
}

CXTButtonToolTipWnd::~CXTButtonToolTipWnd()
{
    DestroyWindow();
}

BOOL CXTButtonToolTipWnd::Create(const RECT& rect, CWnd* parent, UINT)
{
    RegisterTipClass(kWindowClass, CS_SAVEBITS | CS_DROPSHADOW, static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH)));
    // Windows takes the identifier of a popup for a menu, and refuses it.
    if (!CreateEx(WS_EX_TOOLWINDOW, kWindowClass, kWindowClass, WS_POPUP, rect.left, rect.top, rect.right - rect.left,
                  rect.bottom - rect.top, parent->GetSafeHwnd(), NULL))
        return FALSE;
    return SetWindowPos(&wndTop, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_SHOWWINDOW);
}

void CXTButtonToolTipWnd::OnPaint()
{
    CPaintDC dc(this);
    CRect client;
    GetClientRect(&client);
    const ButtonTipLook look = {m_text, &m_font, m_background, m_textColor};
    DrawButtonTip(dc, client, look);
}
