#include "list/SortArrow.h"

namespace
{

const COLORREF kLit = 0xFFFFFF;
const COLORREF kShade = 0x646464;
const int kEdgePixels = 9;

struct Arrow
{
    POINT baseFrom;
    POINT baseTo; // not drawn any more
    COLORREF base;
    POINT lit[kEdgePixels];
    POINT shaded[kEdgePixels];
};

const Arrow kUp = {{4, 10},
                   {12, 10},
                   kLit,
                   {{8, 4}, {8, 5}, {9, 5}, {9, 6}, {9, 7}, {10, 7}, {10, 8}, {10, 9}, {11, 9}},
                   {{7, 4}, {7, 5}, {6, 5}, {6, 6}, {6, 7}, {5, 7}, {5, 8}, {5, 9}, {4, 9}}};

const Arrow kDown = {{11, 4},
                     {3, 4},
                     kShade,
                     {{11, 5}, {10, 5}, {10, 6}, {10, 7}, {9, 7}, {9, 8}, {9, 9}, {8, 9}, {8, 10}},
                     {{4, 5}, {5, 5}, {5, 6}, {5, 7}, {6, 7}, {6, 8}, {6, 9}, {7, 9}, {7, 10}}};

void DrawBase(CDC& dc, const Arrow& arrow)
{
    CPen pen(PS_SOLID, 1, arrow.base);
    CPen* const before = dc.SelectObject(&pen);
    dc.MoveTo(arrow.baseFrom);
    dc.LineTo(arrow.baseTo);
    dc.SelectObject(before);
}

void DrawEdge(CDC& dc, const POINT* points, COLORREF color)
{
    for (int i = 0; i < kEdgePixels; ++i)
        dc.SetPixelV(points[i].x, points[i].y, color);
}

} // namespace

void DrawSortArrow(CDC& dc, bool up)
{
    const Arrow& arrow = up ? kUp : kDown;
    const CRect square(0, 0, kSortArrowPixels, kSortArrowPixels);
    CBrush mask(kSortArrowMask);
    dc.FillRect(&square, &mask);
    DrawBase(dc, arrow);
    DrawEdge(dc, arrow.lit, kLit);
    DrawEdge(dc, arrow.shaded, kShade);
}

int NextSortState(LPARAM stored, int asked)
{
    if (asked < SORT_STATE_NONE || asked > SORT_STATE_DESCENDING)
        return stored == SORT_STATE_ASCENDING ? SORT_STATE_DESCENDING : SORT_STATE_ASCENDING;
    return asked;
}
