#include "WaitDialogPage.h"

#include "../GalleryIds.h"

// [show]
#include <MsgCallbackImp.h>
// [end]

const wchar_t CWaitDialogPage::Description[] =
    L"长时间的操作通过回调显示进度，并询问用户是否取消。等待对话框在自己的线"
    L"程中运行，操作再忙也能响应。";

namespace
{

// Long enough for the dialog to be read and cancelled.
const int kSteps = 100;
const int kNumbersPerStep = 100000;

bool IsPrime(int number)
{
    for (int divisor = 2; divisor <= number / divisor; ++divisor)
    {
        if (number % divisor == 0)
            return false;
    }
    return number >= 2;
}

// Of the numbers that belong to a step.
int CountPrimes(int step)
{
    int primes = 0;
    const int first = step * kNumbersPerStep;
    for (int number = first; number < first + kNumbersPerStep; ++number)
        primes += IsPrime(number);
    return primes;
}

// [show]
class CProgress : public CMsgCallbackImp
{
public:
    CProgress() : CMsgCallbackImp(CMsgCallbackManager::GetInstance()) {}
};
// [end]

} // namespace

BEGIN_MESSAGE_MAP(CWaitDialogPage, CGalleryPage)
    ON_BN_CLICKED(IDC_WAIT_DIALOG_START, &CWaitDialogPage::OnStart)
END_MESSAGE_MAP()

CWaitDialogPage::CWaitDialogPage() : CGalleryPage(IDD_WAIT_DIALOG_PAGE) {}

BOOL CWaitDialogPage::OnInitDialog()
{
    CGalleryPage::OnInitDialog();
    CheckDlgButton(IDC_WAIT_DIALOG_CANCEL, BST_CHECKED);
    return TRUE;
}

void CWaitDialogPage::OnStart()
{
    const bool mayCancel =
        IsDlgButtonChecked(IDC_WAIT_DIALOG_CANCEL) == BST_CHECKED;
    int primes = 0;
    int step = 0;
    // [show]
    CProgress progress; // 在命令的栈上；结束时恢复先前的回调
    progress.CreateWaitDlg(mayCancel);
    progress.WaitDlgPushMsg(L"统计素数");
    progress.WaitDlgPushMsg(L"");
    for (; step < kSteps && !progress.IsCanceled(); ++step)
    {
        CString line;
        line.Format(L"第 %d 步，共 %d 步", step + 1, kSteps);
        progress.WaitDlgModiLastMsg(line);
        primes += CountPrimes(step); // 真正的工作
    }
    progress.CloseWaitDlg();
    // [end]
    ShowResult(step, primes);
}

void CWaitDialogPage::ShowResult(int steps, int primes)
{
    CString text;
    text.Format(steps < kSteps ? L"已取消：%d 以内有 %d 个素数。"
                               : L"已完成：%d 以内有 %d 个素数。",
                steps * kNumbersPerStep, primes);
    SetDlgItemText(IDC_WAIT_DIALOG_RESULT, text);
}
