// CPoint, CSize, CRect.
#pragma once

#include "afx/core/Geometry.h"
