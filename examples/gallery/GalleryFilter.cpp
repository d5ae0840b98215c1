#include "GalleryFilter.h"

#include "GalleryPages.h"

bool MatchesSearch(const GalleryEntry& entry, const wchar_t* search)
{
    CString text;
    // A separator, so that no word is found across two of them.
    text.Format(L"%s\n%s\n%s\n%s", entry.title, entry.group, entry.name, entry.description);
    text.MakeLower();
    CString words(search);
    words.MakeLower();
    int position = 0;
    const wchar_t blanks[] = L" \t\x3000";
    for (CString word = words.Tokenize(blanks, position); !word.IsEmpty(); word = words.Tokenize(blanks, position))
    {
        if (text.Find(word) < 0)
            return false;
    }
    return true;
}
