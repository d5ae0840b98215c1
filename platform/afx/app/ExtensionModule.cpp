#include <afxwin.h>

IMPLEMENT_DYNAMIC(CDynLinkLibrary, CCmdTarget)

BOOL AFXAPI AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE module)
{
    if (!state.bInitialized)
    {
        state.bInitialized = TRUE;
        state.hModule = module;
        state.hResource = module;
    }
    return TRUE;
}

void AFXAPI AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL all)
{
    if (!state.bInitialized)
        return;
    CDynLinkLibrary* library = AfxGetModuleState()->m_libraryList;
    while (library != nullptr)
    {
        CDynLinkLibrary* const next = library->m_pNextDLL;
        if (all || library->m_hModule == state.hModule)
            delete library; // takes itself off the list
        library = next;
    }
    AfxUnregisterModuleClasses(state.hModule);
    state.bInitialized = FALSE;
}

CDynLinkLibrary::CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL system)
    : m_hModule(state.hModule), m_hResource(state.hResource == nullptr ? state.hModule : state.hResource),
      m_bSystem(system)
{
    AFX_MODULE_STATE* const moduleState = AfxGetModuleState();
    m_pNextDLL = moduleState->m_libraryList;
    moduleState->m_libraryList = this;
    afx::AddExtensionModule(m_hResource);
}

CDynLinkLibrary::~CDynLinkLibrary()
{
    afx::RemoveExtensionModule(m_hResource);
    for (CDynLinkLibrary** link = &AfxGetModuleState()->m_libraryList; *link != nullptr; link = &(*link)->m_pNextDLL)
    {
        if (*link == this)
        {
            *link = m_pNextDLL;
            break;
        }
    }
}

HINSTANCE AFXAPI AfxLoadLibrary(LPCTSTR path)
{
    return ::LoadLibrary(path);
}

BOOL AFXAPI AfxFreeLibrary(HINSTANCE module)
{
    return ::FreeLibrary(module);
}
