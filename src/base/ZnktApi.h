// ZNKT_API marks what ZNKTControls.arx offers to the other modules of the suite.
#pragma once

#ifdef ZNKTControls_EXPORTS
#define ZNKT_API __declspec(dllexport)
#else
#define ZNKT_API __declspec(dllimport)
#endif
