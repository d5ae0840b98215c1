#include "edit/InputDialog.h"

#include "base/ModuleResources.h"
#include "edit/InputDialogImp.h"
#include "res/resource.h"

namespace
{

const wchar_t kTitle[] = L"输入";
const wchar_t kPrompt[] = L"输入:";

} // namespace

CInputDialog::CInputDialog(CWnd* parent)
{
    CModuleResources resources;
    m_dialog = new CInputDialogImp(*this, parent);
}

CInputDialog::~CInputDialog()
{
    delete m_dialog;
}

CString CInputDialog::Title()
{
    return kTitle;
}

CString CInputDialog::TipMsg()
{
    return kPrompt;
}

CString CInputDialog::DefaultValue()
{
    return CString();
}

void CInputDialog::OnInitDialog() {}

bool CInputDialog::OnOk(CString&)
{
    return true;
}

bool CInputDialog::OnCancel()
{
    return true;
}

bool CInputDialog::Input(CString& value)
{
    if (m_dialog->GetSafeHwnd() != NULL)
        return false; // it is asking already
    CModuleResources resources;
    if (m_dialog->DoModal() != IDOK)
        return false;
    value = m_dialog->GetValue();
    return true;
}

CWnd* CInputDialog::GetDialogWindow()
{
    return m_dialog;
}

CStatic* CInputDialog::GetTipControl()
{
    return static_cast<CStatic*>(m_dialog->GetDlgItem(IDC_INPUT_PROMPT));
}

CEdit* CInputDialog::GetEditControl()
{
    return static_cast<CEdit*>(m_dialog->GetDlgItem(IDC_INPUT_TEXT));
}
