// The toolkit's umbrella header: themed buttons, the list header with a sort arrow, the sort helper of lists.
#pragma once

#include "afxwin.h"
#include "afxcmn.h"

#include "xtp/button/XTButton.h"
#include "xtp/button/XTButtonTheme.h"
#include "xtp/button/XTButtonThemes.h"
#include "xtp/header/XTHeaderCtrl.h"
#include "xtp/list/XTSortClass.h"
