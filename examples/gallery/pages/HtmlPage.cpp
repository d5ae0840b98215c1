#include "HtmlPage.h"

#include "../GalleryIds.h"

#include <AcExtensionModule.h>

#include <shlwapi.h>

const wchar_t CHtmlPage::Description[] =
    L"对话框中的浏览器。以 “app:” "
    L"开头的链接不打开网页，而是交给程序的命令；其他地址照常打开。"
    L"网页由系统的浏览器显示：在 Wine "
    L"下没有显示引擎，左侧为空白，命令照常工作，请用右侧的按钮。";

namespace
{

// By button.
const wchar_t* const kAddresses[] = {L"app:open?id=3", L"APP:zoom?layer=0",
                                     L"application.html"};

} // namespace

BEGIN_MESSAGE_MAP(CHtmlPage, CGalleryPage)
    ON_CONTROL_RANGE(BN_CLICKED, IDC_HTML_OPEN, IDC_HTML_PAGE,
                     &CHtmlPage::OnLink)
END_MESSAGE_MAP()

CHtmlPage::CHtmlPage() : CGalleryPage(IDD_HTML_PAGE) {}

BOOL CHtmlPage::OnInitDialog()
{
    CGalleryPage::OnInitDialog();
    const CAcModuleResourceOverride resources;
    // [show]
    if (m_html.CreateFromStatic(IDC_HTML_PLACE, this)) // 取代模板中的静态控件
        m_html.LoadFromResource(L"help.html");
    else
        SetDlgItemText(IDC_HTML_STATE, L"系统中没有可用的浏览器控件。");
    // [end]
    m_resize.AddCtrl(IDC_HTML_LOG, 0, 0, 1, 1);
    return TRUE;
}

void CHtmlPage::OnLink(UINT id)
{
    m_html.Navigate2(kAddresses[id - IDC_HTML_OPEN]);
}

// [show]
void CHtmlPage::CLinks::OnBeforeNavigate2(LPCTSTR url, DWORD flags,
                                          LPCTSTR target, CByteArray& data,
                                          LPCTSTR headers, BOOL* cancel)
{
    CHtmlCtrl::OnBeforeNavigate2(url, flags, target, data, headers, cancel);
    if (!*cancel)
        Log(L"打开网页: ", ::PathFindFileName(url));
}

void CHtmlPage::CLinks::OnAppCmd(const wchar_t* command)
{
    Log(L"执行命令: ", command);
}
// [end]

void CHtmlPage::CLinks::Log(const wchar_t* what, const wchar_t* text)
{
    CListBox& log =
        *static_cast<CListBox*>(GetParent()->GetDlgItem(IDC_HTML_LOG));
    log.SetCurSel(log.AddString(CString(what) + text));
}
