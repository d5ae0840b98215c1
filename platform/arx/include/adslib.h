// The C interface as a whole.
#pragma once

#include "adsdef.h"
#include "adscodes.h"
#include "acutads.h"
#include "acedads.h"
