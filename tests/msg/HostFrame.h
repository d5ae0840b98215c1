// The host's main frame for a test: a real, visible MDI frame that palettes dock in, with a profile of its own, so that
// layouts and settings of one test never meet another.
#pragma once

#include <afxwin.h>
#include <afxext.h>

#include "HostFixture.h"
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
    TemporaryProfile m_profile;
    CMDIFrameWnd* m_frame;
};
