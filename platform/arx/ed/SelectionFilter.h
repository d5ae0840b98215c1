// Conditions on entities, as acedSSGet() takes them.
#pragma once

#include "acutads.h"
#include "dbid.h"

#include <string>

namespace arxed
{

// Wild cards * and ?, alternatives separated by commas, no regard to case.
bool MatchesPattern(const std::wstring& text, const std::wstring& pattern);

// Every condition of the list holds: 0 record name, 5 handle, 8 layer, 62 colour index. Null holds for all. A condition
// of another kind holds for nothing.
bool MatchesFilter(AcDbObjectId id, const resbuf* filter);

} // namespace arxed
