#include "GalleryPage.h"

#include <AcExtensionModule.h>

bool CGalleryPage::CreateIn(CWnd& parent)
{
    const CAcModuleResourceOverride resources;
    return Create(m_templateId, &parent) != FALSE;
}

BOOL CGalleryPage::PreTranslateMessage(MSG* message)
{
    return CWnd::PreTranslateMessage(message);
}
