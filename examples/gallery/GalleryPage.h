// What every page of the gallery is: a child dialog that shows one control at work.
#pragma once

#include <afxwin.h>

#include <CtrlResize.h>

class CGalleryPage : public CDialog
{
public:
    // Creates the page, hidden, from the template of this module.
    bool CreateIn(CWnd& parent);

    // Tab, Enter and Escape belong to the whole window, not to the page.
    BOOL PreTranslateMessage(MSG* message) override;

protected:
    explicit CGalleryPage(UINT templateId) : m_templateId(templateId) {}

    BOOL OnInitDialog() override;
    void OnOK() override {}
    void OnCancel() override {}

    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg LRESULT OnNextControl(WPARAM wParam, LPARAM lParam);

    DECLARE_MESSAGE_MAP()

    // Controls that a page adds here, once it is created, follow its size.
    CCtrlResize m_resize;

private:
    UINT m_templateId;
};
