#include "LabelPage.h"

#include "../GalleryIds.h"

const wchar_t CLabelPage::Description[] =
    L"带上标和下标的文字，用于单位和符号：{U 开始上标，{B 开始下标，} 结束。";

BEGIN_MESSAGE_MAP(CLabelPage, CGalleryPage)
    ON_EN_CHANGE(IDC_LABEL_TEXT, &CLabelPage::OnTextChange)
END_MESSAGE_MAP()

CLabelPage::CLabelPage() : CGalleryPage(IDD_LABEL_PAGE) {}

void CLabelPage::DoDataExchange(CDataExchange* exchange)
{
    CGalleryPage::DoDataExchange(exchange);
    // [show]
    // 模板中的静态文字，例如 "截面积 A{B1} = 12.5 cm{U2}"
    DDX_Control(exchange, IDC_LABEL_AREA, m_area);
    DDX_Control(exchange, IDC_LABEL_WATER, m_water);
    DDX_Control(exchange, IDC_LABEL_FLOW, m_flow);
    DDX_Control(exchange, IDC_LABEL_OWN, m_own);
    // [end]
}

void CLabelPage::OnTextChange()
{
    CString text;
    GetDlgItemText(IDC_LABEL_TEXT, text);
    // [show]
    m_own.SetWindowText(text); // {U 上标，{B 下标，} 结束
    m_own.Invalidate();        // 改变文字之后
    // [end]
}
