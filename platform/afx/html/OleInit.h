// Starts OLE for the calling thread; more calls do no harm. FALSE: the thread has another threading model. The end of
// the framework (AfxWinTerm), and of a CWinThread for its own thread, ends OLE again.
#pragma once

#include "afx/core/Api.h"

AFX_API BOOL AFXAPI AfxOleInit();
AFX_API void AFXAPI AfxOleTerm(BOOL justRevoke = FALSE);
