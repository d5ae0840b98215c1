// Resources of a module that is an extension DLL of the framework.
//
// One source file of the module (which includes <afxdllx.h>) holds AC_IMPLEMENT_EXTENSION_MODULE(MyDLL); its DllMain
// calls MyDLL.AttachInstance(hInstance) and MyDLL.DetachInstance(). Other files say AC_DECLARE_EXTENSION_MODULE(MyDLL).
#pragma once

#include <afxwin.h>

class CAcExtensionModule
{
public:
    CAcExtensionModule() : m_hDefaultResource(NULL), m_hModuleResource(NULL), m_bAttached(FALSE)
    {
        memset(&m_module, 0, sizeof(m_module));
    }

    // Adds the module to the framework's list of resource modules. FALSE when the framework refuses.
    BOOL AttachInstance(HINSTANCE hInst)
    {
        if (m_bAttached || !AfxInitExtensionModule(m_module, hInst))
        {
            return FALSE;
        }
        // The framework frees it in AfxTermExtensionModule().
        new CDynLinkLibrary(m_module);
        m_hModuleResource = hInst;
        m_hDefaultResource = AfxGetResourceHandle();
        m_bAttached = TRUE;
        return TRUE;
    }

    void DetachInstance()
    {
        if (m_bAttached)
        {
            AfxTermExtensionModule(m_module);
            m_bAttached = FALSE;
        }
    }

    // Handle of the module, and the handle that was current when it was attached.
    HINSTANCE ModuleResourceInstance() const { return m_hModuleResource; }
    HINSTANCE DefaultResourceInstance() const { return m_hDefaultResource; }

private:
    CAcExtensionModule(const CAcExtensionModule&);
    CAcExtensionModule& operator=(const CAcExtensionModule&);

    AFX_EXTENSION_MODULE m_module;
    HINSTANCE m_hDefaultResource;
    HINSTANCE m_hModuleResource;
    BOOL m_bAttached;
};

// Resource handle of the module; defined by AC_IMPLEMENT_EXTENSION_MODULE.
HINSTANCE acModuleResourceInstance();

// While it lives, dialogs and strings come from the module.
class CAcModuleResourceOverride
{
public:
    CAcModuleResourceOverride() : m_hPrevious(AfxGetResourceHandle())
    {
        AfxSetResourceHandle(acModuleResourceInstance());
    }
    explicit CAcModuleResourceOverride(HINSTANCE hInst) : m_hPrevious(AfxGetResourceHandle())
    {
        AfxSetResourceHandle(hInst);
    }
    ~CAcModuleResourceOverride() { AfxSetResourceHandle(m_hPrevious); }

private:
    CAcModuleResourceOverride(const CAcModuleResourceOverride&);
    CAcModuleResourceOverride& operator=(const CAcModuleResourceOverride&);

    HINSTANCE m_hPrevious;
};

#define AC_DECLARE_EXTENSION_MODULE(NAME) extern CAcExtensionModule NAME

#define AC_IMPLEMENT_EXTENSION_MODULE(NAME)                                                                            \
    CAcExtensionModule NAME;                                                                                           \
    HINSTANCE acModuleResourceInstance()                                                                               \
    {                                                                                                                  \
        return NAME.ModuleResourceInstance();                                                                          \
    }
