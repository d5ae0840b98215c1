// The keys that rows are sorted by, and the order that they give. No window in sight.
#pragma once

#include "xtp/list/XTSortClass.h"

#include <stddef.h>
#include <string>
#include <vector>

namespace xtp
{
struct SortKey
{
    std::wstring text; // for xtSortString
    long long integer; // for xtSortInt
    double number;     // for xtSortFloat and xtSortDateTime
};

XTP_API SortKey MakeSortKey(const wchar_t* text, XTSortType type);

// order[i] is the index of the key that comes i-th. Equal keys keep their order in both directions.
XTP_API std::vector<size_t> SortOrder(const std::vector<SortKey>& keys, bool ascending, XTSortType type);

// Days with fraction as OLE counts them; `fallback` for a text that is no date.
XTP_API double ReadDate(const wchar_t* text, double fallback);
} // namespace xtp
