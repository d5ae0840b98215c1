// Extensions: control bars and what a frame needs to create its windows.
#pragma once

#include <afxwin.h>

#include "afx/frame/ControlBar.h"
#include "afx/frame/CreateContext.h"
