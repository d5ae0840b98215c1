// Which pages a search finds. No window.
#pragma once

struct GalleryEntry;

// Whether every word of the search (separated by blanks) occurs in the page's title, group, name or description,
// without regard to letter case. An empty search finds every page.
bool MatchesSearch(const GalleryEntry& entry, const wchar_t* search);
