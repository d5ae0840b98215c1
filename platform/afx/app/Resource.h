// Where resources come from. The current resource module is one for the process; modules switch it around the calls
// that look a resource up.
#pragma once

#include <afx.h>

AFX_API HINSTANCE AFXAPI AfxGetInstanceHandle();
AFX_API HINSTANCE AFXAPI AfxGetResourceHandle();
AFX_API void AFXAPI AfxSetResourceHandle(HINSTANCE module);

// The module that has the resource: the current resource module, then the extension modules from the newest on, then
// the framework itself. The current resource module when nobody has it.
AFX_API HINSTANCE AFXAPI AfxFindResourceHandle(LPCTSTR name, LPCTSTR type);

// Copies a string resource, cut to maxCount characters with the terminator; the length, 0 when there is none.
AFX_API int AFXAPI AfxLoadString(UINT id, LPTSTR text, UINT maxCount = 256);

// Takes part number `part` (from 0) of a text whose parts are divided by the separator. FALSE: there is no such part.
AFX_API BOOL AFXAPI AfxExtractSubString(CString& result, LPCTSTR text, int part, TCHAR separator = '\n');
