// Guard: a window does not repaint while rows are put in or taken out; it is repainted once at the end.
#pragma once

#include <afxwin.h>

class CNoRedraw
{
public:
    explicit CNoRedraw(CWnd& wnd) : m_wnd(wnd) { m_wnd.SetRedraw(FALSE); }

    ~CNoRedraw()
    {
        m_wnd.SetRedraw(TRUE);
        m_wnd.Invalidate();
    }

private:
    CNoRedraw(const CNoRedraw&);
    CNoRedraw& operator=(const CNoRedraw&);

    CWnd& m_wnd;
};
