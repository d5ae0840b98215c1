#include "MessageObjectPage.h"

#include "../GalleryIds.h"

// [show]
#include <ZNMsgObject.h>
// [end]

#include <acutads.h>

const wchar_t CMessageObjectPage::Description[] =
    L"命令所调用的代码只管报告，不必知道消息显示在哪里；消息对象收集它们，最"
    L"后由命令决定怎样显示。";

namespace
{

const wchar_t kGroup[] = L"图纸检查";

// [show]
void CheckSheets() // 被调用的代码：只管报告
{
    ZNKTPub::ReportMsg(CMsgCallback::eInfo, kGroup, L"共有 3 张图纸");
    ZNKTPub::ReportMsg(CMsgCallback::eError, kGroup, L"图纸 2 没有标题栏");
    ZNKTPub::ReportMsg(CMsgCallback::eWarning, kGroup,
                       L"检查完成，有 1 处错误");
}
// [end]

} // namespace

BEGIN_MESSAGE_MAP(CMessageObjectPage, CGalleryPage)
    ON_BN_CLICKED(IDC_MESSAGE_OBJECT_BOX, &CMessageObjectPage::OnBox)
    ON_BN_CLICKED(IDC_MESSAGE_OBJECT_LINE, &CMessageObjectPage::OnLine)
    ON_BN_CLICKED(IDC_MESSAGE_OBJECT_PANEL, &CMessageObjectPage::OnPanel)
END_MESSAGE_MAP()

CMessageObjectPage::CMessageObjectPage()
    : CGalleryPage(IDD_MESSAGE_OBJECT_PAGE)
{
}

BOOL CMessageObjectPage::OnInitDialog()
{
    CGalleryPage::OnInitDialog();
    ShowCount(0);
    return TRUE;
}

// [show]
void CMessageObjectPage::OnBox()
{
    ZNKTPub::CZNMsgObject messages; // 从现在起收集
    CheckSheets();
    ShowCount(messages.Messages()->size());
    messages.ShowMessageBox(m_hWnd);
}

void CMessageObjectPage::OnLine()
{
    ZNKTPub::CZNMsgObject messages;
    CheckSheets();
    ShowCount(messages.Messages()->size());
    acutPrintf(L"\n");
    messages.ShowCommandLine();
}

void CMessageObjectPage::OnPanel()
{
    ZNKTPub::CZNMsgObject messages;
    CheckSheets();
    ShowCount(messages.Messages()->size());
    messages.ShowMsgPanel();
}
// [end]

void CMessageObjectPage::ShowCount(size_t count)
{
    CString text;
    text.Format(L"收集了 %d 条消息。", static_cast<int>(count));
    SetDlgItemText(IDC_MESSAGE_OBJECT_RESULT, text);
}
