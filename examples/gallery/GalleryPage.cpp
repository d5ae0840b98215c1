#include "GalleryPage.h"

#include <AcExtensionModule.h>

BEGIN_MESSAGE_MAP(CGalleryPage, CDialog)
    ON_WM_SIZE()
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
