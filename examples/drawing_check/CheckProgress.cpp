#include "CheckProgress.h"

namespace drawing_check
{

CheckProgress::CheckProgress(const wchar_t* title) : CMsgCallbackImp(CMsgCallbackManager::GetInstance())
{
    CString line;
    line.Format(L"检查图形 %s", title);
    CreateWaitDlg(true);
    WaitDlgPushMsg(line);
    WaitDlgPushMsg(L"读取对象");
}

bool CheckProgress::OnRead(std::size_t read, std::size_t all)
{
    // Often enough for the eye, and seldom enough to cost nothing.
    const std::size_t step = 500;
    if (read % step == 0)
    {
        CString line;
        line.Format(L"读取对象 %d/%d", static_cast<int>(read), static_cast<int>(all));
        WaitDlgModiLastMsg(line);
    }
    return IsCanceled();
}

} // namespace drawing_check
