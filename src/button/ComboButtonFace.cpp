#include "button/ComboButtonFace.h"

#include "base/Gradient.h"
#include "base/SavedDC.h"
#include "button/ComboButtonStyle.h"

namespace
{

const COLORREF kPressedTop = RGB(209, 204, 193);
const COLORREF kPressedBottom = RGB(242, 241, 238);
const COLORREF kNormalTop = RGB(255, 255, 255);
const COLORREF kNormalBottom = RGB(214, 208, 197);
const COLORREF kPressedFlat = RGB(226, 225, 217);
const COLORREF kHotFrame = RGB(252, 202, 105);
const COLORREF kRoundBorder = RGB(0, 60, 116);
const COLORREF kSeparator = RGB(172, 168, 153);
const COLORREF kArrow = RGB(0, 0, 0);
const COLORREF kDisabledArrow = RGB(172, 172, 172);
const COLORREF kBlack = RGB(0, 0, 0);
const COLORREF kWhite = RGB(255, 255, 255);

const int kFrameMargin = 2; // pixels, as all below
const int kFocusMargin = 3;
const int kCorner = 5;
const int kSeparatorMargin = 2;

CRect Shrunk(const CRect& rect, int margin)
{
    CRect inner = rect;
    inner.DeflateRect(margin, margin);
    return inner;
}

// Nothing in a button that is too small for it.
void DrawFrame(CDC& dc, const CRect& rect, COLORREF topLeft, COLORREF bottomRight)
{
    if (rect.left < rect.right && rect.top < rect.bottom)
        dc.Draw3dRect(&rect, topLeft, bottomRight);
}

void DrawFrame(CDC& dc, const CRect& rect, int topLeftColor, int bottomRightColor)
{
    DrawFrame(dc, rect, ::GetSysColor(topLeftColor), ::GetSysColor(bottomRightColor));
}

void DrawHotFrame(CDC& dc, const CRect& button)
{
    DrawFrame(dc, Shrunk(button, kFrameMargin), kHotFrame, kHotFrame);
    DrawFrame(dc, Shrunk(button, kFrameMargin + 1), kHotFrame, kHotFrame);
}

void DrawFocus(CDC& dc, const CRect& button)
{
    const CRect inner = Shrunk(button, kFocusMargin);
    if (inner.left >= inner.right || inner.top >= inner.bottom)
        return;
    // The dots are made of the context's two colours.
    dc.SetTextColor(kBlack);
    dc.SetBkColor(kWhite);
    dc.DrawFocusRect(&inner);
}

void DrawRoundBorder(CDC& dc, const CRect& button)
{
    CPen pen(PS_SOLID, 1, kRoundBorder);
    const CSavedDC saved(dc);
    dc.SelectObject(&pen);
    dc.SelectStockObject(NULL_BRUSH);
    dc.RoundRect(&button, CPoint(kCorner, kCorner));
}

void Draw3dBorder(CDC& dc, CRect button, const ComboButtonState& state)
{
    if (ShowsBlackFrame(state))
    {
        DrawFrame(dc, button, kBlack, kBlack);
        button.DeflateRect(1, 1);
    }
    const CRect inner = Shrunk(button, 1);
    if (BorderOf(state) == BORDER_SUNKEN)
    {
        DrawFrame(dc, button, COLOR_3DDKSHADOW, COLOR_3DLIGHT);
        DrawFrame(dc, inner, COLOR_BTNSHADOW, COLOR_BTNHIGHLIGHT);
    }
    else
    {
        DrawFrame(dc, button, COLOR_BTNHIGHLIGHT, COLOR_3DDKSHADOW);
        DrawFrame(dc, inner, COLOR_3DLIGHT, COLOR_BTNSHADOW);
    }
}

void PaintBackground(CDC& dc, const CRect& rect, UINT style, bool pressed)
{
    const CSavedDC saved(dc);
    if ((style & CBTS_GRADIENT) != 0)
        FillGradient(dc, rect, pressed ? kPressedTop : kNormalTop, pressed ? kPressedBottom : kNormalBottom,
                     GRADIENT_DOWN);
    else
        dc.FillSolidRect(&rect, pressed ? kPressedFlat : ::GetSysColor(COLOR_BTNFACE));
}

void DrawSeparator(CDC& dc, const CRect& button)
{
    CPen pen(PS_SOLID, 1, kSeparator);
    const CSavedDC saved(dc);
    dc.SelectObject(&pen);
    const int x = DropZone(button).left;
    dc.MoveTo(x, kSeparatorMargin);
    dc.LineTo(x, button.bottom - kSeparatorMargin);
}

void DrawArrow(CDC& dc, const CRect& button, bool disabled)
{
    const COLORREF color = disabled ? kDisabledArrow : kArrow;
    CPen pen(PS_SOLID, 1, color);
    CBrush brush(color);
    const CSavedDC saved(dc);
    dc.SelectObject(&pen);
    dc.SelectObject(&brush);
    const ComboButtonArrow arrow = ArrowOf(button);
    dc.Polygon(arrow.corners, sizeof(arrow.corners) / sizeof(arrow.corners[0]));
}

} // namespace

void PaintFace(CDC& dc, const CRect& button, const ComboButtonState& state)
{
    PaintBackground(dc, button, state.style, state.pressed);
}

void PaintDropZone(CDC& dc, const CRect& button, const ComboButtonState& state)
{
    if (HasDropZone(state.itemCount))
        PaintBackground(dc, DropZone(button), state.style, IsDropZonePressed(state));
}

void DrawBorder(CDC& dc, const CRect& button, const ComboButtonState& state)
{
    const CSavedDC saved(dc);
    if (ShowsHotFrame(state))
        DrawHotFrame(dc, button);
    if (state.focused)
        DrawFocus(dc, button);
    const ComboButtonBorder border = BorderOf(state);
    if (border == BORDER_ROUND)
        DrawRoundBorder(dc, button);
    else if (border != BORDER_NONE)
        Draw3dBorder(dc, button, state);
}

void DrawDropSign(CDC& dc, const CRect& button, const ComboButtonState& state)
{
    if (!HasDropZone(state.itemCount))
        return;
    if (ShowsSeparator(state))
        DrawSeparator(dc, button);
    DrawArrow(dc, button, state.disabled);
}
