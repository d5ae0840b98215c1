#include "host/HostApp.h"

#include "host/DialogSearch.h"
#include "host/HostCommands.h"
#include "host/MainFrame.h"
#include "host/StandardOutput.h"

#include <acui.h>

#include <algorithm>
#include <shellapi.h>

namespace arxhost
{
namespace
{

const wchar_t programName[] = L"图形主机";
const wchar_t registryKey[] = L"ArxHost";
const int failureCode = 1;
// A pausing script looks at its clock this often, milliseconds.
const unsigned scriptPause = 20;
// A modal dialog has a message loop of its own, without this program's idle time: after so many ticks, in milliseconds,
// without any, a script goes on inside of it.
const UINT modalTick = 50;
const int ticksOfModalLoop = 3;
// A dialog that a line opens comes up in its own time: the next line that names one waits this long, milliseconds.
const unsigned dialogPatience = 5000;

bool NamesMissingDialog(const MainFrame& frame, const std::wstring& line)
{
    Words words;
    return SplitWords(line, words) && words.size() > 2 && HasName(L"SHOT,画面,PRESS,按下", words[0]) &&
           FindDialog(frame.m_hWnd, words[2]) == nullptr;
}

// Nobody is there to end a modal dialog that the script left open.
void CancelModalDialog(const MainFrame& frame)
{
    const HWND dialog = FindModalDialog(frame.m_hWnd);
    if (dialog != nullptr)
        PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
}

std::vector<std::wstring> ProgramArguments()
{
    int count = 0;
    wchar_t** words = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::wstring> arguments(words + std::min(count, 1), words + count);
    LocalFree(words);
    return arguments;
}

} // namespace

HostApp::HostApp() : CWinApp(programName) {}

BOOL HostApp::InitInstance()
{
    SetRegistryKey(registryKey);
    InitAcUiDLL();
    const HostArguments arguments = ReadArguments(ProgramArguments());
    if (arguments.help)
        return EndWith(ArgumentHelp(), 0);
    if (!arguments.error.empty())
        return EndWith(L"错误：" + arguments.error + L"。\n" + ArgumentHelp(), failureCode);
    if (!Start(arguments))
        return EndWith(L"错误：无法创建主窗口。请检查是否有可用的显示器。\n", failureCode);
    return TRUE;
}

BOOL HostApp::OnIdle(LONG count)
{
    const BOOL more = CWinApp::OnIdle(count);
    m_ticksWithoutIdle = 0;
    if (m_frame == nullptr || m_closing || !(m_frame->IsUnattended() || !m_frame->Scripts().IsEmpty()))
        return more;
    RunScripts();
    return TRUE;
}

int HostApp::ExitInstance()
{
    CWinApp::ExitInstance();
    return m_exitCode;
}

BOOL HostApp::EndWith(const std::wstring& message, int code)
{
    m_exitCode = code;
    // Whoever double-clicks has no output to read.
    if (!WriteStandardOutput(message))
        MessageBoxW(nullptr, message.c_str(), programName, code == 0 ? MB_ICONINFORMATION : MB_ICONWARNING);
    return FALSE;
}

bool HostApp::Start(const HostArguments& arguments)
{
    m_frame = new MainFrame;
    m_pMainWnd = m_frame;
    if (!m_frame->Create())
        return false;
    if (!arguments.script.empty())
        m_frame->SetUnattended();
    m_frame->ShowWindow(m_nCmdShow);
    m_frame->UpdateWindow();
    for (const std::wstring& drawing : arguments.drawings)
        Attempt([&] { m_frame->OpenDrawing(drawing); });
    if (Documents().empty() && arguments.drawings.empty())
        NewDocument();
    for (const std::wstring& module : arguments.modules)
        Attempt([&] { m_frame->LoadModule(module); });
    if (!arguments.script.empty() && !m_frame->HasFailed())
        Attempt([&] { m_frame->StartScript(arguments.script); });
    m_frame->Scripts().Add(L"/c", arguments.command);
    SetTimer(nullptr, 0, modalTick, &StepInModalLoop);
    return true;
}

void HostApp::Attempt(const std::function<void()>& step)
{
    try
    {
        step();
    }
    catch (const CommandFailure& failure)
    {
        m_frame->Fail(failure.message);
    }
}

void HostApp::RunScripts()
{
    ScriptRunner& scripts = m_frame->Scripts();
    if (const unsigned waiting = scripts.Waiting())
        MsgWaitForMultipleObjects(0, nullptr, FALSE, std::min(waiting, scriptPause), QS_ALLINPUT);
    else if (!scripts.IsEmpty())
        StepScript();
    else
    {
        m_closing = true;
        m_exitCode = m_frame->HasFailed() ? failureCode : 0;
        m_frame->PostMessage(WM_CLOSE);
    }
}

void CALLBACK HostApp::StepInModalLoop(HWND /*window*/, UINT /*message*/, UINT_PTR /*timer*/, DWORD /*time*/)
{
    HostApp& app = *static_cast<HostApp*>(AfxGetApp());
    if (app.m_closing || ++app.m_ticksWithoutIdle < ticksOfModalLoop)
        return;
    const ScriptRunner& scripts = app.m_frame->Scripts();
    if (!scripts.IsEmpty() && scripts.Waiting() == 0)
        app.StepScript();
    else if (scripts.IsEmpty() && app.m_frame->IsUnattended())
        CancelModalDialog(*app.m_frame);
}

void HostApp::StepScript()
{
    ScriptRunner& scripts = m_frame->Scripts();
    if (NamesMissingDialog(*m_frame, scripts.Next()))
    {
        const ULONGLONG now = GetTickCount64();
        m_patienceEnds = m_patienceEnds == 0 ? now + dialogPatience : m_patienceEnds;
        if (now < m_patienceEnds)
        {
            scripts.Delay(scriptPause);
            return;
        }
    }
    m_patienceEnds = 0;
    m_frame->StepScript();
}

} // namespace arxhost
