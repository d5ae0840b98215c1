// CCommonDialog: base of the dialogs that the system brings along; only modal.
#pragma once

#include "afx/dialog/Dialog.h"

class AFX_API CCommonDialog : public CDialog
{
    DECLARE_DYNAMIC(CCommonDialog)

public:
    explicit CCommonDialog(CWnd* parent);

protected:
    // The window that the system's dialog disables and covers.
    HWND SafeOwner() const;
};
