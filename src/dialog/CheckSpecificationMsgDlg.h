// The window of CCheckSpecMsgThread: texts in a rich edit beside the cursor, a button that pins the window in place,
// and one that closes it. All of it belongs to the thread that created it.
#pragma once

#include <afxwin.h>
#include <afxcmn.h>

#include "dialog/AutoRichEditCtrl.h"
#include "dialog/CtrlResize.h"
#include "msg/MyButton.h"

class CCheckSpecificationMsgDlg : public CDialog
{
    DECLARE_DYNAMIC(CCheckSpecificationMsgDlg)

public:
    CCheckSpecificationMsgDlg();
    virtual ~CCheckSpecificationMsgDlg();

    // Replaces the texts, a line each, and lets the window come up when the cursor stays. No texts: says that there are
    // none, and brings nothing up.
    void SetMessages(const CStringArray& msgs);

protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual BOOL OnInitDialog();
    virtual BOOL PreTranslateMessage(MSG* pMsg);

    DECLARE_MESSAGE_MAP()

    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg void OnDock();
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    afx_msg void OnClose();
    afx_msg LRESULT OnKeepFocus(WPARAM, LPARAM);
    afx_msg void OnSize(UINT nType, int cx, int cy);

private:
    CCheckSpecificationMsgDlg(const CCheckSpecificationMsgDlg&);
    CCheckSpecificationMsgDlg& operator=(const CCheckSpecificationMsgDlg&);

    enum Icon
    {
        ICON_DOCK,
        ICON_UNDOCK,
        ICON_CLOSE,
        ICON_COUNT
    };

    void InitLayout();
    void InitButtons();
    void InitColors();
    void InitToolTips();
    bool IsPinned() const { return m_btnDock.GetCheck() != 0; }
    bool OnShowTimer();
    void OnHideTimer();
    void PlaceAtCursor(CPoint cursor);

    int m_bMouseOver;
    POINT m_ptLast; // the cursor when the window was last shown
    POINT m_ptSet;  // the cursor when the texts were last set
    CCtrlResize m_resize;
    CToolTipCtrl m_toolTip;
    int m_nShowDelay; // ms
    CAutoRichEditCtrl m_richEdit;
    CMyButton m_btnDock;
    CMyButton m_btnClose;
    CBrush m_brBack;
    HICON m_icons[ICON_COUNT];
};
