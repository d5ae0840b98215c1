#include "afx/html/OleInit.h"

#include <ole2.h>

namespace
{
thread_local bool isStarted = false; // by AfxOleInit, in this thread
}

BOOL AFXAPI AfxOleInit()
{
    if (!isStarted)
        isStarted = SUCCEEDED(::OleInitialize(nullptr));
    return isStarted;
}

void AFXAPI AfxOleTerm(BOOL justRevoke)
{
    if (justRevoke || !isStarted)
        return;
    isStarted = false;
    ::OleUninitialize();
}
