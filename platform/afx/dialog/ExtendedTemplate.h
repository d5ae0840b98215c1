// The extended form of a dialog template, as far as it is fixed. It is told from the plain one by its second word.
#pragma once

#include <afx.h>

#pragma pack(push, 2)
struct ExtendedTemplate
{
    static const WORD Signature = 0xFFFF;

    WORD version;
    WORD signature;
    DWORD helpId;
    DWORD exStyle;
    DWORD style;
    WORD items;
    short x;
    short y;
    short width;
    short height;

    // NULL: the template is a plain one.
    static const ExtendedTemplate* Of(const void* dialogTemplate)
    {
        const ExtendedTemplate* const extended = static_cast<const ExtendedTemplate*>(dialogTemplate);
        return extended->signature == Signature ? extended : nullptr;
    }
    static ExtendedTemplate* Of(void* dialogTemplate)
    {
        ExtendedTemplate* const extended = static_cast<ExtendedTemplate*>(dialogTemplate);
        return extended->signature == Signature ? extended : nullptr;
    }
};
#pragma pack(pop)
