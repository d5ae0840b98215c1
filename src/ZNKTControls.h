// Everything that ZNKTControls.arx offers.
#pragma once

#include "button/ComboButtonItem.h"
#include "edit/InputDialog.h"
#include "edit/SuperEdit.h"
#include "list/ZNListCtrl.h"
#include "list/ZNSortListCtrl.h"
#include "msg/KTMsgWnd.h"
#include "tree/AddedIconTreeCtrl.h"
#include "tree/ComboButtonIMPItem.h"
#include "tree/MFCCommonTree.h"
#include "tree/MFCUtils.h"
#include "tree/StateTreeCtrl.h"
