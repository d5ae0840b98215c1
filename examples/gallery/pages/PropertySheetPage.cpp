#include "PropertySheetPage.h"

#include "../GalleryIds.h"

#include <AcExtensionModule.h>
// [show]
#include <NoHelpPropertySheet.h>
// [end]

const wchar_t CPropertySheetPage::Description[] =
    L"没有“帮助”按钮的属性表。“应用”始终可用，可以一次应用所有页，也可以不显"
    L"示；打开时即创建所有页。";

namespace
{

class CLoggingPage : public CPropertyPage
{
public:
    CLoggingPage(UINT templateId, const wchar_t* name, CListBox& log)
        : CPropertyPage(templateId), m_name(name), m_log(log)
    {
    }

    // [show]
    BOOL OnApply() override // FALSE：其余页不再应用
    {
        m_log.SetCurSel(m_log.AddString(L"应用: " + m_name));
        return CPropertyPage::OnApply();
    }
    // [end]

private:
    CString m_name;
    CListBox& m_log;
};

} // namespace

BEGIN_MESSAGE_MAP(CPropertySheetPage, CGalleryPage)
    ON_BN_CLICKED(IDC_PROPERTY_SHEET_OPEN, &CPropertySheetPage::OnOpen)
END_MESSAGE_MAP()

CPropertySheetPage::CPropertySheetPage()
    : CGalleryPage(IDD_PROPERTY_SHEET_PAGE)
{
}

BOOL CPropertySheetPage::OnInitDialog()
{
    CGalleryPage::OnInitDialog();
    m_resize.AddCtrl(IDC_PROPERTY_SHEET_LOG, 0, 0, 1, 1);
    CheckDlgButton(IDC_PROPERTY_SHEET_SHOW_APPLY, BST_CHECKED);
    CheckDlgButton(IDC_PROPERTY_SHEET_APPLY_ALL, BST_CHECKED);
    return TRUE;
}

void CPropertySheetPage::OnOpen()
{
    CListBox& log =
        *static_cast<CListBox*>(GetDlgItem(IDC_PROPERTY_SHEET_LOG));
    CLoggingPage general(IDD_SHEET_GENERAL, L"常规", log);
    CLoggingPage drawing(IDD_SHEET_DRAWING, L"图形", log);
    CLoggingPage output(IDD_SHEET_OUTPUT, L"输出", log);

    // [show]
    CNoHelpPropertySheet sheet(L"选项", this);
    sheet.AddPage(&general);
    sheet.AddPage(&drawing);
    sheet.AddPage(&output);
    const UINT showApply = IsDlgButtonChecked(IDC_PROPERTY_SHEET_SHOW_APPLY);
    sheet.SetShowApply(showApply == BST_CHECKED); // false：没有“应用”
    const UINT applyAll = IsDlgButtonChecked(IDC_PROPERTY_SHEET_APPLY_ALL);
    sheet.SetApplyAllPages(applyAll == BST_CHECKED); // false：只应用当前页

    const CAcModuleResourceOverride resources;
    const INT_PTR result = sheet.DoModal();
    // [end]
    log.SetCurSel(
        log.AddString(result == IDOK ? L"关闭: 确定" : L"关闭: 取消"));
}
