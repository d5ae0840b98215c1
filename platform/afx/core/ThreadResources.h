// A current resource module of one thread alone, in place of the process's: the host's document manager pushes it, so
// that a window made on a thread of its own doesn't take the resources away under the threads beside it.
//
// While a thread has one, AfxGetResourceHandle answers it there and AfxSetResourceHandle changes it.
#pragma once

#include "afx/core/Api.h"

namespace afx
{
// NULL: the thread has none.
AFX_API HINSTANCE ThreadResourceHandle();
AFX_API void SetThreadResourceHandle(HINSTANCE module);
} // namespace afx
