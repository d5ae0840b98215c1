// Guard: a device context has its former objects, colours and modes again afterwards. Pens, brushes and fonts that are
// selected meanwhile must live longer than the guard.
#pragma once

#include <afxwin.h>

class CSavedDC
{
public:
    explicit CSavedDC(CDC& dc) : m_dc(dc), m_state(dc.SaveDC()) {}
    ~CSavedDC() { m_dc.RestoreDC(m_state); }

private:
    CSavedDC(const CSavedDC&);
    CSavedDC& operator=(const CSavedDC&);

    CDC& m_dc;
    int m_state;
};
