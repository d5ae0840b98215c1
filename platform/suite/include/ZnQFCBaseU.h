// The suite's base library: tracing, text splitting, colours of the index palette, the slide button.
#pragma once

#include "afx.h"
#include "afxcoll.h"

#include "afx/core/FormatArgument.h"

#ifdef ZnQFCBaseU_EXPORTS
#define ZNQFC_API __declspec(dllexport)
#else
#define ZNQFC_API __declspec(dllimport)
#endif

namespace Tevrin
{
ZNQFC_API void TraceArguments(const wchar_t* format, afx::FormatArguments arguments);

// Formats one line and sends it to the debugger output and, if one is set, to the trace file. A null format does
// nothing. A directive without an argument of its kind comes out as it stands (afx/core/TextFormat.h has the rules).
// May be called from any thread.
template<class... ARGUMENTS>
void Trace(const wchar_t* format, ARGUMENTS... arguments)
{
    TraceArguments(format, {arguments...});
}

// Appends every later trace line to that file, as UTF-8, after the local time; the file is opened for each line, so it
// can be read meanwhile. Null or an empty path ends it. A file that can't be written is left out silently.
ZNQFC_API void SetTraceFile(const wchar_t* path);

// Fills `parts` with the texts between the separators, empty ones too: "a;;b" gives three, ";" two. An empty or null
// text gives none. Nothing is trimmed.
ZNQFC_API void SplitString(const wchar_t* text, wchar_t separator, CStringArray& parts);

// The colour of an index of the palette, 1 to 255. Every other index (0 and 256 are methods, not colours) gives white.
ZNQFC_API COLORREF GetRGBFromACI(int index);
} // namespace Tevrin

#include "SlideButton.h"
