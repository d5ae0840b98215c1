// Collection templates: CArray, CList, CMap, CTypedPtrArray, CTypedPtrList, CTypedPtrMap.
#pragma once

#include "afx.h"
#include "afx/core/Array.h"
#include "afx/core/List.h"
#include "afx/core/Map.h"
#include "afx/core/Collections.h"
#include "afx/core/TypedPtr.h"
