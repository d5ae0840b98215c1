#include "TabSheetPage.h"

#include "../GalleryIds.h"

const wchar_t CTabSheetPage::Description[] =
    L"选项卡：最多十六个对话框页，单击选项卡或由程序切换。";

CTabSheetPage::CTabSheetPage() : CGalleryPage(IDD_TAB_SHEET_PAGE) {}

void CTabSheetPage::DoDataExchange(CDataExchange* exchange)
{
    CGalleryPage::DoDataExchange(exchange);
    // [show]
    DDX_Control(exchange, IDC_TAB_SHEET, m_sheet); // 模板中的选项卡控件
    // [end]
}

BOOL CTabSheetPage::OnInitDialog()
{
    CGalleryPage::OnInitDialog();
    // [show]
    m_sheet.AddPage(L"常规", &m_general, IDD_TAB_SHEET_GENERAL);
    m_sheet.AddPage(L"图层", &m_layers, IDD_TAB_SHEET_LAYERS);
    m_sheet.AddPage(L"输出", &m_output, IDD_TAB_SHEET_OUTPUT);
    m_sheet.Show(); // 创建并显示第一页
    // [end]
    return TRUE;
}
