// Names and enumerations of the drawing database.
#pragma once

#include "acadstrc.h"
#include "arx/db/AcDb.h"
