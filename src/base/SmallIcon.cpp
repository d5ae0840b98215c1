#include "base/SmallIcon.h"

#include "base/ModuleInstance.h"

CSmallIcon::~CSmallIcon()
{
    Release();
}

HICON CSmallIcon::Load(UINT id)
{
    Release();
    m_icon = static_cast<HICON>(
        ::LoadImage(_hdllInstance, MAKEINTRESOURCE(id), IMAGE_ICON, SIZE_PIXELS, SIZE_PIXELS, LR_DEFAULTCOLOR));
    return m_icon;
}

void CSmallIcon::Release()
{
    if (m_icon != NULL)
        ::DestroyIcon(m_icon);
    m_icon = NULL;
}
