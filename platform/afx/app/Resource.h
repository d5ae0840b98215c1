// The program's instance, and strings of resources. Which module a resource comes from: core/Resources.h.
#pragma once

#include <afx.h>

#include "afx/core/Resources.h"

AFX_API HINSTANCE AFXAPI AfxGetInstanceHandle();

// Takes part number `part` (from 0) of a text whose parts are divided by the separator. FALSE: there is no such part.
AFX_API BOOL AFXAPI AfxExtractSubString(CString& result, LPCTSTR text, int part, TCHAR separator = '\n');
