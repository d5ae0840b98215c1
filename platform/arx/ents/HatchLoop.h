// HatchLoop: one boundary of a hatch, in the object coordinates of the hatch.
#pragma once

#include "arx/ents/BulgePath.h"
#include "arx/ents/Spline.h"

#include <vector>

namespace arxents
{

// One edge. Angles are radians; those of an ellipse are its parameters. A clockwise arc runs from start to end with
// both angles counted clockwise, as drawing files have it.
struct HatchEdge
{
    enum Kind
    {
        kLine,
        kArc,
        kEllipse,
        kSpline
    };

    HatchEdge() : kind(kLine), ratio(1), startAngle(0), endAngle(0), counterClockwise(true) {}

    Kind kind;
    AcGePoint2d start; // line
    AcGePoint2d end;
    AcGePoint2d center;     // arc and ellipse
    AcGeVector2d majorAxis; // its length is the radius of an arc
    double ratio;
    double startAngle;
    double endAngle;
    bool counterClockwise;
    Spline spline; // points in the plane z = 0
};

struct HatchLoop
{
    HatchLoop() : type(0), isPolyline(false) {}

    int type; // AcDbHatch::HatchLoopType bits
    bool isPolyline;
    BulgePath polyline;
    std::vector<HatchEdge> edges;
};

} // namespace arxents
