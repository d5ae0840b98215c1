// Guard: an icon of 16 by 16 pixels from the module's own resources.
#pragma once

#include <afxwin.h>

class CSmallIcon
{
public:
    enum
    {
        SIZE_PIXELS = 16
    };

    CSmallIcon() : m_icon(NULL) {}
    ~CSmallIcon();

    // Loads the icon of that identifier in place of the one it holds; null where there is none.
    HICON Load(UINT id);

private:
    CSmallIcon(const CSmallIcon&);
    CSmallIcon& operator=(const CSmallIcon&);

    void Release();

    HICON m_icon;
};
