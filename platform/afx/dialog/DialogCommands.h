// Where the commands of a dialog or a property sheet go that it does not know itself.
#pragma once

#include "afx/wnd/Wnd.h"

// Offers a command, or an update request, to the owner and then to the thread. Notifications of controls, and the
// identifiers of controls and of the system, end at the dialog. The parameters are those of CWnd::OnCmdMsg.
BOOL OfferToOwnerAndThread(const CWnd& dialog, UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo);
