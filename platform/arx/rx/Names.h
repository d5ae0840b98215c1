// Names that are compared without regard to case.
#pragma once

#include "adesk.h"

#include <string>

namespace arxrx
{

// Lower case; null gives "".
std::wstring Folded(const ACHAR* name);

bool SameName(const ACHAR* left, const ACHAR* right);

} // namespace arxrx
