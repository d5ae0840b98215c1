// When two group names are the same: letter case makes no difference, in any script.
//
// The comparison is that of the two names in capitals, letter by letter, whatever the locale of the C runtime is: the
// host or another module may change that at any time, and the order in which names are kept must stay.
#pragma once

// Below 0, 0 or above 0, as wcscmp. Neither may be null.
int CompareGroupNames(const wchar_t* left, const wchar_t* right);

// For containers that are ordered by names.
struct GroupNameLess
{
    bool operator()(const wchar_t* left, const wchar_t* right) const { return CompareGroupNames(left, right) < 0; }
};
