// ZNKTPUB_API marks what ZNKTPub.arx offers to the other modules of the suite.
#pragma once

#ifdef ZNKTPub_EXPORTS
#define ZNKTPUB_API __declspec(dllexport)
#else
#define ZNKTPUB_API __declspec(dllimport)
#endif
