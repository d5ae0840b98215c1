#include "button/MenuEntryLayout.h"

namespace
{

const UINT kSmallLetterBit = 0x20;
const int kSmallestImage = 16; // pixels, as all below
const int kLargestImage = 160;
const int kImageLeft = 3;
const int kColumnMargins = 6; // left and right of the image together
const int kMarkIndent = 3;    // from the left edge of the text area
const int kTextIndent = 12;
const int kVerticalMargins = 6; // above and below the image or the text together
const int kMarkHeights[MENU_MARK_STROKES] = {-2, -1, 0, -1, -2, -3, -4}; // from the middle, downwards

int Clamped(int size)
{
    return size < kSmallestImage ? kSmallestImage : size > kLargestImage ? kLargestImage : size;
}

} // namespace

UINT MnemonicOf(const wchar_t* text)
{
    const wchar_t* const sign = text == NULL ? NULL : ::wcschr(text, L'&');
    return sign == NULL ? 0 : MenuKeyOf(sign[1]);
}

UINT MenuKeyOf(UINT character)
{
    return character & ~kSmallLetterBit;
}

CSize MenuImageSize(const CSize& image)
{
    return CSize(Clamped(image.cx), Clamped(image.cy));
}

CSize MeasureMenuEntry(const CSize& image, const CSize& text)
{
    const int height = image.cy > text.cy ? image.cy : text.cy;
    return CSize(image.cx + kColumnMargins + kTextIndent + text.cx, height + kVerticalMargins);
}

MenuEntryLayout LayOutMenuEntry(const CRect& entry, const CSize& image, const CSize& text)
{
    MenuEntryLayout layout;
    const int middle = (entry.top + entry.bottom) / 2;
    const int border = image.cx + kColumnMargins;
    layout.imageColumn = CRect(entry.left, entry.top, border, entry.bottom);
    layout.textArea = CRect(border, entry.top, entry.right, entry.bottom);
    layout.image = CPoint(kImageLeft, middle - image.cy / 2);
    for (int i = 0; i < MENU_MARK_STROKES; ++i)
        layout.mark[i] = CPoint(border + kMarkIndent + i, middle + kMarkHeights[i]);
    layout.text = CPoint(border + kTextIndent, middle - text.cy / 2);
    return layout;
}

MenuEntryLook LookOfMenuEntry(UINT action, UINT state)
{
    const bool selected = (state & ODS_SELECTED) != 0;
    MenuEntryLook look;
    look.fillsEntry = (action & ODA_DRAWENTIRE) != 0;
    look.fillsTextArea = !selected && (action & ODA_SELECT) != 0;
    look.highlighted = selected && (action & (ODA_DRAWENTIRE | ODA_SELECT)) != 0;
    look.disabled = (state & (ODS_GRAYED | ODS_DISABLED)) != 0;
    return look;
}
