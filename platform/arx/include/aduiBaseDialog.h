// CAdUiBaseDialog: a dialog whose template lies in the resources of a module.
//
// The host's resources are the current ones, so a dialog of a module either is created between a push and a pop of the
// module's resource handle, or names its module in the third argument of the constructor.
#pragma once

#include <afxwin.h>

#include "arx/Api.h"

class ARX_API CAdUiBaseDialog : public CDialog
{
    DECLARE_DYNAMIC(CAdUiBaseDialog)

public:
    // hDialogResource: the module that holds the template; NULL takes the current resource handle at the time of
    // creation.
    CAdUiBaseDialog(UINT idd, CWnd* pParent = NULL, HINSTANCE hDialogResource = NULL);
    virtual ~CAdUiBaseDialog();

    // Modeless; the same as CDialog's, with the resources of this dialog's module.
    virtual BOOL Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd = NULL);
    virtual BOOL Create(UINT nIDTemplate, CWnd* pParentWnd = NULL);

    // Modal. The host's command line gets no focus meanwhile.
    virtual INT_PTR DoModal();

    // The name of the application in the titles of message boxes and in the profile.
    LPCTSTR GetAppName();
    void SetAppName(LPCTSTR pAppName);

    // Whether the host may switch to another document while this dialog is open. Default FALSE.
    BOOL IsMultiDocumentActivationEnabled();
    BOOL EnableMultiDocumentActivation(BOOL bEnable);

protected:
    virtual BOOL OnInitDialog();

    HINSTANCE m_hDialogResourceSaved;

    DECLARE_MESSAGE_MAP()

private:
    CString m_appName;
    BOOL m_multiDocumentActivation;
};
