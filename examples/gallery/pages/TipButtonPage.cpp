#include "TipButtonPage.h"

#include "../GalleryIds.h"

const wchar_t CTipButtonPage::Description[] =
    L"鼠标停在按钮上时，在指定的一侧显示多行提示；该侧屏幕空间不够时改到另一"
    L"侧。单击或按键后提示隐藏。";

namespace
{

const CSize kTipSize(150, 48); // pixels

// [show]
void SetUp(CToolTipXTButton& button, const wchar_t* tip,
           CToolTipXTButton::ESide side)
{
    button.SetToolTip(tip);
    button.SetToolTipWndSide(side);
    button.SetToolTipWndSize(kTipSize);
}
// [end]

} // namespace

CTipButtonPage::CTipButtonPage() : CGalleryPage(IDD_TIP_BUTTON_PAGE) {}

void CTipButtonPage::DoDataExchange(CDataExchange* exchange)
{
    CGalleryPage::DoDataExchange(exchange);
    // [show]
    DDX_Control(exchange, IDC_TIP_BUTTON_LEFT, m_left); // 模板中的普通按钮
    DDX_Control(exchange, IDC_TIP_BUTTON_RIGHT, m_right);
    DDX_Control(exchange, IDC_TIP_BUTTON_ABOVE, m_above);
    DDX_Control(exchange, IDC_TIP_BUTTON_BELOW, m_below);
    // [end]
}

BOOL CTipButtonPage::OnInitDialog()
{
    CGalleryPage::OnInitDialog();
    // [show]
    SetUp(m_left, L"提示显示在按钮的左侧", CToolTipXTButton::SIDE_LEFT);
    SetUp(m_right, L"提示显示在按钮的右侧", CToolTipXTButton::SIDE_RIGHT);
    SetUp(m_above, L"提示显示在按钮的上方，较长的文字自动换行",
          CToolTipXTButton::SIDE_ABOVE);
    SetUp(m_below, L"检查当前图形，并在消息面板中列出发现的所有问题",
          CToolTipXTButton::SIDE_BELOW);
    // [end]
    return TRUE;
}
