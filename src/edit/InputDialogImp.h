// The window of an input dialog: passes what happens on to the CInputDialog that owns it.
#pragma once

#include <afxwin.h>

class CInputDialog;

class CInputDialogImp : public CDialog
{
    DECLARE_DYNAMIC(CInputDialogImp)

public:
    // The owner outlives the window.
    CInputDialogImp(CInputDialog& owner, CWnd* parent);

    // What the user entered last.
    const CString& GetValue() const { return m_value; }

protected:
    virtual void DoDataExchange(CDataExchange* exchange);
    virtual BOOL OnInitDialog();
    virtual void OnOK();
    virtual void OnCancel();

    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

private:
    CString m_value;
    CInputDialog& m_owner;
};
