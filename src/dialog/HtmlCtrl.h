// CHtmlCtrl: the system's web browser as a control of a dialog. Links whose address begins with "app:" do not navigate:
// they are commands for the program.
//
//     class CHelpCtrl : public CHtmlCtrl
//     {
//         virtual void OnAppCmd(const wchar_t* pszCmd);   // <a href="app:open?id=3"> gives "open?id=3"
//     };
//
//     class CHelpDlg : public CDialog
//     {
//         CHelpCtrl m_html;                               // a member: the control does not delete itself
//     };
//
//     BOOL CHelpDlg::OnInitDialog()
//     {
//         CDialog::OnInitDialog();
//         if (m_html.CreateFromStatic(IDC_HTML_PLACE, this))
//             m_html.Navigate2(L"C:\\Suite\\Help\\index.html");
//         return TRUE;
//     }
//
// Navigation, questions and further events are those of CHtmlView. The dialog, and with it the control, may be
// destroyed inside OnAppCmd. After the window is gone CreateFromStatic may be called again.
#pragma once

#include <afxwin.h>
#include <afxhtml.h>

#include "base/ZnktApi.h"

class ZNKT_API CHtmlCtrl : public CHtmlView
{
    DECLARE_DYNAMIC(CHtmlCtrl)

public:
    CHtmlCtrl();
    virtual ~CHtmlCtrl();

    // Puts the control in the place of the dialog item nID, whose window is destroyed: same rectangle, same id. No
    // object may stand for the item (DDX_Control). FALSE: there is no parent or no such item, or this control has its
    // window already; nothing has changed then. FALSE also when the system's browser cannot be created: the item is
    // gone in that case.
    int CreateFromStatic(UINT nID, CWnd* pParent);

    // Hands "app:" addresses, in any letter case, to OnAppCmd without the prefix and cancels the navigation. All others
    // navigate.
    virtual void OnBeforeNavigate2(const wchar_t* pszURL, DWORD nFlags, const wchar_t* pszTargetFrameName,
                                   CByteArray& baPostedData, const wchar_t* pszHeaders, BOOL* pbCancel);

    // A command of the page, such as "open?id=3", as the address has it: escapes like %20 are not decoded. The base
    // does nothing.
    virtual void OnAppCmd(const wchar_t* pszCmd);

protected:
    // Nothing: a view would delete itself.
    virtual void PostNcDestroy();

    // Both as a plain window does: a view would look for its frame.
    afx_msg void OnDestroy();
    afx_msg int OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message);
    DECLARE_MESSAGE_MAP()

private:
    CHtmlCtrl(const CHtmlCtrl&);
    CHtmlCtrl& operator=(const CHtmlCtrl&);
};
