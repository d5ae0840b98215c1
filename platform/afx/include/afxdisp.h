// OLE: its start in a program.
#pragma once

#include <afxwin.h>

#include "afx/html/OleInit.h"
