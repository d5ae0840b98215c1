// The printf of everything that shows a text to the user or logs it: acutPrintf, message boxes, trace lines.
//
// Messages are often handed on as the format itself, so a text that is no valid format, or asks for more arguments
// than there are, must do no harm. The call tells the number and the kinds of its arguments; nothing else is read.
//
//     template<class... ARGUMENTS>
//     void Show(LPCWSTR format, ARGUMENTS... arguments)
//     {
//         CString text;
//         afx::FormatText(text, format, {arguments...});
//     }
#pragma once

#include "afx/core/Api.h"
#include "afx/core/FormatArgument.h"

class CString;

namespace afx
{

// Formats like the Microsoft runtime's wide functions: %s a wide text, %S or %hs a narrow one, %I64d a 64-bit number,
// a null text "(null)". `text` is replaced. What is no directive, or has no argument of its kind, comes out as it
// stands, a lone per cent sign included; %% gives one per cent sign. %n takes its argument and writes nothing. A width
// or precision above 32767 is no directive. A null format gives an empty text.
AFX_API void FormatText(CString& text, const wchar_t* format, FormatArguments arguments);

} // namespace afx
