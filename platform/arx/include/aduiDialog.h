// CAdUiDialog: a dialog that can keep its place from one run to the next and has a smallest and a largest size.
#pragma once

#include "aduiBaseDialog.h"

class ARX_API CAdUiDialog : public CAdUiBaseDialog
{
    DECLARE_DYNAMIC(CAdUiDialog)

public:
    CAdUiDialog(UINT idd, CWnd* pParent = NULL, HINSTANCE hDialogResource = NULL);
    virtual ~CAdUiDialog();

    // The name under which the place is kept in the application's profile; empty keeps nothing.
    LPCTSTR GetDialogName();
    void SetDialogName(LPCTSTR name);

    // TRUE: a top-level dialog with a name opens where it was closed. Default FALSE.
    BOOL GetPersistency();
    void SetPersistency(BOOL bFlag);

    // Limits of the window's size in pixels; 0 is no limit.
    void SetDialogMinExtents(int width, int height);
    void SetDialogMaxExtents(int width, int height);

protected:
    virtual BOOL OnInitDialog();

    afx_msg void OnGetMinMaxInfo(MINMAXINFO* lpMMI);
    afx_msg void OnDestroy();

    DECLARE_MESSAGE_MAP()

private:
    bool KeepsPlace() const;
    void RestorePlace();
    void SavePlace();

    CString m_name;
    BOOL m_persistent;
    CSize m_minimum;
    CSize m_maximum;
};
