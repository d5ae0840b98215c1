#include "ResizerPage.h"

#include "../GalleryIds.h"

// [show]
#include <CtrlResize.h>
// [end]

const wchar_t CResizerPage::Description[] =
    L"对话框改变大小时，每个控件按比例移动和伸展；窗口的位置和大小按名称保存"
    L"，下次打开时恢复。";

namespace
{

const wchar_t kSection[] = L"GalleryResizer";

class CResizableDlg : public CDialog
{
public:
    explicit CResizableDlg(CWnd* parent) : CDialog(IDD_RESIZER_DIALOG, parent)
    {
    }

protected:
    BOOL OnInitDialog() override;
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* info);
    afx_msg void OnDestroy();

    DECLARE_MESSAGE_MAP()

private:
    // [show]
    CCtrlResize m_resize; // 对话框成员
    // [end]
    CSize m_smallest{0, 0};
};

BEGIN_MESSAGE_MAP(CResizableDlg, CDialog)
    ON_WM_SIZE()
    ON_WM_GETMINMAXINFO()
    ON_WM_DESTROY()
END_MESSAGE_MAP()

BOOL CResizableDlg::OnInitDialog()
{
    CDialog::OnInitDialog();
    CRect window;
    GetWindowRect(&window);
    m_smallest = window.Size();
    // [show]
    // 左、上、宽、高各随增量的几分之几
    m_resize.InitDlg(this);
    m_resize.AddCtrl(IDC_RESIZER_LEFT, 0, 0, 0.5, 1);
    m_resize.AddCtrl(IDC_RESIZER_RIGHT, 0.5, 0, 0.5, 1);
    m_resize.AddCtrl(IDC_RESIZER_NOTE, 0, 1, 1, 0);
    m_resize.AddCtrl(IDOK, 1, 1, 0, 0); // 跟随右下角
    // [end]
    SetDlgItemText(IDC_RESIZER_LEFT, L"左边的一半\r\n\r\n宽度增量的一半归左边"
                                     L"，一半归右边；高度增量两边都有。");
    SetDlgItemText(IDC_RESIZER_RIGHT,
                   L"右边的一半\r\n\r\n向右移动半个增量，并伸展半个增量。");
    // [show]
    CCtrlResize::RestoreWinPos(kSection, m_hWnd, TRUE); // OnInitDialog 的最后
    // [end]
    return TRUE;
}

// [show]
void CResizableDlg::OnSize(UINT type, int cx, int cy)
{
    CDialog::OnSize(type, cx, cy);
    m_resize.ResizeAllCtrl(cx, cy);
}
// [end]

void CResizableDlg::OnGetMinMaxInfo(MINMAXINFO* info)
{
    info->ptMinTrackSize = CPoint(m_smallest.cx, m_smallest.cy);
}

// [show]
void CResizableDlg::OnDestroy()
{
    CCtrlResize::SaveWinPos(kSection, m_hWnd, TRUE);
    CDialog::OnDestroy();
}
// [end]

} // namespace

BEGIN_MESSAGE_MAP(CResizerPage, CGalleryPage)
    ON_BN_CLICKED(IDC_RESIZER_OPEN, &CResizerPage::OnOpen)
END_MESSAGE_MAP()

CResizerPage::CResizerPage() : CGalleryPage(IDD_RESIZER_PAGE) {}

void CResizerPage::OnOpen()
{
    CResizableDlg(this).DoModal();
}
