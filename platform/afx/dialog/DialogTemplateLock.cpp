#include "afx/dialog/DialogTemplateLock.h"

#include "afx/app/Resource.h"
#include "afx/dialog/ExtendedTemplate.h"

CDialogTemplateLock::CDialogTemplateLock(LPCTSTR resourceName)
    : m_instance(AfxFindResourceHandle(resourceName, RT_DIALOG))
{
    const HRSRC resource = ::FindResource(m_instance, resourceName, RT_DIALOG);
    const HGLOBAL loaded = resource == nullptr ? nullptr : ::LoadResource(m_instance, resource);
    if (loaded != nullptr)
        m_template = static_cast<LPCDLGTEMPLATE>(::LockResource(loaded));
}

CDialogTemplateLock::CDialogTemplateLock(HGLOBAL memory)
    : m_memory(memory), m_template(static_cast<LPCDLGTEMPLATE>(::GlobalLock(memory)))
{
}

CDialogTemplateLock::~CDialogTemplateLock()
{
    if (m_memory != nullptr)
        ::GlobalUnlock(m_memory);
}

bool CDialogTemplateLock::HasPlace(LPCDLGTEMPLATE dialogTemplate)
{
    const DWORD placed = DS_CENTER | DS_CENTERMOUSE | DS_ABSALIGN;
    if (const ExtendedTemplate* const extended = ExtendedTemplate::Of(dialogTemplate))
        return (extended->style & placed) != 0 || extended->x != 0 || extended->y != 0;
    return (dialogTemplate->style & placed) != 0 || dialogTemplate->x != 0 || dialogTemplate->y != 0;
}
