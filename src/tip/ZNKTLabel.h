// A label with lowered and raised parts, for units and indices. It takes the place of a static text of a dialog:
//
//     CZNKTLabel m_area;                          // DDX_Control(exchange, IDC_AREA, m_area)
//     m_area.SetWindowText(L"A{B1} = 12 m{U2}");  // the 1 stands low, the 2 stands high, both are smaller
//     m_area.Invalidate();
//
// "{B" begins a lowered part, "{U" a raised one, "}" ends it. Any other letter leaves a gap as wide as its part. There
// is no way to show a brace itself. The text is one line in the font of the parent (in the label's own without a
// parent), from the left upper corner on.
//
// A static text draws a new text at once and by itself, markup and all: invalidate the label after SetWindowText.
#pragma once

#include <afxwin.h>

#include "base/ZnktApi.h"

class ZNKT_API CZNKTLabel : public CWnd
{
    DECLARE_DYNAMIC(CZNKTLabel)

public:
    CZNKTLabel();
    virtual ~CZNKTLabel();

protected:
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()
};
