// The edit menu of a rich edit: a right click opens it, its commands work on the control, its items are enabled as the
// selection, the clipboard and the undo buffer allow.
//
// Commands and update requests are what the control hands to OnCommand and OnUpdateCmdUI.
#pragma once

#include <afxwin.h>
#include <afxcmn.h>

#include "base/ZnktApi.h"
#include "dialog/PopupMenuInitHandler.h"

class CAutoRichEditCtrl;

class ZNKT_API CEditMenuHandler : public CPopupMenuInitHandler
{
public:
    CEditMenuHandler();

    // Hooks the control's window. nMenuID: a menu of the module's resources, whose first popup is shown. Always TRUE.
    BOOL Install(CAutoRichEditCtrl* pCtrl, UINT nMenuID);

protected:
    virtual LRESULT WindowProc(UINT msg, WPARAM wParam, LPARAM lParam);

public:
    // Carries out delete, copy, cut, paste, select all and undo. FALSE: another command, or no rich edit is hooked.
    virtual BOOL OnCommand(UINT nID);

    // Enables or disables the item of one of these commands. FALSE: another command, or no rich edit is hooked.
    // Paste looks for plain text (CF_TEXT) on the clipboard.
    virtual BOOL OnUpdateCmdUI(CCmdUI* pCmdUI);

    // Shows the menu at a point of the screen and returns when it is closed. Always TRUE.
    virtual BOOL OnContextMenu(CPoint pt);

private:
    CRichEditCtrl* GetRichEdit() const;

    UINT m_nMenuID;
};
