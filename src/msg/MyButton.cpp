#include "msg/MyButton.h"

#include "base/ImageSize.h"
#include "base/SelectedObject.h"
#include "msg/FlatButtonFace.h"

namespace
{

const DWORD kImageStyles = BS_BITMAP | BS_ICON;
const DWORD kOwnStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_OWNERDRAW;
const int kFrames = 2; // pixels that two opposite edges of the frame take

// Copies a bitmap into the upper left corner of another one, which is filled with a colour before.
void Compose(CBitmap& target, CSize size, HBITMAP source, CSize sourceSize, COLORREF background)
{
    CDC targetDC;
    CDC sourceDC;
    if (!targetDC.CreateCompatibleDC(NULL) || !sourceDC.CreateCompatibleDC(NULL))
        return;
    const CSelectedObject selectedTarget(targetDC, target.GetSafeHandle());
    const CSelectedObject selectedSource(sourceDC, source);
    targetDC.FillSolidRect(0, 0, size.cx, size.cy, background);
    if (selectedSource.IsSelected())
        targetDC.BitBlt(0, 0, sourceSize.cx, sourceSize.cy, &sourceDC, 0, 0, SRCCOPY);
}

} // namespace

IMPLEMENT_DYNAMIC(CMyButton, CButton)

BEGIN_MESSAGE_MAP(CMyButton, CButton)
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSELEAVE()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
END_MESSAGE_MAP()

CMyButton::CMyButton()
    : m_hovering(false), m_focused(false), m_style(0), m_checked(0), m_hoverState(IDLE), m_drawState(0), m_font(NULL),
      m_bitmap(NULL), m_icon(NULL), m_checkedIcon(NULL), m_background(::GetSysColor(COLOR_3DFACE))
{
}

CMyButton::~CMyButton()
{
    delete m_bitmap;
}

void CMyButton::SetCheck(int state)
{
    m_checked = state;
    if (m_checked != 0)
        m_drawState |= ODS_CHECKED;
    else
        m_drawState &= ~static_cast<UINT>(ODS_CHECKED);
    if (m_hWnd == NULL)
        return;
    DrawNow(false);
    SendMessage(BM_SETCHECK, state);
}

void CMyButton::SetBitmap(HBITMAP bitmap)
{
    delete m_bitmap;
    m_bitmap = NULL;
    CRect client;
    CSize source;
    if (m_hWnd == NULL || !GetBitmapSize(bitmap, source))
        return;
    GetClientRect(&client);
    const CSize size(client.Width() - kFrames, client.Height() - kFrames);
    if (size.cx < 1 || size.cy < 1)
        return;
    CClientDC dc(this);
    m_bitmap = new CBitmap;
    if (m_bitmap->CreateCompatibleBitmap(&dc, size.cx, size.cy))
        Compose(*m_bitmap, size, bitmap, source, m_background);
}

void CMyButton::SetIcon(HICON icon)
{
    m_icon = icon;
}

void CMyButton::SetCheckedIcon(HICON icon)
{
    m_checkedIcon = icon;
}

void CMyButton::SetBackgroundColor(COLORREF color)
{
    m_background = color;
    if (m_hWnd != NULL)
        Invalidate();
}

void CMyButton::DrawItem(LPDRAWITEMSTRUCT drawItem)
{
    m_drawState = drawItem->itemState;
    if (m_checked != 0)
        m_drawState |= ODS_CHECKED;
    const bool sunken = (m_drawState & (ODS_SELECTED | ODS_CHECKED)) != 0;
    CRect client;
    GetClientRect(&client);
    CDC& dc = *CDC::FromHandle(drawItem->hDC);
    DrawFlatButtonFrame(dc, client, sunken ? FLAT_BUTTON_SUNKEN : FLAT_BUTTON_FLAT, m_background);
    DrawContent(dc, client);
    m_hoverState = (drawItem->itemState & ODS_SELECTED) != 0 ? PRESSED : IDLE;
}

void CMyButton::PreSubclassWindow()
{
    // A former window may have gone with the mouse over it.
    m_hovering = false;
    m_focused = false;
    m_hoverState = IDLE;
    CWnd* const parent = GetParent();
    m_font = parent == NULL ? NULL : reinterpret_cast<HFONT>(parent->SendMessage(WM_GETFONT));
    m_style = (GetStyle() & kImageStyles) | kOwnStyle;
    ::SetWindowLongPtr(m_hWnd, GWL_STYLE, static_cast<LONG_PTR>(m_style));
    CButton::PreSubclassWindow();
}

void CMyButton::OnMouseMove(UINT, CPoint point)
{
    m_hovering = true;
    if (m_hoverState == IDLE)
        m_hoverState = HOVERED;
    if (m_hoverState == HOVERED)
    {
        if (::GetCapture() != m_hWnd)
            SetCapture();
        DrawNow(true);
    }
    CRect client;
    GetClientRect(&client);
    if (!client.PtInRect(point))
    {
        ReleaseMouse();
        Reset();
    }
    Default();
}

void CMyButton::OnMouseLeave()
{
    Reset();
    Default();
}

void CMyButton::OnSetFocus(CWnd* oldWindow)
{
    m_focused = true;
    CButton::OnSetFocus(oldWindow);
}

void CMyButton::OnKillFocus(CWnd* newWindow)
{
    m_focused = false;
    ReleaseMouse();
    Reset();
    CButton::OnKillFocus(newWindow);
}

// The frame and the content at once: sunken when checked, else raised or flat.
void CMyButton::DrawNow(bool hovered)
{
    CRect client;
    GetClientRect(&client);
    CClientDC dc(this);
    const FlatButtonFrame unchecked = hovered ? FLAT_BUTTON_RAISED : FLAT_BUTTON_FLAT;
    const bool checked = (m_drawState & ODS_CHECKED) != 0;
    DrawFlatButtonFrame(dc, client, checked ? FLAT_BUTTON_SUNKEN : unchecked, m_background);
    DrawContent(dc, client);
}

void CMyButton::DrawContent(CDC& dc, const CRect& client)
{
    const bool disabled = (m_drawState & ODS_DISABLED) != 0;
    if ((m_style & BS_BITMAP) != 0 && m_bitmap != NULL)
    {
        DrawFlatButtonBitmap(dc, client, static_cast<HBITMAP>(m_bitmap->GetSafeHandle()), disabled);
        return;
    }
    const HICON icon = ShownIcon();
    if ((m_style & BS_ICON) != 0 && icon != NULL)
    {
        DrawFlatButtonIcon(dc, client, icon, disabled);
        return;
    }
    CString caption;
    GetWindowText(caption);
    DrawFlatButtonCaption(dc, client, caption, m_font, disabled);
}

HICON CMyButton::ShownIcon() const
{
    return m_checked != 0 && m_checkedIcon != NULL ? m_checkedIcon : m_icon;
}

void CMyButton::ReleaseMouse()
{
    if (::GetCapture() == m_hWnd)
        ::ReleaseCapture();
}

void CMyButton::Reset()
{
    m_hovering = false;
    m_hoverState = IDLE;
    DrawNow(false);
}
