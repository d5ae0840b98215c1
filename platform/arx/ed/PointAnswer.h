// A point as it is typed: "12.5,-3" or "12.5,-3,7".
#pragma once

#include "adsdef.h"

#include <string>

namespace arxed
{

// Two or three finite numbers separated by commas, nothing else; the third is 0 when it is missing. The point stays as
// it is after another text.
bool ReadPointAnswer(const std::wstring& text, ads_point point);

} // namespace arxed
