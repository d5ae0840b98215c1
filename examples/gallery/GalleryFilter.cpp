#include "GalleryFilter.h"

#include "GalleryPages.h"

#include <cwctype>

namespace
{

bool IsInName(wchar_t character)
{
    return std::iswalnum(character) || character == L'_';
}

// "list" would be found in nearly every code if it could stand inside a name.
bool BeginsName(const CString& code, const CString& word)
{
    for (int place = code.Find(word); place >= 0; place = code.Find(word, place + 1))
    {
        if (place == 0 || !IsInName(code[place - 1]))
            return true;
    }
    return false;
}

} // namespace

bool MatchesSearch(const GalleryEntry& entry, const wchar_t* search)
{
    CString text;
    // A separator, so that no word is found across two of them.
    text.Format(L"%s\n%s\n%s\n%s", entry.title, entry.group, entry.name, entry.description);
    text.MakeLower();
    CString code(entry.code);
    code.MakeLower();
    CString words(search);
    words.MakeLower();
    int position = 0;
    const wchar_t blanks[] = L" \t\x3000";
    for (CString word = words.Tokenize(blanks, position); !word.IsEmpty(); word = words.Tokenize(blanks, position))
    {
        if (text.Find(word) < 0 && !BeginsName(code, word))
            return false;
    }
    return true;
}
