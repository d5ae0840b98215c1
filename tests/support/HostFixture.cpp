#include "HostFixture.h"

#include "Wait.h"

#include <afxext.h>

#include "arx/ed/HostServices.h"

namespace
{

const CRect frameRect(20, 20, 1020, 720);
// SendInput measures the screen in 65536ths.
const int absoluteRange = 65536;

// An ini file holds any character only when it begins with the mark of UTF-16; without it, the characters of one code
// page.
void MakeUnicodeFile(const wchar_t* path)
{
    CFile file(path, CFile::modeCreate | CFile::modeWrite);
    const wchar_t mark = 0xFEFF;
    file.Write(&mark, sizeof(mark));
}

std::wstring NewProfilePath()
{
    wchar_t folder[MAX_PATH];
    wchar_t path[MAX_PATH];
    ::GetTempPathW(MAX_PATH, folder);
    ::GetTempFileNameW(folder, L"prf", 0, path);
    MakeUnicodeFile(path);
    return path;
}

void SendMouse(DWORD flags, LONG x, LONG y)
{
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    input.mi.dx = x;
    input.mi.dy = y;
    ::SendInput(1, &input, sizeof(input));
}

LONG Absolute(int pixel, int extent)
{
    return (pixel * absoluteRange + absoluteRange / 2) / extent;
}

} // namespace

TemporaryProfile::TemporaryProfile()
    : m_path(NewProfilePath()), m_formerProfile(AfxGetApp()->m_pszProfileName),
      m_formerKey(AfxGetApp()->m_pszRegistryKey)
{
    AfxGetApp()->m_pszRegistryKey = NULL;
    AfxGetApp()->m_pszProfileName = m_path.c_str();
}

TemporaryProfile::~TemporaryProfile()
{
    AfxGetApp()->m_pszProfileName = m_formerProfile;
    AfxGetApp()->m_pszRegistryKey = m_formerKey;
    ::DeleteFileW(m_path.c_str());
}

HostFixture::HostFixture() : m_frame(new CMDIFrameWnd), m_formerMainWindow(AfxGetApp()->m_pMainWnd)
{
    m_frame->Create(NULL, L"test host", WS_OVERLAPPEDWINDOW, frameRect);
    m_frame->EnableDocking(CBRS_ALIGN_ANY);
    m_frame->ShowWindow(SW_SHOW);
    arxhost::SetMainFrame(m_frame);
    Pump();
}

HostFixture::~HostFixture()
{
    DestroyFrame();
    AfxGetApp()->m_pMainWnd = m_formerMainWindow;
    arxhost::Reset();
}

void HostFixture::DestroyFrame()
{
    if (m_frame == NULL)
        return;
    arxhost::SetMainFrame(NULL);
    CMDIFrameWnd* const frame = m_frame;
    m_frame = NULL;
    frame->DestroyWindow();
}

CRect HostFixture::ClientOnScreen() const
{
    CRect client;
    m_frame->GetClientRect(&client);
    m_frame->ClientToScreen(&client);
    return client;
}

bool HostFixture::BringToFront()
{
    m_frame->SetForegroundWindow();
    return WaitFor([this] { return ::GetForegroundWindow() == m_frame->m_hWnd; });
}

void HostFixture::MoveMouse(CPoint point)
{
    const LONG x = Absolute(point.x, ::GetSystemMetrics(SM_CXSCREEN));
    const LONG y = Absolute(point.y, ::GetSystemMetrics(SM_CYSCREEN));
    SendMouse(MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE, x, y);
    Pump();
}

void HostFixture::MouseButton(bool down)
{
    SendMouse(down ? MOUSEEVENTF_LEFTDOWN : MOUSEEVENTF_LEFTUP, 0, 0);
    Pump();
}

void HostFixture::Pump()
{
    MSG message;
    while (::PeekMessageW(&message, NULL, 0, 0, PM_REMOVE))
    {
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    }
}

CRect ScreenRectOf(const CWnd& window)
{
    CRect rect;
    window.GetWindowRect(&rect);
    return rect;
}
