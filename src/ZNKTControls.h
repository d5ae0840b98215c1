// Everything that ZNKTControls.arx offers.
#pragma once

#include "button/ComboButtonItem.h"
#include "edit/InputDialog.h"
#include "edit/SuperEdit.h"
#include "list/ZNListCtrl.h"
#include "list/ZNSortListCtrl.h"
#include "msg/KTMsgWnd.h"
#include "tip/FollowMouseTipWnd.h"
#include "tip/TabSheet.h"
#include "tip/ToolTipXTButton.h"
#include "tip/XTButtonToolTipWnd.h"
#include "tip/ZNKTLabel.h"
#include "tree/AddedIconTreeCtrl.h"
#include "tree/ComboButtonIMPItem.h"
#include "tree/MFCCommonTree.h"
#include "tree/MFCUtils.h"
#include "tree/StateTreeCtrl.h"
