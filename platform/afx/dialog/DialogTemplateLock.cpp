#include "afx/dialog/DialogTemplateLock.h"

#include "afx/app/Resource.h"

namespace
{
// The extended form of a template, as far as it is needed. It is told from the plain one by its second word.
#pragma pack(push, 2)
struct ExtendedTemplate
{
    WORD version;
    WORD signature;
    DWORD helpId;
    DWORD exStyle;
    DWORD style;
    WORD items;
    short x;
    short y;
};
#pragma pack(pop)

const WORD ExtendedSignature = 0xFFFF;
} // namespace

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
    const ExtendedTemplate* const extended = reinterpret_cast<const ExtendedTemplate*>(dialogTemplate);
    if (extended->signature == ExtendedSignature)
        return (extended->style & placed) != 0 || extended->x != 0 || extended->y != 0;
    return (dialogTemplate->style & placed) != 0 || dialogTemplate->x != 0 || dialogTemplate->y != 0;
}
