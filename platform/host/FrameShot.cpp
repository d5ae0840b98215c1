#include "host/FrameShot.h"

#include "afx/gdi/ScreenDC.h"
#include "arx/ed/FileTrouble.h"
#include "arx/ui/GdiGuards.h"
#include "host/DialogSearch.h"

#include <algorithm>
#include <objidl.h>
#include <vector>

// The header was written for the macros min and max.
namespace Gdiplus
{
using std::max;
using std::min;
} // namespace Gdiplus
#include <gdiplus.h>

namespace arxhost
{
namespace
{

class GdiPlusGuard
{
public:
    GdiPlusGuard() : m_started(Gdiplus::GdiplusStartup(&m_token, &m_input, nullptr) == Gdiplus::Ok) {}
    ~GdiPlusGuard()
    {
        if (m_started)
            Gdiplus::GdiplusShutdown(m_token);
    }
    GdiPlusGuard(const GdiPlusGuard&) = delete;
    GdiPlusGuard& operator=(const GdiPlusGuard&) = delete;

    bool IsStarted() const { return m_started; }

private:
    Gdiplus::GdiplusStartupInput m_input;
    ULONG_PTR m_token = 0;
    bool m_started;
};

bool FindPngEncoder(CLSID& encoder)
{
    UINT count = 0;
    UINT size = 0;
    Gdiplus::GetImageEncodersSize(&count, &size);
    std::vector<BYTE> buffer(size);
    Gdiplus::ImageCodecInfo* codecs = reinterpret_cast<Gdiplus::ImageCodecInfo*>(buffer.data());
    if (size == 0 || Gdiplus::GetImageEncoders(count, size, codecs) != Gdiplus::Ok)
        return false;
    for (UINT i = 0; i < count; ++i)
    {
        if (std::wstring(codecs[i].MimeType) == L"image/png")
        {
            encoder = codecs[i].Clsid;
            return true;
        }
    }
    return false;
}

struct PopupSearch
{
    HWND owner;
    CRect area;
};

BOOL CALLBACK AddPopup(HWND window, LPARAM search)
{
    PopupSearch& found = *reinterpret_cast<PopupSearch*>(search);
    CRect rect;
    if (IsPopupOf(window, found.owner) && IsWindowVisible(window) && GetWindowRect(window, &rect))
        found.area.UnionRect(&found.area, &rect);
    return TRUE;
}

BOOL CALLBACK PaintPopup(HWND window, LPARAM owner)
{
    const HWND frame = reinterpret_cast<HWND>(owner);
    const UINT everything = RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN | RDW_FRAME;
    if ((window == frame || IsPopupOf(window, frame)) && IsWindowVisible(window))
        RedrawWindow(window, nullptr, nullptr, everything);
    return TRUE;
}

// Wine keeps what was painted in memory and hands it to the display when the thread begins to wait for messages, not
// when the batch of drawing calls is flushed: without a wait the picture lacks the last windows painted.
void LetPaintingReachScreen()
{
    const DWORD shortestWait = 1;
    MsgWaitForMultipleObjects(0, nullptr, FALSE, shortestWait, 0);
}

HBITMAP CopyScreen(const CRect& area)
{
    const CScreenDC screen;
    CDC memory;
    memory.Attach(CreateCompatibleDC(screen.Get()));
    const HBITMAP bitmap = CreateCompatibleBitmap(screen.Get(), area.Width(), area.Height());
    const arxui::SelectGuard selected(memory, bitmap);
    BitBlt(memory, 0, 0, area.Width(), area.Height(), screen.Get(), area.left, area.top, SRCCOPY);
    return bitmap;
}

std::wstring SaveArea(CWnd& frame, const CRect& area, const std::wstring& path)
{
    EnumWindows(&PaintPopup, reinterpret_cast<LPARAM>(frame.m_hWnd));
    GdiFlush();
    LetPaintingReachScreen();
    return SaveScreenShot(area, path);
}

} // namespace

std::wstring SaveScreenShot(const CRect& area, const std::wstring& path)
{
    const GdiPlusGuard gdiPlus;
    CLSID encoder{};
    if (!gdiPlus.IsStarted() || !FindPngEncoder(encoder))
        return L"系统不能生成 PNG 图片。";
    const arxui::GdiObject<HBITMAP> shot(CopyScreen(area));
    Gdiplus::Bitmap picture(shot.Get(), nullptr);
    if (picture.Save(path.c_str(), &encoder, nullptr) != Gdiplus::Ok)
        return L"无法写入图片“" + path + L"”：" + WriteTrouble(path) + L"。";
    return std::wstring();
}

CRect AreaWithPopups(HWND window)
{
    PopupSearch search{window, CRect()};
    GetWindowRect(window, &search.area);
    EnumWindows(&AddPopup, reinterpret_cast<LPARAM>(&search));
    const CRect screen(0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN));
    CRect visible;
    visible.IntersectRect(&search.area, &screen);
    return visible;
}

std::wstring SaveFrameShot(CWnd& frame, const std::wstring& path)
{
    return SaveArea(frame, AreaWithPopups(frame.m_hWnd), path);
}

std::wstring SaveDialogShot(CWnd& frame, const std::wstring& title, const std::wstring& path)
{
    CRect area;
    if (!GetWindowRect(FindDialog(frame.m_hWnd, title), &area))
        return L"没有打开标题为“" + title + L"”的对话框。";
    return SaveArea(frame, area, path);
}

} // namespace arxhost
