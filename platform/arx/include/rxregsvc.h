// Loading, unloading and locking of modules by plain functions; wrappers of the dynamic linker (rxdlinkr.h).
#pragma once

#include "rxdefs.h"
#include "arx/Api.h"

// Loads a module and starts it with kInitAppMsg. `moduleName` includes the extension; without a folder it is looked for
// beside the module that asks and beside the host program.
// With `printit` a failure is reported on the command line.
// `asCmd` false: succeeds as often as it is called and counts the calls; `asCmd` true: loads once, false when the
// module is loaded already.
ARX_API bool acrxLoadModule(const ACHAR* moduleName, bool printit, bool asCmd = false);

// Takes one call of acrxLoadModule() back; the module goes with the last. `asCmd` true: unloads at once, unless other
// modules still count on it. False when it is not loaded, locked, still in kInitAppMsg, or answers kRetError to
// kUnloadAppMsg.
ARX_API bool acrxUnloadModule(const ACHAR* moduleName, bool asCmd = false);

// Load and unload as the commands of the command line do.
ARX_API bool acrxLoadApp(const ACHAR* appName, bool asCmd = false);
ARX_API bool acrxUnloadApp(const ACHAR* appName, bool asCmd = false);

ARX_API bool acrxAppIsLoaded(const ACHAR* moduleName);

// `appId` is the packet of kInitAppMsg. Modules start locked, that is, they can't be unloaded. False for another value.
ARX_API bool acrxLockApplication(void* appId);
ARX_API bool acrxUnlockApplication(void* appId);
ARX_API bool acrxApplicationIsLocked(const ACHAR* moduleName);

// Declares that the module works with several open drawings.
ARX_API bool acrxRegisterAppMDIAware(void* appId);
ARX_API bool acrxRegisterAppNotMDIAware(void* appId);
