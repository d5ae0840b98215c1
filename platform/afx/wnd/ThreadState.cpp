#include <afxwin.h>

#include "afx/core/ThreadLocal.h"
#include "afx/gdi/GdiMaps.h"

_AFX_THREAD_STATE* AFXAPI AfxGetThreadState()
{
    static CPerThread<_AFX_THREAD_STATE> states;
    return &states.Get([] { return new _AFX_THREAD_STATE; });
}

AFX_MODULE_STATE* AFXAPI AfxGetModuleState()
{
    static AFX_MODULE_STATE state;
    return &state;
}

AFX_MODULE_STATE* AFXAPI AfxGetStaticModuleState()
{
    return AfxGetModuleState();
}

AFX_MODULE_STATE* AFXAPI AfxGetAppModuleState()
{
    return AfxGetModuleState();
}

void AFXAPI AfxLockTempMaps()
{
    ++AfxGetThreadState()->m_nTempMapLock;
}

BOOL AFXAPI AfxUnlockTempMaps(BOOL deleteTemps)
{
    _AFX_THREAD_STATE* const state = AfxGetThreadState();
    if (state->m_nTempMapLock != 0 && --state->m_nTempMapLock == 0 && deleteTemps)
    {
        CWnd::DeleteTempMap();
        CMenu::DeleteTempMap();
        AfxDeleteTempGdiMaps();
    }
    return state->m_nTempMapLock != 0;
}
