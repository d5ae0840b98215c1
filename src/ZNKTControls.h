// Everything that ZNKTControls.arx offers.
#pragma once

#include "list/ZNSortListCtrl.h"
#include "msg/KTMsgWnd.h"
