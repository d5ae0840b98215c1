// Where resources come from: the current resource module first, then the extension modules in the order of their
// arrival. The current module is one value for the whole process, whichever thread changes it.
#pragma once

#include "afx/core/Api.h"

// The current resource module; at first the program itself.
AFX_API HINSTANCE AFXAPI AfxGetResourceHandle();
AFX_API void AFXAPI AfxSetResourceHandle(HINSTANCE module);
// The module that holds the resource; the current one when none does, so that the system call that follows reports the
// error.
AFX_API HINSTANCE AFXAPI AfxFindResourceHandle(LPCWSTR name, LPCWSTR type);
AFX_API HINSTANCE AFXAPI AfxFindStringResourceHandle(UINT id);
// Length of the string resource in the buffer, cut to maxCount - 1 characters; 0 when there is none.
AFX_API int AFXAPI AfxLoadString(UINT id, LPWSTR text, UINT maxCount = 256);

namespace afx
{
// Extension modules come and go while they are loaded. Adding a module twice has no effect.
AFX_API void AddExtensionModule(HINSTANCE module);
AFX_API void RemoveExtensionModule(HINSTANCE module);

// The entry of a string resource: a length and the characters, not terminated, in the module's image; NULL when there
// is none.
AFX_API const WORD* FindStringResource(HINSTANCE module, UINT id, WORD language);
} // namespace afx
