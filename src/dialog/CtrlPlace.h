// Where a registered control of a resizable dialog belongs: its geometry at registration plus a share of the dialog's
// growth. Free of windows.
#pragma once

#include <afxwin.h>

// The ratios and geometry of one control; doubles, so that fractions of a pixel are cut only at the end.
struct CTRLRESIZEINFO
{
    int nCtrlID;

    // RATIO_NONE: the coordinate does not follow the dialog, RATIO_SET: it does.
    int nLeftFlag;
    int nTopFlag;
    int nWidthFlag;
    int nHeightFlag;

    // The share of the dialog's growth that the coordinate gets: of the width for left and width, of the height for top
    // and height.
    double dLeftRatio;
    double dTopRatio;
    double dWidthRatio;
    double dHeightRatio;

    // Pixels, client coordinates of the dialog.
    double dLeft;
    double dTop;
    double dWidth;
    double dHeight;
};

enum
{
    RATIO_NONE = 1,
    RATIO_SET = 2
};

// RATIO_NONE for exactly 0.0. What is no number counts as set.
int FlagOfRatio(double ratio);

// Cuts toward zero. What no int can hold, and what is no number, gives the lowest int, as the processor's conversion
// does.
int TruncateToInt(double value);

// The place of the control when the dialog's client area has grown by (dx, dy) pixels since registration; negative
// values are a dialog that has shrunk.
CRect PlaceOfControl(const CTRLRESIZEINFO& info, int dx, int dy);
