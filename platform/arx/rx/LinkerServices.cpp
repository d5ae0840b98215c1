// The documented loader classes and the plain functions around the loader.
#include "DynamicLinker.h"

#include "rxregsvc.h"

using arxrx::DynamicLinker;

ACRX_NO_CONS_DEFINE_MEMBERS(AcRxDynamicLinker, AcRxObject)
ACRX_NO_CONS_DEFINE_MEMBERS(AcRxDLinkerReactor, AcRxObject)

AcRxDynamicLinker::AcRxDynamicLinker() {}

AcRxDynamicLinker::~AcRxDynamicLinker() {}

AcRxDLinkerReactor::~AcRxDLinkerReactor() {}

void AcRxDLinkerReactor::rxAppWillBeLoaded(const ACHAR* /*moduleName*/) {}

void AcRxDLinkerReactor::rxAppLoaded(const ACHAR* /*moduleName*/) {}

void AcRxDLinkerReactor::rxAppLoadAborted(const ACHAR* /*moduleName*/) {}

void AcRxDLinkerReactor::rxAppWillBeUnloaded(const ACHAR* /*moduleName*/) {}

void AcRxDLinkerReactor::rxAppUnloaded(const ACHAR* /*moduleName*/) {}

void AcRxDLinkerReactor::rxAppUnloadAborted(const ACHAR* /*moduleName*/) {}

bool acrxLoadModule(const ACHAR* moduleName, bool printit, bool asCmd)
{
    return DynamicLinker::Instance().loadModule(moduleName, printit, asCmd);
}

bool acrxUnloadModule(const ACHAR* moduleName, bool asCmd)
{
    return DynamicLinker::Instance().unloadModule(moduleName, asCmd);
}

bool acrxLoadApp(const ACHAR* appName, bool asCmd)
{
    return DynamicLinker::Instance().loadApp(appName, AcadApp::kOnLoadRequest, true, asCmd);
}

bool acrxUnloadApp(const ACHAR* appName, bool asCmd)
{
    return DynamicLinker::Instance().unloadApp(appName, asCmd);
}

bool acrxAppIsLoaded(const ACHAR* moduleName)
{
    return DynamicLinker::Instance().IsLoaded(moduleName);
}

bool acrxLockApplication(void* appId)
{
    return DynamicLinker::Instance().lockApplication(appId);
}

bool acrxUnlockApplication(void* appId)
{
    return DynamicLinker::Instance().unlockApplication(appId);
}

bool acrxApplicationIsLocked(const ACHAR* moduleName)
{
    return DynamicLinker::Instance().isApplicationLocked(moduleName);
}

bool acrxRegisterAppMDIAware(void* appId)
{
    return DynamicLinker::Instance().registerAppMDIAware(appId);
}

bool acrxRegisterAppNotMDIAware(void* appId)
{
    return DynamicLinker::Instance().registerAppNotMDIAware(appId);
}
