// Dialog data exchange and validation; reached through afxwin.h.
#pragma once

#include "afx/dialog/DataExchange.h"
