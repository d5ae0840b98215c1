// CString.
#pragma once

#include "afx/core/String.h"
#include "afx/core/StringNarrow.h"
