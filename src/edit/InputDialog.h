// CInputDialog: asks the user for one line of text in a small modal dialog.
//
// Derive from it to say what is asked, and to accept or refuse the answer:
//
//     class CLayerNameDialog : public CInputDialog
//     {
//     public:
//         explicit CLayerNameDialog(CWnd* parent) : CInputDialog(parent) {}
//         virtual CString TipMsg() { return L"图层名:"; }
//         virtual bool OnOk(CString& value) { return !value.Trim().IsEmpty(); }
//     };
//
//     CString name;
//     if (CLayerNameDialog(this).Input(name))
//         Rename(name);
#pragma once

#include <afxwin.h>

#include "base/ZnktApi.h"

class CInputDialogImp;

class ZNKT_API CInputDialog
{
public:
    // `parent`: the window that waits meanwhile; null: the host's frame.
    explicit CInputDialog(CWnd* parent);
    virtual ~CInputDialog();

    // What the dialog shows when it opens: caption, prompt, text of the edit.
    virtual CString Title();
    virtual CString TipMsg();
    virtual CString DefaultValue();

    // The dialog has opened.
    virtual void OnInitDialog();

    // The user wants to close it. False keeps it open. `value` is what was typed; what it is changed to is the answer.
    virtual bool OnOk(CString& value);
    virtual bool OnCancel();

    // Shows the dialog until the user closes it, or until its window is destroyed. True: the user said OK, and `value`
    // is the text; otherwise `value` is left alone. Can be called again, but not while it is shown.
    bool Input(CString& value);

    // The dialog and its controls, for the functions above; valid only while it is open.
    CWnd* GetDialogWindow();
    CStatic* GetTipControl();
    CEdit* GetEditControl();

private:
    CInputDialogImp* m_dialog; // owned; a copy shares it, so do not copy
};
