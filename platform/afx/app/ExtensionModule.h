// Extension modules: DLLs that share the program's framework. In DllMain:
//
//   static AFX_EXTENSION_MODULE g_module = {NULL, NULL};
//   attach: if (!AfxInitExtensionModule(g_module, instance)) return 0;  new CDynLinkLibrary(g_module);
//   detach: AfxTermExtensionModule(g_module);
//
// While the CDynLinkLibrary object lives, AfxFindResourceHandle also looks into the module.
#pragma once

#include "afx/wnd/CmdTarget.h"

class CDynLinkLibrary;

struct AFX_EXTENSION_MODULE
{
    BOOL bInitialized;
    HMODULE hModule;
    HMODULE hResource; // null: hModule
};

AFX_API BOOL AFXAPI AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE module);
// Deletes the module's CDynLinkLibrary objects and unregisters its window classes.
AFX_API void AFXAPI AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL all = FALSE);

class AFX_API CDynLinkLibrary : public CCmdTarget
{
    DECLARE_DYNAMIC(CDynLinkLibrary)

public:
    explicit CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL system = FALSE);
    ~CDynLinkLibrary() override;

    HMODULE m_hModule = nullptr;
    HMODULE m_hResource = nullptr;
    BOOL m_bSystem = FALSE;
    CDynLinkLibrary* m_pNextDLL = nullptr;
};

// Loads and frees a DLL that uses the framework.
AFX_API HINSTANCE AFXAPI AfxLoadLibrary(LPCTSTR path);
AFX_API BOOL AFXAPI AfxFreeLibrary(HINSTANCE module);
