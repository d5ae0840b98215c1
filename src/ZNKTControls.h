// Everything that ZNKTControls.arx offers.
#pragma once

#include "msg/KTMsgWnd.h"
