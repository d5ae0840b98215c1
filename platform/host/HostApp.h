// The program: starts the frame with what the arguments name, and runs scripts while the message queue is empty.
#pragma once

#include <afxwin.h>

#include "host/CommandLine.h"

#include <functional>

namespace arxhost
{

class MainFrame;

class HostApp : public CWinApp
{
public:
    HostApp();

    BOOL InitInstance() override;
    BOOL OnIdle(LONG count) override;
    int ExitInstance() override;

private:
    // Tells the user why the program ends before it began; answers what InitInstance has to.
    BOOL EndWith(const std::wstring& message, int code);
    bool Start(const HostArguments& arguments);
    void Attempt(const std::function<void()>& step);
    void RunScripts();
    // Runs the next line, or waits for the dialog that it names.
    void StepScript();
    static void CALLBACK StepInModalLoop(HWND window, UINT message, UINT_PTR timer, DWORD time);

    MainFrame* m_frame = nullptr; // deletes itself with its window
    int m_exitCode = 0;
    unsigned long long m_patienceEnds = 0; // GetTickCount64; 0: nothing is waited for
    bool m_closing = false;
    int m_ticksWithoutIdle = 0;
};

} // namespace arxhost
