// The code that a page shows. It is no copy: it is cut out of the page's source. No window.
#pragma once

#include <afxwin.h>

// What stands between the lines "// [show]" and "// [end]": each such part moved to the left as far as it goes, with
// an empty line between two parts. Lines end in \n, the last one too.
CString ShownLines(const CString& source);
