// Collections of fixed types: arrays, lists and maps of text, bytes, numbers, pointers and objects.
#pragma once

#include "afx.h"
#include "afx/core/Collections.h"
