// Core of the framework: run-time classes, text, collections' base types, exceptions, time, files.
#pragma once

#include "afx/core/Api.h"
#include "afx/core/Debug.h"
#include "afx/core/Object.h"
#include "afx/core/String.h"
#include "afx/core/StringNarrow.h"
#include "afx/core/Exceptions.h"
#include "afx/core/Resources.h"
#include "afx/core/Geometry.h"
#include "afx/core/Time.h"
#include "afx/core/File.h"
