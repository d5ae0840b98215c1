#include "GalleryPage.h"

#include <AcExtensionModule.h>

BEGIN_MESSAGE_MAP(CGalleryPage, CDialog)
    ON_WM_SIZE()
    ON_MESSAGE(WM_NEXTDLGCTL, &CGalleryPage::OnNextControl)
END_MESSAGE_MAP()

bool CGalleryPage::CreateIn(CWnd& parent)
{
    const CAcModuleResourceOverride resources;
    return Create(m_templateId, &parent) != FALSE;
}

BOOL CGalleryPage::PreTranslateMessage(MSG* message)
{
    return CWnd::PreTranslateMessage(message);
}

BOOL CGalleryPage::OnInitDialog()
{
    CDialog::OnInitDialog();
    m_resize.InitDlg(this);
    return TRUE;
}

void CGalleryPage::OnSize(UINT type, int cx, int cy)
{
    CDialog::OnSize(type, cx, cy);
    m_resize.ResizeAllCtrl(cx, cy);
}

// A rich edit hands Tab to the dialog around it, which would go around among the controls of the page only.
LRESULT CGalleryPage::OnNextControl(WPARAM wParam, LPARAM lParam)
{
    return GetParent()->SendMessage(WM_NEXTDLGCTL, wParam, lParam);
}
