#include "button/ComboButtonLayout.h"

#include "button/ComboButtonStyle.h"

namespace
{

const int kFewestItemsToChoose = 2;
const int kDropWidth = 17; // pixels, as all below
const int kGap = 3;        // between image and caption
const int kPressedShift = 1;
const int kArrowLeft = 13; // from the button's right edge
const int kArrowRight = 5;
const int kArrowHeight = 4;

int Centred(int centre, int size)
{
    return centre - size / 2;
}

CPoint CentredAt(const CPoint& centre, const CSize& size)
{
    return CPoint(Centred(centre.x, size.cx), Centred(centre.y, size.cy));
}

void PlaceAbove(const CPoint& centre, const CSize& image, const CSize& caption, ComboButtonContent& content)
{
    const int top = Centred(centre.y, image.cy + kGap + caption.cy);
    content.image = CPoint(Centred(centre.x, image.cx), top);
    content.caption = CPoint(Centred(centre.x, caption.cx), top + image.cy + kGap);
}

void PlaceBeside(const CPoint& centre, const CSize& image, const CSize& caption, ComboButtonContent& content)
{
    const int left = Centred(centre.x, image.cx + kGap + caption.cx);
    content.image = CPoint(left, Centred(centre.y, image.cy));
    content.caption = CPoint(left + image.cx + kGap, Centred(centre.y, caption.cy));
}

bool IsRaisedOverOthers(const ComboButtonState& state)
{
    return state.pressed || state.hot || state.menuShown;
}

} // namespace

bool HasDropZone(INT_PTR itemCount)
{
    return itemCount >= kFewestItemsToChoose;
}

CRect DropZone(const CRect& button)
{
    return CRect(button.right - kDropWidth, button.top, button.right, button.bottom);
}

CRect ContentArea(const CRect& button, INT_PTR itemCount)
{
    CRect area = button;
    if (HasDropZone(itemCount))
        area.right -= kDropWidth;
    return area;
}

bool ShowsHotFrame(const ComboButtonState& state)
{
    return state.hot && (state.style & CBTS_HOTFRAME) != 0;
}

ComboButtonBorder BorderOf(const ComboButtonState& state)
{
    if ((state.style & CBTS_FLAT) != 0 && !IsRaisedOverOthers(state))
        return BORDER_NONE;
    if ((state.style & CBTS_ROUND) != 0)
        return BORDER_ROUND;
    return state.pressed ? BORDER_SUNKEN : BORDER_RAISED;
}

bool ShowsBlackFrame(const ComboButtonState& state)
{
    const ComboButtonBorder border = BorderOf(state);
    return (border == BORDER_RAISED || border == BORDER_SUNKEN) && state.pushDefault && state.focused;
}

bool ShowsSeparator(const ComboButtonState& state)
{
    return (state.style & CBTS_SEPARATORONHOT) == 0 || state.hot || state.menuShown;
}

bool IsDropZonePressed(const ComboButtonState& state)
{
    return state.pressed || state.menuShown;
}

ComboButtonContent LayOutContent(const CRect& area, UINT style, const CSize* image, CSize caption, bool pressed)
{
    ComboButtonContent content;
    content.showsImage = image != NULL && (style & CBTS_SHOWIMAGE) != 0;
    content.showsCaption = !content.showsImage || (style & CBTS_IMAGEANDTEXT) != 0;
    const CPoint centre((area.left + area.right) / 2, (area.top + area.bottom) / 2);
    if (!content.showsImage)
        content.caption = CentredAt(centre, caption);
    else if (!content.showsCaption)
        content.image = CentredAt(centre, *image);
    else if ((style & CBTS_IMAGEABOVE) != 0)
        PlaceAbove(centre, *image, caption, content);
    else
        PlaceBeside(centre, *image, caption, content);
    if (pressed)
    {
        content.image.Offset(kPressedShift, kPressedShift);
        content.caption.Offset(kPressedShift, kPressedShift);
    }
    return content;
}

ComboButtonArrow ArrowOf(const CRect& button)
{
    const int top = (button.top + button.bottom) / 2 - kArrowHeight / 2;
    const int left = button.right - kArrowLeft;
    const int right = button.right - kArrowRight;
    const ComboButtonArrow arrow = {{{left, top}, {right, top}, {(left + right) / 2, top + kArrowHeight}}};
    return arrow;
}
