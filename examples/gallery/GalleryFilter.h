// Which pages a search finds. No window.
#pragma once

struct GalleryEntry;

// Whether every word of the search (separated by blanks) occurs in the page's title, group, name or description, or
// begins a name in its code: a class, a header, a function. Letter case does not matter. An empty search finds every
// page.
bool MatchesSearch(const GalleryEntry& entry, const wchar_t* search);
