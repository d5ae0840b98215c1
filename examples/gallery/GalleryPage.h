// What every page of the gallery is: a child dialog that shows one control at work.
#pragma once

#include <afxwin.h>

class CGalleryPage : public CDialog
{
public:
    // Creates the page, hidden, from the template of this module.
    bool CreateIn(CWnd& parent);

    // Tab, Enter and Escape belong to the whole window, not to the page.
    BOOL PreTranslateMessage(MSG* message) override;

protected:
    explicit CGalleryPage(UINT templateId) : m_templateId(templateId) {}

    void OnOK() override {}
    void OnCancel() override {}

private:
    UINT m_templateId;
};
