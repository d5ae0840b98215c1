// XTP_API marks what xtp.dll offers.
#pragma once

#include "afx/core/Api.h"

#ifdef xtp_EXPORTS
#define XTP_API __declspec(dllexport)
#else
#define XTP_API __declspec(dllimport)
#endif
