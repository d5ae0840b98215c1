// The host's main frame for a test: a real, visible MDI frame that palettes dock in.
#pragma once

#include <afxwin.h>
#include <afxext.h>

#include "base/ModuleInstance.h"
#include "arx/ed/HostServices.h"

class HostFrame
{
public:
    HostFrame() : m_frame(new CMDIFrameWnd)
    {
        const CRect rect(20, 20, 1020, 720);
        m_frame->Create(NULL, L"test host", WS_OVERLAPPEDWINDOW, rect);
        m_frame->ShowWindow(SW_SHOWNOACTIVATE);
        arxhost::SetMainFrame(m_frame);
        _hdllInstance = ::GetModuleHandleW(NULL);
    }

    ~HostFrame()
    {
        arxhost::SetMainFrame(NULL);
        // A frame deletes itself with its window.
        m_frame->DestroyWindow();
    }

    HostFrame(const HostFrame&) = delete;
    HostFrame& operator=(const HostFrame&) = delete;

    CMDIFrameWnd& Wnd() { return *m_frame; }

private:
    CMDIFrameWnd* m_frame;
};
