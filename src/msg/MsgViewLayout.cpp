#include "msg/MsgViewLayout.h"

#include <algorithm>

namespace
{

const int kMargin = 5;         // between the list and the right and lower edge
const int kTreeInset = 6;      // between the lower edges of tree and tab
const int kTreeGap = 5;        // between tab and list
const int kOtherColumns = 220; // type, time and group
const int kLeastDescription = 100;

// An edge never passes the opposite one: a viewer smaller than its margins has empty controls.
void SetRight(CRect& rect, int right)
{
    rect.right = (std::max)(static_cast<int>(rect.left), right);
}

void SetBottom(CRect& rect, int bottom)
{
    rect.bottom = (std::max)(static_cast<int>(rect.top), bottom);
}

} // namespace

CMsgViewRects LayOutMsgView(const CMsgViewRects& before, int cx, int cy)
{
    CMsgViewRects rects = before;
    SetRight(rects.list, cx - kMargin);
    SetBottom(rects.list, cy - kMargin);
    SetRight(rects.count, rects.list.right);
    SetBottom(rects.tab, rects.list.bottom);
    SetBottom(rects.tree, rects.tab.bottom - kTreeInset);
    return rects;
}

int ShiftThatHidesTree(const CMsgViewRects& rects)
{
    return rects.tab.left - rects.list.left;
}

int ShiftThatShowsTree(const CMsgViewRects& rects)
{
    return rects.tab.Width() + kTreeGap;
}

int DescriptionWidth(int listClientWidth, int scrollBarWidth)
{
    return (std::max)(listClientWidth - scrollBarWidth - kOtherColumns, kLeastDescription);
}
