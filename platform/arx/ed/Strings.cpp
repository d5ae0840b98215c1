#include "acutads.h"

#include <cstdlib>
#include <cwchar>

int acutNewString(const ACHAR* source, ACHAR*& copy)
{
    if (source == nullptr)
    {
        return RTERROR;
    }
    const size_t size = wcslen(source) + 1;
    ACHAR* text = static_cast<ACHAR*>(malloc(size * sizeof(ACHAR)));
    if (text == nullptr)
    {
        return RTERROR;
    }
    wmemcpy(text, source, size);
    copy = text;
    return RTNORM;
}

void acutDelString(ACHAR*& text)
{
    free(text);
    text = nullptr;
}
