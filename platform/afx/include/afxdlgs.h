// Standard dialogs.
#pragma once

#include <afxwin.h>
#include <commdlg.h>
#include <prsht.h>

#include "afx/dialog/ColorDialog.h"
#include "afx/dialog/CommonDialog.h"
#include "afx/dialog/FileDialog.h"
#include "afx/dialog/PropertyPage.h"
#include "afx/dialog/PropertySheet.h"
