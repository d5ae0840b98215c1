// The tip window of a CToolTipXTButton: a small framed popup with a text in its middle. Clients use the button.
#pragma once

#include <afxwin.h>

#include "base/ZnktApi.h"

class ZNKT_API CXTButtonToolTipWnd : public CWnd
{
    DECLARE_DYNAMIC(CXTButtonToolTipWnd)

public:
    // The text is copied; a height of the font below 1 stands for 12 pixels.
    CXTButtonToolTipWnd(const wchar_t* text, COLORREF background, COLORREF textColor, int fontHeight);
    virtual ~CXTButtonToolTipWnd();

    // Shows the window at that place on the screen, above the others and without activating it. `id` is for the
    // caller's sake: a window of this kind has none. Throws a resource exception when the window class cannot be
    // registered. FALSE: no window.
    BOOL Create(const RECT& rect, CWnd* parent, UINT id);

protected:
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()

private:
    CXTButtonToolTipWnd(const CXTButtonToolTipWnd&);
    CXTButtonToolTipWnd& operator=(const CXTButtonToolTipWnd&);

    CString m_text;
    CFont m_font;
    COLORREF m_background;
    COLORREF m_textColor;
};
