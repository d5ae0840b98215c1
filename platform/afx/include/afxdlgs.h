// Standard dialogs.
#pragma once

#include <afxwin.h>
#include <commdlg.h>

#include "afx/dialog/FileDialog.h"
