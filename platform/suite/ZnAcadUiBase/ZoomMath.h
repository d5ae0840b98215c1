// The view that shows a box. Plain arithmetic, in drawing units.
#pragma once

#include "ZnAcadUiBase.h"

namespace zoom
{
struct Box
{
    double minX;
    double minY;
    double maxX;
    double maxY;
};

struct View
{
    double centreX;
    double centreY;
    double height;
};

// The smallest view of that aspect (width by height of the window) that shows the box and a margin around it. A box
// without width and height keeps `currentHeight`.
ZNACADUIBASE_API View FitBox(const Box& box, double aspect, double currentHeight);
} // namespace zoom
