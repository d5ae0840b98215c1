// Posting texts to the check window's thread beside posting an equal block of memory to a bare thread, while the
// receiver works its messages off and while it is blocked.
#include <afxwin.h>

#include "Bench.h"

#include <CheckSpecMsgThread.h>

#include <algorithm>
#include <memory>
#include <stdexcept>

namespace bench
{

namespace
{

constexpr int kRuns = 9;
constexpr int kPosts = 500; // a run; all runs together stay below what a queue takes
constexpr double kMicroseconds = 1e6;
constexpr double kLimitMicroseconds = 10;
constexpr double kLimitRatio = 1.5;
constexpr UINT kHold = WM_APP;
constexpr UINT kBlock = WM_APP + 1; // wParam: a block, which becomes the receiver's
constexpr DWORD kPatience = 60000;
constexpr size_t kBlockLength = 48; // characters, as the texts below have
const wchar_t* const kLines[] = {L"layer: axes", L"colour: red", L"line: centre", L"radius: 25"};

// Lets the program's windows answer the threads beside it.
template<class CONDITION>
void DispatchUntil(CONDITION condition, const char* complaint)
{
    const DWORD start = ::GetTickCount();
    while (!condition())
    {
        if (::GetTickCount() - start > kPatience)
            throw std::runtime_error(complaint);
        MSG message;
        while (::PeekMessage(&message, NULL, 0, 0, PM_REMOVE))
            ::DispatchMessage(&message);
        ::MsgWaitForMultipleObjects(0, NULL, FALSE, 1, QS_ALLINPUT);
    }
}

// A thread that the measurement may block.
template<class BASE>
class Held : public BASE
{
public:
    Held()
    {
        this->m_bAutoDelete = FALSE;
        if (!this->CreateThread())
            throw std::runtime_error("a thread could not be started");
    }
    ~Held() override { ::CloseHandle(m_go); }

    BOOL PreTranslateMessage(MSG* message) override
    {
        if (message->hwnd == NULL && message->message == kHold)
        {
            m_held = 1;
            ::WaitForSingleObject(m_go, INFINITE);
            m_held = 0;
        }
        return BASE::PreTranslateMessage(message);
    }

    // Once all that was posted before is worked off.
    void Hold()
    {
        DispatchUntil([this] { return this->PostThreadMessage(kHold, 0, 0) != FALSE; }, "a thread takes no messages");
        DispatchUntil([this] { return m_held != 0; }, "a thread does not work its messages off");
    }

    void LetGo() { ::SetEvent(m_go); }

    void Finish()
    {
        this->PostThreadMessage(WM_QUIT, 0, 0);
        DispatchUntil([this] { return ::WaitForSingleObject(this->m_hThread, 0) == WAIT_OBJECT_0; },
                      "a thread does not end");
    }

private:
    const HANDLE m_go = ::CreateEventW(NULL, FALSE, FALSE, NULL);
    volatile LONG m_held = 0;
};

// Takes blocks and frees them.
class BareThread : public CWinThread
{
public:
    BOOL InitInstance() override { return TRUE; }
    BOOL PreTranslateMessage(MSG* message) override
    {
        if (message->hwnd == NULL && message->message == kBlock)
            delete[] reinterpret_cast<wchar_t*>(message->wParam);
        return CWinThread::PreTranslateMessage(message);
    }
};

class CheckThread : public CCheckSpecMsgThread
{
};

void PostTexts(CCheckSpecMsgThread& thread, const CStringArray& texts)
{
    for (int i = 0; i < kPosts; ++i)
        thread.ShowMsg(texts);
}

void PostBlocks(CWinThread& thread)
{
    for (int i = 0; i < kPosts; ++i)
    {
        std::unique_ptr<wchar_t[]> block(new wchar_t[kBlockLength]);
        std::fill_n(block.get(), kBlockLength, L'x');
        if (!thread.PostThreadMessage(kBlock, reinterpret_cast<WPARAM>(block.get()), 0))
            throw std::runtime_error("a block could not be posted");
        block.release();
    }
}

void Add(Report& report, const char* name, const Pair& pair)
{
    report.Add({std::string("check window: a post while its thread ") + name, "us", pair.ours * kMicroseconds / kPosts,
                pair.bare * kMicroseconds / kPosts, kLimitRatio, "an equal block posted to a bare thread"});
}

// Without the system's call: to a thread that was never started.
void AddOwnShare(Report& report, const CStringArray& texts)
{
    CheckThread none;
    const double seconds = MedianSeconds(
        kRuns, nullptr, [&] { PostTexts(none, texts); }, nullptr);
    report.Add({"check window: a post but for the system's part", "us", seconds * kMicroseconds / kPosts, 0,
                kLimitMicroseconds, ""});
}

} // namespace

void MeasureCheckWindow(Report& report)
{
    Held<CheckThread> ours;
    Held<BareThread> bare;
    CStringArray texts;
    for (const wchar_t* line : kLines)
        texts.Add(line);
    const Work postTexts = {nullptr, [&] { PostTexts(ours, texts); }, nullptr};
    const Work postBlocks = {nullptr, [&] { PostBlocks(bare); }, nullptr};
    ours.Hold();
    bare.Hold();
    Add(report, "is blocked", MedianSeconds(kRuns, postTexts, postBlocks));
    ours.LetGo();
    bare.LetGo();
    ours.Hold(); // until all is worked off
    ours.LetGo();
    Add(report, "works", MedianSeconds(kRuns, postTexts, postBlocks));
    ours.Finish();
    bare.Finish();
    AddOwnShare(report, texts);
}

} // namespace bench
