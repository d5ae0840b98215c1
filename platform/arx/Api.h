// ARX_API marks what arx.dll offers to the host program, to modules and to the other libraries.
#pragma once

#ifdef arx_EXPORTS
#define ARX_API __declspec(dllexport)
#else
#define ARX_API __declspec(dllimport)
#endif
