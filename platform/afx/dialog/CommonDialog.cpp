#include "afx/dialog/CommonDialog.h"

IMPLEMENT_DYNAMIC(CCommonDialog, CDialog)

CCommonDialog::CCommonDialog(CWnd* parent)
{
    m_pParentWnd = parent;
}

HWND CCommonDialog::SafeOwner() const
{
    return CWnd::GetSafeOwner(m_pParentWnd)->GetSafeHwnd();
}
