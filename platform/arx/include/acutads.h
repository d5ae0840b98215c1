// Printing, strings and value lists.
#pragma once

#include "adsdef.h"
#include "adscodes.h"
#include "afx/core/FormatArgument.h"
#include "arx/Api.h"

ARX_API int acutPrintfArguments(const ACHAR* format, afx::FormatArguments arguments);

// Prints on the command line like the C library's printf for wide characters (%s is a wide string), without an end of
// line of its own. The result is formatted before it reaches the command line, so that a per cent sign in an argument
// is only text. Harmless with a text that is no format: a directive without an argument of its kind comes out as it
// stands (afx/core/TextFormat.h has the rules). RTERROR for null.
template<class... ARGUMENTS>
int acutPrintf(const ACHAR* format, ARGUMENTS... arguments)
{
    return acutPrintfArguments(format, {arguments...});
}

// A copy for which acutDelString() answers; RTERROR for null.
ARX_API int acutNewString(const ACHAR* source, ACHAR*& copy);
// Frees a copy and sets the pointer to null.
ARX_API void acutDelString(ACHAR*& text);

// A zeroed value of the type; null for a type that does not exist. Strings put into it must come from
// acutNewString().
ARX_API resbuf* acutNewRb(int type);
// Frees the whole list with its strings. RTERROR for null.
ARX_API int acutRelRb(resbuf* list);
// Values in pairs of type and value, closed by RTNONE or by a 0 that is not the first type: double for real and angle,
// ads_point for points, int for short, int for long, const ACHAR* for strings, ads_name for names; the list and nil
// marks have no value. Null when a type is unknown.
ARX_API resbuf* acutBuildList(int type, ...);
