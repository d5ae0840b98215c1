#include "msg/FlatButtonFace.h"

#include "base/ImageSize.h"
#include "base/SelectedObject.h"

#include <algorithm>

namespace
{

const int kCornerEllipse = 2;
const int kFramePixels = 1;
const UINT kCaptionFormat = DT_WORDBREAK | DT_CENTER;

// Guard: text is drawn without a background while it lives.
class CTransparent
{
public:
    explicit CTransparent(CDC& dc) : m_dc(dc), m_mode(dc.SetBkMode(TRANSPARENT)), m_color(dc.GetTextColor()) {}

    ~CTransparent()
    {
        m_dc.SetBkMode(m_mode);
        m_dc.SetTextColor(m_color);
    }

private:
    CTransparent(const CTransparent&);
    CTransparent& operator=(const CTransparent&);

    CDC& m_dc;
    int m_mode;
    COLORREF m_color;
};

CPoint IconPlace(const CRect& client, CSize size)
{
    CRect inside(client);
    inside.DeflateRect(kFramePixels, kFramePixels);
    const LONG x = std::max<LONG>((inside.Width() - size.cx) / 2, 0);
    const LONG y = std::max<LONG>((inside.Height() - size.cy) / 2, 0);
    return CPoint(inside.left + x, inside.top + y);
}

void DrawCaption(CDC& dc, CRect place, const CString& caption, int color)
{
    dc.SetTextColor(::GetSysColor(color));
    dc.DrawText(caption, &place, kCaptionFormat);
}

} // namespace

void DrawFlatButtonFrame(CDC& dc, const CRect& client, FlatButtonFrame frame, COLORREF background)
{
    if (frame == FLAT_BUTTON_FLAT)
    {
        CBrush brush(background);
        dc.FillRect(&client, &brush);
    }
    else if (frame == FLAT_BUTTON_RAISED)
    {
        dc.Draw3dRect(&client, ::GetSysColor(COLOR_3DHILIGHT), ::GetSysColor(COLOR_3DSHADOW));
    }
    else
    {
        CBrush brush(background);
        const CSelectedObject selected(dc, brush.GetSafeHandle());
        dc.RoundRect(&client, CPoint(kCornerEllipse, kCornerEllipse));
        dc.Draw3dRect(&client, ::GetSysColor(COLOR_3DDKSHADOW), ::GetSysColor(COLOR_3DHILIGHT));
    }
}

CRect FlatButtonContentRect(const CRect& client)
{
    CRect content(client);
    content.OffsetRect(kFramePixels, kFramePixels);
    return content;
}

void DrawFlatButtonBitmap(CDC& dc, const CRect& client, HBITMAP bitmap, bool disabled)
{
    CSize size;
    if (GetBitmapSize(bitmap, size))
        dc.DrawState(FlatButtonContentRect(client).TopLeft(), size, bitmap,
                     DST_BITMAP | (disabled ? DSS_DISABLED : DSS_NORMAL));
}

void DrawFlatButtonIcon(CDC& dc, const CRect& client, HICON icon, bool disabled)
{
    CSize size;
    if (GetIconSize(icon, size))
        dc.DrawState(IconPlace(client, size), size, icon, disabled ? DSS_DISABLED : DSS_NORMAL);
}

void DrawFlatButtonCaption(CDC& dc, const CRect& client, const CString& caption, HFONT font, bool disabled)
{
    const CSelectedObject selected(dc, font);
    const CTransparent transparent(dc);
    const CRect content = FlatButtonContentRect(client);
    CRect place(content);
    dc.DrawText(caption, &place, kCaptionFormat | DT_CALCRECT);
    place.OffsetRect(content.CenterPoint() - place.CenterPoint());
    if (disabled)
    {
        DrawCaption(dc, place + CPoint(1, 1), caption, COLOR_3DHILIGHT);
        DrawCaption(dc, place, caption, COLOR_3DSHADOW);
    }
    else
    {
        DrawCaption(dc, place, caption, COLOR_BTNTEXT);
    }
}
