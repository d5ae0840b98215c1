// The one function that every module exports and none defines: the loader asks it before it calls the entry point.
#include "arx/rx/ApiVersion.h"

extern "C" __declspec(dllexport) int acrxGetApiVersion()
{
    return arxrx::kApiVersion;
}
