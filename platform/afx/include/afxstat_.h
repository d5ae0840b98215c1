// State of the framework per thread and process.
#pragma once

#include <afx.h>

#include "afx/wnd/ThreadState.h"
