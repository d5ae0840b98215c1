// Pointers to COM interfaces.
#pragma once

#include <afx.h>

#include "afx/core/ComPtr.h"
