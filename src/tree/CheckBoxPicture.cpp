#include "tree/CheckBoxPicture.h"

#include "tree/CheckStates.h"

namespace
{

const COLORREF kFrame = 0x000000;
const COLORREF kPartial = 0xE4E4E4;
const COLORREF kForbidden = 0x0000FF;
const COLORREF kSign = 0xFFFFFF;

const RECT kBox = {2, 2, 15, 15};
const RECT kInside = {4, 4, 13, 13};
const int kMarkHeight = 3;
const POINT kMark[] = {{5, 7}, {6, 8}, {7, 9}, {8, 8}, {9, 7}, {10, 6}, {11, 5}};
const int kMarkPoints = sizeof(kMark) / sizeof(kMark[0]);

// Rows of pixels, the last one included.
struct Run
{
    int y;
    int from;
    int to;
};

const Run kDisc[] = {{2, 5, 11}, {3, 4, 12}, {4, 3, 13},  {5, 2, 14},  {6, 2, 14},  {7, 2, 14},
                     {8, 2, 14}, {9, 2, 14}, {10, 2, 14}, {11, 3, 13}, {12, 4, 12}, {13, 5, 11}};
const int kDiscRuns = sizeof(kDisc) / sizeof(kDisc[0]);
const Run kDiscSign[] = {{4, 8, 9}, {5, 7, 10}, {6, 7, 10}, {7, 8, 9}};
const int kDiscSignRuns = sizeof(kDiscSign) / sizeof(kDiscSign[0]);

void Fill(CDC& dc, const RECT& rect, COLORREF color)
{
    CBrush brush(color);
    dc.FillRect(&rect, &brush);
}

void FillRuns(CDC& dc, const Run* runs, int count, COLORREF color)
{
    CBrush brush(color);
    for (int i = 0; i < count; ++i)
    {
        const CRect row(runs[i].from, runs[i].y, runs[i].to + 1, runs[i].y + 1);
        dc.FillRect(&row, &brush);
    }
}

void DrawMark(CDC& dc)
{
    CBrush brush(kFrame);
    for (int i = 0; i < kMarkPoints; ++i)
    {
        const CRect column(kMark[i].x, kMark[i].y, kMark[i].x + 1, kMark[i].y + kMarkHeight);
        dc.FillRect(&column, &brush);
    }
}

} // namespace

void DrawCheckBox(CDC& dc, int value)
{
    Fill(dc, CRect(0, 0, kCheckBoxPixels, kCheckBoxPixels), kCheckBoxMask);
    if (value == STATE_DISABLED)
    {
        FillRuns(dc, kDisc, kDiscRuns, kForbidden);
        FillRuns(dc, kDiscSign, kDiscSignRuns, kSign);
        return;
    }
    Fill(dc, kBox, kFrame);
    if (value == STATE_UNCHECKED || value == STATE_CHECKED)
        Fill(dc, kInside, kCheckBoxMask);
    if (value == STATE_PARTIAL)
        Fill(dc, kInside, kPartial);
    if (value == STATE_CHECKED || value == STATE_PARTIAL)
        DrawMark(dc);
}
