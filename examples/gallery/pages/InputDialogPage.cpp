#include "InputDialogPage.h"

#include "../GalleryIds.h"

// [show]
#include <InputDialog.h>
// [end]

const wchar_t CInputDialogPage::Description[] =
    L"请用户输入一行文字的小对话框。派生类给出标题、提示和初始文字，并决定是"
    L"否接受输入。";

namespace
{

const wchar_t kForbidden[] = L"<>/\\:;?*|=";
const int kLongestName = 31;

// [show]
class CLayerNameDialog : public CInputDialog
{
public:
    CLayerNameDialog(CWnd* parent, const CString& name)
        : CInputDialog(parent), m_name(name)
    {
    }

    CString Title() override { return L"图层"; }
    CString TipMsg() override { return L"图层名:"; }
    CString DefaultValue() override { return m_name; }
    void OnInitDialog() override
    {
        GetEditControl()->SetLimitText(kLongestName);
    }
    bool OnOk(CString& value) override; // false：对话框保持打开

private:
    bool Refuse(const wchar_t* reason);

    CString m_name;
};
// [end]

// [show]
bool CLayerNameDialog::OnOk(CString& value)
{
    if (value.Trim().IsEmpty())
        return Refuse(L"名称不能为空:");
    if (value.FindOneOf(kForbidden) >= 0)
        return Refuse(L"名称含有不允许的字符:");
    return true;
}
// [end]

bool CLayerNameDialog::Refuse(const wchar_t* reason)
{
    GetTipControl()->SetWindowText(reason);
    GetEditControl()->SetFocus();
    GetEditControl()->SetSel(0, -1);
    return false;
}

} // namespace

BEGIN_MESSAGE_MAP(CInputDialogPage, CGalleryPage)
    ON_BN_CLICKED(IDC_INPUT_DIALOG_ASK, &CInputDialogPage::OnAsk)
END_MESSAGE_MAP()

CInputDialogPage::CInputDialogPage() : CGalleryPage(IDD_INPUT_DIALOG_PAGE) {}

void CInputDialogPage::OnAsk()
{
    CString name;
    GetDlgItemText(IDC_INPUT_DIALOG_ANSWER, name);
    // [show]
    if (CLayerNameDialog(this, name).Input(name))
        SetDlgItemText(IDC_INPUT_DIALOG_ANSWER, name);
    // [end]
}
