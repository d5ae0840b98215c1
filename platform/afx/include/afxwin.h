// Windows, the program, GDI, menus, dialogs, frames and the standard controls.
#pragma once

#include <afx.h>
#include <afxcoll.h>
#include <afxres.h>

#include "afx/wnd/Wnd.h"
#include "afx/app/ExtensionModule.h"
#include "afx/app/Resource.h"
#include "afx/app/WinApp.h"
#include "afx/wnd/MessageMacros.h"

#include "afx/gdi/GdiObject.h"
#include "afx/gdi/DC.h"

#include "afx/menu/CmdUI.h"
#include "afx/menu/Menu.h"

#include "afx/dialog/DataExchange.h"
#include "afx/dialog/Dialog.h"

#include "afx/frame/CreateContext.h"
#include "afx/frame/Document.h"
#include "afx/frame/FrameWnd.h"
#include "afx/frame/MDIChildWnd.h"
#include "afx/frame/MDIFrameWnd.h"
#include "afx/frame/View.h"

#include "afx/ctrl/Button.h"
#include "afx/ctrl/ComboBox.h"
#include "afx/ctrl/Edit.h"
#include "afx/ctrl/ListBox.h"
#include "afx/ctrl/ScrollBar.h"
#include "afx/ctrl/Static.h"
