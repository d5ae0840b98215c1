// The table of all pages.
#pragma once

#include <afxwin.h>

#include <vector>

class CGalleryPage;

struct GalleryEntry
{
    const wchar_t* name; // ASCII, for scripts and names of pictures
    const wchar_t* group;
    const wchar_t* title;
    const wchar_t* description; // a sentence or two
    CString code;               // what makes the control; lines end in \n
    CGalleryPage* (*make)();    // the caller owns the page
};

// In the order in which they are shown; pages of one group stand together.
const std::vector<GalleryEntry>& GalleryPages();

// By name or title, without regard to letter case; null when there is none.
const GalleryEntry* FindGalleryPage(const CString& nameOrTitle);
