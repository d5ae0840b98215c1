#include "tip/ButtonTipDrawing.h"

#include "base/SavedDC.h"

namespace
{

const COLORREF kFrame = RGB(138, 138, 138);
const int kMargin = 3;

CSize MeasureText(CDC& dc, const CString& text, const CRect& client)
{
    CRect rect(client);
    rect.DeflateRect(kMargin, kMargin);
    dc.DrawText(text, text.GetLength(), &rect, DT_CALCRECT | DT_WORDBREAK);
    return rect.Size();
}

} // namespace

CRect ButtonTipTextRect(const CRect& client, CSize text)
{
    const CPoint corner(client.left + (client.Width() - text.cx) / 2, client.top + (client.Height() - text.cy) / 2);
    return CRect(corner, text);
}

void DrawButtonTip(CDC& dc, const CRect& client, const ButtonTipLook& look)
{
    const CSavedDC saved(dc);
    dc.FillSolidRect(&client, look.background);
    dc.Draw3dRect(&client, kFrame, kFrame);
    dc.SelectObject(look.font);
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(look.textColor);
    CRect text = ButtonTipTextRect(client, MeasureText(dc, look.text, client));
    dc.DrawText(look.text, look.text.GetLength(), &text, DT_WORDBREAK);
}
