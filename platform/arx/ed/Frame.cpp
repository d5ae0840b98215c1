// The host's framework objects.
#include "rxmfcapi.h"

#include "HostState.h"

#include <afxwin.h>

CWinApp* acedGetAcadWinApp()
{
    return AfxGetApp();
}

CDocument* acedGetAcadDoc()
{
    return nullptr;
}

CView* acedGetAcadDwgView()
{
    return arxed::HostState::Instance().Ui().CurrentView();
}

CMDIFrameWnd* acedGetAcadFrame()
{
    return arxed::HostState::Instance().MainFrame();
}

CWnd* acedGetAcadDockCmdLine()
{
    return nullptr;
}

CWnd* acedGetAcadTextCmdLine()
{
    return nullptr;
}

HINSTANCE acedGetAcadResourceInstance()
{
    HMODULE library = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCWSTR>(&acedGetAcadFrame), &library);
    return library;
}

HWND adsw_acadMainWnd()
{
    return arxed::HostState::Instance().MainWindow();
}
