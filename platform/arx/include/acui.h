// The host's own layer over the dialog library (AcUi).
#pragma once

#include "adui.h"

#include "acuiDialog.h"

// Initialises this library and the one below. More calls do no harm.
ARX_API void InitAcUiDLL();
