// Symbol tables of a drawing: blocks and layers.
#pragma once

#include "dbmain.h"

#include "arx/db/SymbolTable.h"
#include "arx/db/BlockTable.h"
#include "arx/db/LayerTable.h"
