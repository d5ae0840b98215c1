// A themed push button that shows a tip of several lines on one of its sides while the mouse is over it.
//
//     CToolTipXTButton m_check;                             // DDX_Control(exchange, IDC_CHECK, m_check)
//     m_check.SetToolTip(L"检查当前图形，并列出所有问题");
//     m_check.SetToolTipWndSide(CToolTipXTButton::SIDE_BELOW);
//     m_check.SetToolTipWndSize(CSize(160, 40));
//
// A click or a key hides the tip; it comes back when the mouse has left the button and returns. Where the side has no
// room on the screen the tip goes to the opposite side. Clicks arrive as with any CXTButton.
#pragma once

#include <afxwin.h>

#include <XTToolkitPro.h>

#include "base/ZnktApi.h"

class CXTButtonToolTipWnd;

class ZNKT_API CToolTipXTButton : public CXTButton
{
    DECLARE_DYNCREATE(CToolTipXTButton)

public:
    // The side of the button that the tip is on.
    enum ESide
    {
        SIDE_LEFT = 0,
        SIDE_RIGHT = 1,
        SIDE_ABOVE = 2,
        SIDE_BELOW = 3
    };

    // `theme` is handed to CXTButton.
    explicit CToolTipXTButton(CRuntimeClass* theme = NULL);
    virtual ~CToolTipXTButton();

    // What the next tip shows, where, and how large it is in pixels: at first an empty text above the button, 120
    // by 74. A tip that is open stays as it is. The text is copied; null is the empty text.
    void SetToolTip(const wchar_t* text);
    void SetToolTipWndSide(ESide side);
    void SetToolTipWndSize(const CSize& size);

    virtual BOOL PreTranslateMessage(MSG* message);
    virtual void DrawItem(DRAWITEMSTRUCT* item);

protected:
    // 0 ends the tip; anything else opens one unless there is one already, hidden or not.
    void ShowTipWindow(int show);

    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

private:
    CToolTipXTButton(const CToolTipXTButton&);
    CToolTipXTButton& operator=(const CToolTipXTButton&);

    void OpenTip();
    void HideTip();

    CString m_tipText;
    CXTButtonToolTipWnd* m_tipWnd;
    ESide m_side;
    CSize m_tipSize;
};
