// Guard: the module's own resources are the current ones while it lives.
//
// The host's resources are current by default, so a dialog template of the module would not be found.
#pragma once

#include <afxwin.h>
#include <acdocman.h>

#include "base/ModuleInstance.h"

class CModuleResources
{
public:
    CModuleResources() { acDocManagerPtr()->pushResourceHandle(_hdllInstance); }
    ~CModuleResources() { acDocManagerPtr()->popResourceHandle(); }

private:
    CModuleResources(const CModuleResources&);
    CModuleResources& operator=(const CModuleResources&);
};
