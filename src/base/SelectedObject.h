// Guard: an object is selected into a device context while it lives. Null selects nothing.
#pragma once

#include <afxwin.h>

class CSelectedObject
{
public:
    CSelectedObject(CDC& dc, HGDIOBJ object)
        : m_dc(dc.GetSafeHdc()), m_before(object == NULL ? NULL : ::SelectObject(m_dc, object))
    {
    }

    ~CSelectedObject()
    {
        if (m_before != NULL)
            ::SelectObject(m_dc, m_before);
    }

    // False for null, and for a bitmap that another context has selected.
    bool IsSelected() const { return m_before != NULL; }

private:
    CSelectedObject(const CSelectedObject&);
    CSelectedObject& operator=(const CSelectedObject&);

    HDC m_dc;
    HGDIOBJ m_before;
};
