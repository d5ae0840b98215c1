#include "ZoomMath.h"

#include <algorithm>

namespace zoom
{
View FitBox(const Box& box, double aspect, double currentHeight)
{
    const double withMargin = 1.1; // a twentieth of the box on every side
    const double width = box.maxX - box.minX;
    const double height = box.maxY - box.minY;
    const double needed = std::max(height, width / aspect);
    return View{box.minX + width / 2, box.minY + height / 2, needed > 0 ? needed * withMargin : currentHeight};
}
} // namespace zoom
