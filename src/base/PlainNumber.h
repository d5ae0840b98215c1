// Numbers with a decimal point in every language. The C runtime reads and writes them by the locale of the process,
// which the host or another module may have set.
#pragma once

#include <afxwin.h>

// The number at the beginning of a text as wcstod reads it. `rest`, if not null, gets what follows the number.
double ReadPlainNumber(const wchar_t* text, const wchar_t** rest = NULL);

// `format` is that of one double and holds nothing else: "%g".
CString PlainNumberText(const wchar_t* format, double value);
