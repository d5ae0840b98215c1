#include "edit/InputDialogImp.h"

#include "base/WindowWatch.h"
#include "edit/InputDialog.h"
#include "res/resource.h"

IMPLEMENT_DYNAMIC(CInputDialogImp, CDialog)

BEGIN_MESSAGE_MAP(CInputDialogImp, CDialog)
    ON_WM_DESTROY()
END_MESSAGE_MAP()

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
    const CWindowWatch watch(*this);
    if (!UpdateData(TRUE) || !m_owner.OnOk(m_value) || watch.IsGone())
        return;
    UpdateData(FALSE);
    // Not by way of the base class, which would read the edit once more.
    EndDialog(IDOK);
}

void CInputDialogImp::OnCancel()
{
    const CWindowWatch watch(*this);
    if (m_owner.OnCancel() && !watch.IsGone())
        CDialog::OnCancel();
}

// A window that goes down with its parent, or by a hook, takes the question with it: nobody else would end the loop
// that waits for the answer.
void CInputDialogImp::OnDestroy()
{
    if (ContinueModal())
        EndModalLoop(IDCANCEL);
    CDialog::OnDestroy();
}
