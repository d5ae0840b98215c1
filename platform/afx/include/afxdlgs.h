// Standard dialogs.
#pragma once

#include <afxwin.h>
#include <commdlg.h>

#include "afx/dialog/ColorDialog.h"
#include "afx/dialog/CommonDialog.h"
#include "afx/dialog/FileDialog.h"
