#include "arx/ui/DockPreview.h"

#include "arx/ui/Colours.h"
#include "arx/ui/GdiGuards.h"

namespace arxui
{
namespace
{

const int outlineWidth = 4;

LRESULT CALLBACK PreviewProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_ERASEBKGND)
    {
        RECT client;
        GetClientRect(window, &client);
        FillColour(reinterpret_cast<HDC>(wParam), client, colours::captionActive);
        return TRUE;
    }
    // The mouse belongs to the window that drags.
    return message == WM_NCHITTEST ? HTTRANSPARENT : DefWindowProcW(window, message, wParam, lParam);
}

const wchar_t* PreviewClass()
{
    static const wchar_t name[] = L"ArxDockPreview";
    static const ATOM registered = [] {
        WNDCLASSW windowClass{};
        windowClass.lpfnWndProc = PreviewProc;
        windowClass.hInstance = GetModuleHandleW(nullptr);
        windowClass.lpszClassName = name;
        return RegisterClassW(&windowClass);
    }();
    return registered != 0 ? name : nullptr;
}

// The region belongs to the window once it is set.
HRGN HollowRegion(int width, int height)
{
    const HRGN outer = CreateRectRgn(0, 0, width, height);
    const GdiObject<HRGN> inner(CreateRectRgn(outlineWidth, outlineWidth, width - outlineWidth, height - outlineWidth));
    CombineRgn(outer, outer, inner.Get(), RGN_DIFF);
    return outer;
}

} // namespace

DockPreview::~DockPreview()
{
    Hide();
}

void DockPreview::Show(HWND owner, const CRect& rect)
{
    if (m_window == nullptr)
    {
        m_window = CreateWindowExW(WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE | WS_EX_TRANSPARENT, PreviewClass(), L"",
                                   WS_POPUP, rect.left, rect.top, rect.Width(), rect.Height(), owner, nullptr,
                                   GetModuleHandleW(nullptr), nullptr);
    }
    SetWindowRgn(m_window, HollowRegion(rect.Width(), rect.Height()), TRUE);
    SetWindowPos(m_window, HWND_TOP, rect.left, rect.top, rect.Width(), rect.Height(), SWP_NOACTIVATE | SWP_SHOWWINDOW);
}

void DockPreview::Hide()
{
    if (m_window != nullptr)
        DestroyWindow(m_window);
    m_window = nullptr;
}

} // namespace arxui
