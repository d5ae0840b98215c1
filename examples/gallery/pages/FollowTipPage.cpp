#include "FollowTipPage.h"

#include "../GalleryIds.h"

// [show]
#include <FollowMouseTipWnd.h>
// [end]

const wchar_t CFollowTipPage::Description[] =
    L"随鼠标移动的提示。鼠标离开所监视的窗口时提示隐藏，返回时再次显示；到时"
    L"间后自行消失。";

namespace
{

const wchar_t kMessage[] = L"指定下一点\n或 [放弃(U)]:";
const unsigned long kMessageSeconds = 5;

} // namespace

BEGIN_MESSAGE_MAP(CWatchedArea, CStatic)
    ON_WM_MOUSEMOVE()
END_MESSAGE_MAP()

// [show]
void CWatchedArea::OnMouseMove(UINT flags, CPoint point)
{
    CString text;
    text.Format(L"X: %d\nY: %d", static_cast<int>(point.x),
                static_cast<int>(point.y));
    CFollowMouseTipWnd::ShowMsg(text, 0, NULL); // 0：20 秒
    CStatic::OnMouseMove(flags, point);
}
// [end]

BEGIN_MESSAGE_MAP(CFollowTipPage, CGalleryPage)
    ON_WM_DESTROY()
    ON_BN_CLICKED(IDC_FOLLOW_TIP_SHOW, &CFollowTipPage::OnShowMessage)
END_MESSAGE_MAP()

CFollowTipPage::CFollowTipPage() : CGalleryPage(IDD_FOLLOW_TIP_PAGE) {}

void CFollowTipPage::DoDataExchange(CDataExchange* exchange)
{
    CGalleryPage::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_FOLLOW_TIP_AREA, m_area);
}

BOOL CFollowTipPage::OnInitDialog()
{
    CGalleryPage::OnInitDialog();
    m_resize.AddCtrl(IDC_FOLLOW_TIP_AREA, 0, 0, 1, 1);
    // [show]
    CFollowMouseTipWnd::SetWatchWnd(&m_area); // 只在此窗口上显示
    // [end]
    return TRUE;
}

void CFollowTipPage::OnDestroy()
{
    // [show]
    CFollowMouseTipWnd::Destroy(); // 对话框关闭时
    // [end]
    CGalleryPage::OnDestroy();
}

void CFollowTipPage::OnShowMessage()
{
    // [show]
    CFollowMouseTipWnd::ShowMsg(kMessage, kMessageSeconds, NULL);
    // [end]
}
