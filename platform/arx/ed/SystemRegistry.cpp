// The dictionary that the whole process shares, with the services that are always there.
#include "rxdict.h"

#include "CommandStack.h"
#include "arx/rx/DynamicLinker.h"

namespace
{

AcRxDictionary* NewSystemRegistry()
{
    AcRxDictionary* registry = new AcRxDictionary;
    registry->atPut(ACRX_DYNAMIC_LINKER, &arxrx::DynamicLinker::Instance());
    registry->atPut(ACED_COMMAND_STACK, &arxed::CommandStack::Instance());
    return registry;
}

} // namespace

AcRxDictionary* acrxSysRegistry()
{
    // Never destroyed: modules ask for services until they are unloaded.
    static AcRxDictionary* const registry = NewSystemRegistry();
    return registry;
}
