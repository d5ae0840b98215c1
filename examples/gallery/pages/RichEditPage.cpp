#include "RichEditPage.h"

#include "../GalleryIds.h"

const wchar_t CRichEditPage::Description[] =
    L"带格式的文本：选中文字后单击按钮即可设置格式，部分带有的格式会扩展到整"
    L"个选区。右键单击打开编辑菜单。";

namespace
{

// [show]
typedef void (CAutoRichEditCtrl::*Format)();

// 选区的格式，按钮的顺序；SetColor 请用户选择颜色
const Format kFormats[] = {
    &CAutoRichEditCtrl::ToggleBold,      &CAutoRichEditCtrl::ToggleItalic,
    &CAutoRichEditCtrl::ToggleUnderline, &CAutoRichEditCtrl::SetColor,
    &CAutoRichEditCtrl::AlignLeft,       &CAutoRichEditCtrl::AlignCenter,
    &CAutoRichEditCtrl::AlignRight,      &CAutoRichEditCtrl::ToggleBullet,
};
// [end]

const int kLargePoints = 16;
const int kNormalPoints = 11;

const wchar_t kText[] =
    L"{\\rtf1\\ansi{\\fonttbl{\\f0\\fnil\\fcharset134 SimSun;}}"
    L"{\\colortbl;\\red192\\green0\\blue0;\\red0\\green96\\blue160;}\\f0"
    L"\\qc\\fs32\\b 技术要求\\b0\\par\\ql\\fs22 "
    L"未注圆角 {\\b R2}，未注倒角 {\\b C1}。\\par "
    L"热处理后硬度 {\\cf1 HRC 45\\u8211?50}，表面{\\ul 不得有裂纹}。\\par "
    L"装配前清除{\\i 毛刺}和{\\i 铁屑}，配合面涂{\\cf2 防锈油}。\\par}";

} // namespace

BEGIN_MESSAGE_MAP(CRichEditPage, CGalleryPage)
    ON_COMMAND_RANGE(IDC_RICH_EDIT_BOLD, IDC_RICH_EDIT_SIZE,
                     &CRichEditPage::OnFormat)
END_MESSAGE_MAP()

// [show]
// 右键菜单在构造时给出
CRichEditPage::CRichEditPage()
    : CGalleryPage(IDD_RICH_EDIT_PAGE), m_text(ZNKT_EDIT_MENU)
{
}
// [end]

void CRichEditPage::DoDataExchange(CDataExchange* exchange)
{
    CGalleryPage::DoDataExchange(exchange);
    // [show]
    DDX_Control(exchange, IDC_RICH_EDIT_TEXT, m_text); // 模板中的 RichEdit20W
    // [end]
}

BOOL CRichEditPage::OnInitDialog()
{
    CGalleryPage::OnInitDialog();
    m_resize.AddCtrl(IDC_RICH_EDIT_TEXT, 0, 0, 1, 1);
    // [show]
    m_text.SetRTF(kText); // L"{\\rtf1 一般，{\\b 粗体}}"：汉字可以直接书写
    // [end]
    return TRUE;
}

void CRichEditPage::OnFormat(UINT id)
{
    if (id == IDC_RICH_EDIT_SIZE)
        m_text.SetFontSize(m_text.GetFontSize() == kLargePoints
                               ? kNormalPoints
                               : kLargePoints);
    else
        (m_text.*kFormats[id - IDC_RICH_EDIT_BOLD])();
    m_text.SetFocus(); // the selection is seen while the text has the focus
}
