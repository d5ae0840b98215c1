// The callback of a long operation: what progress lines and the question for Cancel cost the thread that works, while
// the wait dialog's thread paints and while it stands still.
#include "Bench.h"

#include <MsgCallbackImp.h>

#include <stdexcept>
#include <string>

namespace bench
{

namespace
{

constexpr int kRuns = 5;
constexpr int kChanges = 2000;
constexpr int kQuestions = 1000000;
constexpr int kDeep = 10000;
constexpr DWORD kPatience = 60000; // milliseconds
constexpr double kMicroseconds = 1e6;
constexpr double kNanoseconds = 1e9;
constexpr double kMostMicrosecondsOfAChange = 20;
constexpr double kMostNanosecondsOfAQuestion = 1000;

class Progress : public CMsgCallbackImp
{
public:
    Progress() : CMsgCallbackImp(CMsgCallbackManager::GetInstance())
    {
        CreateWaitDlg(true);
        WaitDlgPushMsg(L"检查图形 bracket.dxf");
        WaitDlgPushMsg(L"图层 3/12");
    }
};

BOOL CALLBACK TakeDialog(HWND window, LPARAM found)
{
    wchar_t name[16] = L"";
    ::GetClassNameW(window, name, 16);
    if (std::wstring(name) == L"ZNWaitDlg" && ::IsWindowVisible(window))
        *reinterpret_cast<HWND*>(found) = window;
    return TRUE;
}

HWND ShownDialog()
{
    HWND found = NULL;
    const DWORD start = ::GetTickCount();
    while (found == NULL)
    {
        if (::GetTickCount() - start > kPatience)
            throw std::runtime_error("the wait dialog did not come up");
        ::EnumWindows(&TakeDialog, reinterpret_cast<LPARAM>(&found));
    }
    return found;
}

// Holds the dialog's thread still while it lives.
class Standstill
{
public:
    Standstill() : m_thread(::OpenThread(THREAD_SUSPEND_RESUME, FALSE, ::GetWindowThreadProcessId(ShownDialog(), NULL)))
    {
        ::SuspendThread(m_thread);
    }
    ~Standstill()
    {
        ::ResumeThread(m_thread);
        ::CloseHandle(m_thread);
    }
    Standstill(const Standstill&) = delete;
    Standstill& operator=(const Standstill&) = delete;

private:
    HANDLE m_thread;
};

// Seconds of one of the three changes: pushed, changed, popped.
double SecondsOfAChange(Progress& progress)
{
    const auto changes = [&progress] {
        for (int i = 0; i < kChanges; ++i)
        {
            progress.WaitDlgPushMsg(L"检查 2/7：重复对象");
            progress.WaitDlgModiLastMsg(L"检查 3/7：端点未相接");
            progress.WaitDlgPopMsg();
        }
    };
    return MedianSeconds(kRuns, nullptr, changes, nullptr) / (3 * kChanges);
}

// The same change done the plain way: a text of a window of another thread is set.
double SecondsOfASentText()
{
    const HWND label = ::GetDlgItem(ShownDialog(), 101);
    constexpr int sent = 200;
    const auto send = [label] {
        for (int i = 0; i < sent; ++i)
            ::SetWindowTextW(label, i % 2 == 0 ? L"检查 2/7：重复对象" : L"检查 3/7：端点未相接");
    };
    return MedianSeconds(kRuns, nullptr, send, nullptr) / sent;
}

double SecondsOfAQuestion(const Progress& progress)
{
    const auto ask = [&progress] {
        for (int i = 0; i < kQuestions; ++i)
        {
            if (progress.IsCanceled())
                return;
        }
    };
    return MedianSeconds(kRuns, nullptr, ask, nullptr) / kQuestions;
}

void AddChange(Report& report, const std::string& name, double seconds)
{
    report.Add({name, "us", seconds * kMicroseconds, 0, kMostMicrosecondsOfAChange, ""});
}

double SecondsOfADeepPush(Progress& progress)
{
    const auto push = [&progress] {
        for (int i = 0; i < kDeep; ++i)
            progress.WaitDlgPushMsg(L"图层 3/12");
    };
    const auto clear = [&progress] {
        for (int i = 0; i < kDeep; ++i)
            progress.WaitDlgPopMsg();
    };
    return MedianSeconds(1, nullptr, push, clear) / kDeep;
}

} // namespace

void MeasureCallback(Report& report)
{
    Progress progress;
    ShownDialog();
    AddChange(report, "a progress line pushed, changed or popped", SecondsOfAChange(progress));
    {
        const Standstill standstill;
        AddChange(report, "the same while the dialog's thread stands still", SecondsOfAChange(progress));
    }
    AddChange(report, "a push, over 10,000 lines kept", SecondsOfADeepPush(progress));
    const double change = SecondsOfAChange(progress);
    report.Add({"a progress line, beside a text that is sent", "us", change * kMicroseconds,
                SecondsOfASentText() * kMicroseconds, 1, "SetWindowText to the dialog's thread"});
    report.Add({"IsCanceled", "ns", SecondsOfAQuestion(progress) * kNanoseconds, 0, kMostNanosecondsOfAQuestion, ""});
}

} // namespace bench
