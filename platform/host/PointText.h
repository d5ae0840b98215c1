// Points and numbers as the user types them: "12.5,-3". No window.
#pragma once

#include "host/ViewTransform.h"

#include <string>

namespace arxhost
{

// A finite number and nothing else.
bool ReadNumber(const std::wstring& text, double& number);
// Two numbers separated by a comma.
bool ReadPoint(const std::wstring& text, WorldPoint& point);
// "120.0000, 45.5000"
std::wstring PointToText(WorldPoint point);

} // namespace arxhost
