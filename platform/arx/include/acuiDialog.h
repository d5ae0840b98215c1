// CAcUiDialog: the dialog class modules of the host derive from.
//
//     class CMyDlg : public CAcUiDialog
//     {
//     public:
//         CMyDlg(CWnd* pParent) : CAcUiDialog(IDD_MY, pParent) {}
//     protected:
//         afx_msg LRESULT OnAcadKeepFocus(WPARAM, LPARAM); // ON_MESSAGE(WM_ACAD_KEEPFOCUS, ...) of a modeless dialog
//     };
#pragma once

#include "aduiDialog.h"

class ARX_API CAcUiDialog : public CAdUiDialog
{
    DECLARE_DYNAMIC(CAcUiDialog)

public:
    CAcUiDialog(UINT idd, CWnd* pParent = NULL, HINSTANCE hDialogResource = NULL);
    virtual ~CAcUiDialog();

protected:
    DECLARE_MESSAGE_MAP()
};
