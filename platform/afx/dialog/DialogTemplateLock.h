// The template of a dialog, in memory for as long as this object lives: from a resource, a memory handle or a pointer.
#pragma once

#include <afx.h>

class CDialogTemplateLock
{
public:
    // Looks the resource up in the modules at this moment.
    explicit CDialogTemplateLock(LPCTSTR resourceName);
    explicit CDialogTemplateLock(HGLOBAL memory);
    explicit CDialogTemplateLock(LPCDLGTEMPLATE dialogTemplate) : m_template(dialogTemplate) {}
    ~CDialogTemplateLock();
    CDialogTemplateLock(const CDialogTemplateLock&) = delete;
    CDialogTemplateLock& operator=(const CDialogTemplateLock&) = delete;

    LPCDLGTEMPLATE Get() const { return m_template; } // NULL: there is none
    HINSTANCE Instance() const { return m_instance; } // the module the template comes from

    // A template at (0, 0) without a style that explains the place leaves it to the framework.
    static bool HasPlace(LPCDLGTEMPLATE dialogTemplate);

private:
    HGLOBAL m_memory = nullptr; // to unlock
    HINSTANCE m_instance = nullptr;
    LPCDLGTEMPLATE m_template = nullptr;
};
