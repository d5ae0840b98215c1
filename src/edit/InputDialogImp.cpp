#include "edit/InputDialogImp.h"

#include "edit/InputDialog.h"
#include "res/resource.h"

IMPLEMENT_DYNAMIC(CInputDialogImp, CDialog)

CInputDialogImp::CInputDialogImp(CInputDialog& owner, CWnd* parent) : CDialog(IDD_INPUT, parent), m_owner(owner) {}

void CInputDialogImp::DoDataExchange(CDataExchange* exchange)
{
    CDialog::DoDataExchange(exchange);
    DDX_Text(exchange, IDC_INPUT_TEXT, m_value);
}

BOOL CInputDialogImp::OnInitDialog()
{
    CDialog::OnInitDialog();
    SetWindowText(m_owner.Title());
    SetDlgItemText(IDC_INPUT_PROMPT, m_owner.TipMsg());
    m_value = m_owner.DefaultValue();
    UpdateData(FALSE);
    m_owner.OnInitDialog();
    return TRUE;
}

void CInputDialogImp::OnOK()
{
    if (!UpdateData(TRUE) || !m_owner.OnOk(m_value))
        return;
    UpdateData(FALSE);
    // Not by way of the base class, which would read the edit once more.
    EndDialog(IDOK);
}

void CInputDialogImp::OnCancel()
{
    if (m_owner.OnCancel())
        CDialog::OnCancel();
}
