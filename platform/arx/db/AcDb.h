// Enumerations and reserved names of the drawing database.
#pragma once

#include "adesk.h"

#define ACDB_MODEL_SPACE ACRX_T("*Model_Space")
#define ACDB_PAPER_SPACE ACRX_T("*Paper_Space")

struct AcDb
{
    // Many readers or one writer. kForNotify reads beside both.
    enum OpenMode
    {
        kForRead = 0,
        kForWrite = 1,
        kForNotify = 2
    };

    enum Visibility
    {
        kInvisible = 1,
        kVisible = 0
    };

    enum LineWeight
    {
        kLnWtByLayer = -1,
        kLnWtByBlock = -2,
        kLnWtByLwDefault = -3
    };

    enum TextHorzMode
    {
        kTextLeft = 0,
        kTextCenter = 1,
        kTextRight = 2,
        kTextAlign = 3,
        kTextMid = 4,
        kTextFit = 5
    };

    enum TextVertMode
    {
        kTextBase = 0,
        kTextBottom = 1,
        kTextVertMid = 2,
        kTextTop = 3
    };

    enum Poly2dType
    {
        k2dSimplePoly = 0,
        k2dFitCurvePoly = 1,
        k2dQuadSplinePoly = 5,
        k2dCubicSplinePoly = 6
    };

    enum Poly3dType
    {
        k3dSimplePoly = 0,
        k3dQuadSplinePoly = 1,
        k3dCubicSplinePoly = 2
    };
};
