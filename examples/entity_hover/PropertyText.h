// Values of entities as a draughtsman reads them. No window, no drawing.
#pragma once

#include <dbcolor.h>
#include <gepnt3d.h>

#include <string>

namespace entity_hover
{

// At most four decimals, none that say nothing: "12.5", "0".
std::wstring NumberText(double number);

// "12.5, -3"; the third coordinate only where it is not 0.
std::wstring PointText(const AcGePoint3d& point);

// Radians in whole turns taken off: "45°".
std::wstring AngleText(double radians);

// "红", "12 号", "255,128,0", "随层"...
std::wstring ColorText(const AcCmColor& color);

// The beginning of a text in one line; never empty.
std::wstring Excerpt(const std::wstring& text);

} // namespace entity_hover
