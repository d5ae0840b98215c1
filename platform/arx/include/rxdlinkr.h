// AcRxDynamicLinker: the service that loads modules, under ACRX_DYNAMIC_LINKER in the system registry.
#pragma once

#include "rxdict.h"

#define ACRX_DYNAMIC_LINKER ACRX_T("DynamicLinker")
#define acrxDynamicLinker AcRxDynamicLinker::cast(acrxSysRegistry()->at(ACRX_DYNAMIC_LINKER))

struct AcadApp
{
    enum LoadReasons
    {
        kOnProxyDetection = 0x01,
        kOnAutoCADStartup = 0x02,
        kOnCommandInvocation = 0x04,
        kOnLoadRequest = 0x08,
        kLoadDisabled = 0x10,
        kTransparentlyLoadable = 0x20
    };
};

// Hears of modules that come and go. File names are full paths.
class ARX_API AcRxDLinkerReactor : public AcRxObject
{
public:
    ACRX_DECLARE_MEMBERS(AcRxDLinkerReactor);

    virtual ~AcRxDLinkerReactor();
    virtual void rxAppWillBeLoaded(const ACHAR* moduleName);
    virtual void rxAppLoaded(const ACHAR* moduleName);
    virtual void rxAppLoadAborted(const ACHAR* moduleName);
    virtual void rxAppWillBeUnloaded(const ACHAR* moduleName);
    virtual void rxAppUnloaded(const ACHAR* moduleName);
    virtual void rxAppUnloadAborted(const ACHAR* moduleName);
};

// Functions and results as in rxregsvc.h.
class ARX_API AcRxDynamicLinker : public AcRxObject
{
public:
    ACRX_DECLARE_MEMBERS(AcRxDynamicLinker);

    virtual ~AcRxDynamicLinker();

    virtual bool loadApp(const ACHAR* appName, AcadApp::LoadReasons reason, bool printit, bool asCmd = false) = 0;
    virtual bool unloadApp(const ACHAR* appName, bool asCmd = false) = 0;
    virtual bool loadModule(const ACHAR* fileName, bool printit, bool asCmd = false) = 0;
    virtual bool unloadModule(const ACHAR* fileName, bool asCmd = false) = 0;

    virtual bool lockApplication(void* appId) const = 0;
    virtual bool unlockApplication(void* appId) const = 0;
    virtual bool isApplicationLocked(const ACHAR* name) const = 0;
    virtual bool registerAppMDIAware(void* appId) const = 0;
    virtual bool registerAppNotMDIAware(void* appId) const = 0;
    virtual bool isAppMDIAware(const ACHAR* name) const = 0;

    // Null and doubles are ignored; the caller keeps the reactor's ownership.
    virtual void addReactor(AcRxDLinkerReactor* reactor) = 0;
    virtual void removeReactor(AcRxDLinkerReactor* reactor) = 0;

protected:
    AcRxDynamicLinker();
};
