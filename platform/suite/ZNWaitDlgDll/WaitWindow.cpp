#include "afx/gdi/ScreenDC.h"

#include "suite/ZNWaitDlgDll/WaitWindow.h"

#include <algorithm>
#include <wchar.h>
#include <windowsx.h>

#include "suite/ZNWaitDlgDll/QuietButton.h"
#include "suite/ZNWaitDlgDll/WaitPlace.h"

namespace
{
const wchar_t kClass[] = L"ZNWaitDlg";
const wchar_t kTitle[] = L"请稍候";
const wchar_t kHeading[] = L"正在处理，请稍候";
const wchar_t kCancelingHeading[] = L"正在取消，请稍候";
const wchar_t kCancel[] = L"取消";
const wchar_t kFace[] = L"微软雅黑";

const int kFontPoints = 9;
const int kHeadingPoints = 11;
const int kPointsPerInch = 72;
const int kLineSpacing = 5; // pixels at 96 DPI between two lines
const int kStripHeight = 4; // pixels at 96 DPI
const UINT kBeat = 40;      // milliseconds
const unsigned kBeatsPerPlacing = 5;
const UINT_PTR kBeatTimer = 1;

int ScreenDpi()
{
    const CScreenDC screen;
    return GetDeviceCaps(screen.Get(), LOGPIXELSY);
}

HFONT MakeFont(int points, LONG weight)
{
    LOGFONTW font = {};
    font.lfHeight = -MulDiv(points, ScreenDpi(), kPointsPerInch);
    font.lfWeight = weight;
    font.lfCharSet = DEFAULT_CHARSET;
    font.lfQuality = CLEARTYPE_QUALITY;
    wcsncpy(font.lfFaceName, kFace, LF_FACESIZE - 1);
    return CreateFontIndirectW(&font);
}

// The DLL that this code is in: the window's class belongs to it.
HINSTANCE OwnInstance()
{
    HMODULE module = nullptr;
    const DWORD flags = GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
    GetModuleHandleExW(flags, kClass, &module);
    return module;
}

// The class stays registered until the DLL goes; whoever comes second finds it there.
void RegisterWindowClass(WNDPROC procedure)
{
    WNDCLASSEXW windowClass = {};
    windowClass.cbSize = sizeof(windowClass);
    windowClass.style = CS_DROPSHADOW;
    windowClass.lpfnWndProc = procedure;
    windowClass.hInstance = OwnInstance();
    windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    windowClass.lpszClassName = kClass;
    RegisterClassExW(&windowClass);
}

void MoveTo(HWND control, const RECT& rect)
{
    SetWindowPos(control, nullptr, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

bool IsMouseDown()
{
    return (GetAsyncKeyState(GetSystemMetrics(SM_SWAPBUTTON) != 0 ? VK_RBUTTON : VK_LBUTTON) & 0x8000) != 0;
}
} // namespace

WaitWindow::WaitWindow(wait::State& state, ULONGLONG start)
    : m_state(state), m_start(start), m_font(MakeFont(kFontPoints, FW_NORMAL)),
      m_headingFont(MakeFont(kHeadingPoints, FW_BOLD))
{
    m_metrics.dpi = ScreenDpi();
    m_metrics.headingHeight = HeightOf(m_headingFont.Get());
    m_metrics.lineHeight = HeightOf(m_font.Get()) + wait::Scaled(kLineSpacing, m_metrics.dpi);
}

WaitWindow::~WaitWindow()
{
    if (m_window != nullptr)
        DestroyWindow(m_window);
}

bool WaitWindow::Create()
{
    RegisterWindowClass(&Procedure);
    // No owner: an owner of another thread would make the two threads share their input, and with it the busy
    // thread's silence.
    const DWORD extended = WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE;
    m_window = CreateWindowExW(extended, kClass, kTitle, WS_POPUP | WS_BORDER | WS_CLIPCHILDREN, 0, 0, 0, 0, nullptr,
                               nullptr, OwnInstance(), this);
    if (m_window == nullptr)
        return false;
    MakeControls();
    MakeRoom(1);
    OnBeat();
    ShowWindow(m_window, SW_SHOWNOACTIVATE);
    UpdateWindow(m_window);
    return SetTimer(m_window, kBeatTimer, kBeat, nullptr) != 0;
}

LRESULT CALLBACK WaitWindow::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_NCCREATE)
    {
        WaitWindow* const created =
            static_cast<WaitWindow*>(reinterpret_cast<const CREATESTRUCTW*>(lParam)->lpCreateParams);
        created->m_window = window;
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(created));
    }
    WaitWindow* const self = reinterpret_cast<WaitWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    return self == nullptr ? DefWindowProcW(window, message, wParam, lParam) : self->OnMessage(message, wParam, lParam);
}

LRESULT WaitWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message)
    {
    case WM_TIMER:
        OnBeat();
        return 0;
    case WM_COMMAND:
        if (LOWORD(wParam) == CancelId)
            OnCancel();
        return 0;
    case WM_CLOSE:
        OnCancel();
        return 0;
    case WM_MOUSEACTIVATE:
        return MA_NOACTIVATE;
    case WM_LBUTTONDOWN:
        BeginDrag({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
        return 0;
    case WM_MOUSEMOVE:
        Drag();
        return 0;
    case WM_LBUTTONUP:
        ReleaseCapture();
        return 0;
    case WM_ERASEBKGND:
        PaintBackground(reinterpret_cast<HDC>(wParam));
        return 1;
    case WM_CTLCOLORSTATIC:
        SetBkMode(reinterpret_cast<HDC>(wParam), TRANSPARENT);
        return reinterpret_cast<LRESULT>(
            GetSysColorBrush(reinterpret_cast<HWND>(lParam) == Control(ElapsedId) ? COLOR_BTNFACE : COLOR_WINDOW));
    case WM_DRAWITEM:
        Draw(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
        return TRUE;
    case WM_NCDESTROY:
        SetWindowLongPtrW(m_window, GWLP_USERDATA, 0);
        m_window = nullptr;
        return 0;
    default:
        return DefWindowProcW(m_window, message, wParam, lParam);
    }
}

void WaitWindow::MakeControls()
{
    MakeControl(L"STATIC", kHeading, SS_LEFT | SS_NOPREFIX | WS_VISIBLE, HeadingId, m_headingFont.Get());
    MakeControl(L"STATIC", L"", SS_OWNERDRAW | WS_VISIBLE, LinesId, m_font.Get());
    MakeControl(L"STATIC", L"", SS_OWNERDRAW | WS_VISIBLE, BarId, m_font.Get());
    MakeControl(L"STATIC", L"", SS_LEFT | SS_NOPREFIX | WS_VISIBLE, ElapsedId, m_font.Get());
    wait::MakeQuiet(MakeControl(L"BUTTON", kCancel, BS_PUSHBUTTON, CancelId, m_font.Get()));
}

HWND WaitWindow::MakeControl(const wchar_t* className, const wchar_t* text, DWORD style, int id, HFONT font)
{
    const HMENU menu = reinterpret_cast<HMENU>(static_cast<INT_PTR>(id));
    const HWND control = CreateWindowExW(WS_EX_NOPARENTNOTIFY, className, text, WS_CHILD | style, 0, 0, 0, 0, m_window,
                                         menu, OwnInstance(), nullptr);
    SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    return control;
}

int WaitWindow::HeightOf(HFONT font) const
{
    const CScreenDC screen;
    const arxui::SelectGuard selected(screen.Get(), font);
    TEXTMETRICW metric = {};
    GetTextMetricsW(screen.Get(), &metric);
    return metric.tmHeight;
}

void WaitWindow::OnBeat()
{
    FollowMouse();
    TakeText();
    ShowTime();
    ShowCancel();
    if (m_beats++ % kBeatsPerPlacing == 0)
        Place();
    InvalidateRect(Control(BarId), nullptr, FALSE);
}

void WaitWindow::TakeText()
{
    const std::unique_ptr<std::wstring> newest = m_state.text.Take();
    if (!newest || *newest == m_text)
        return;
    m_text.swap(*newest);
    MakeRoom(wait::CountLines(m_text));
    SetWindowTextW(Control(LinesId), m_text.c_str());
    InvalidateRect(Control(LinesId), nullptr, FALSE);
}

void WaitWindow::ShowTime()
{
    const std::wstring elapsed = wait::ElapsedText(GetTickCount64() - m_start);
    if (elapsed == m_elapsed)
        return;
    m_elapsed = elapsed;
    SetWindowTextW(Control(ElapsedId), m_elapsed.c_str());
}

void WaitWindow::ShowCancel()
{
    const HWND button = Control(CancelId);
    const bool enabled = m_state.cancelEnabled;
    if (enabled != ((GetWindowLongPtrW(button, GWL_STYLE) & WS_VISIBLE) != 0))
        ShowWindow(button, enabled ? SW_SHOWNA : SW_HIDE);
}

void WaitWindow::MakeRoom(int lineCount)
{
    if (lineCount <= m_room)
        return;
    m_room = lineCount;
    m_layout = wait::LayOut(m_metrics, m_room);
    RECT window = {0, 0, m_layout.size.cx, m_layout.size.cy};
    AdjustWindowRectEx(&window, static_cast<DWORD>(GetWindowLongPtrW(m_window, GWL_STYLE)), FALSE,
                       static_cast<DWORD>(GetWindowLongPtrW(m_window, GWL_EXSTYLE)));
    SetWindowPos(m_window, nullptr, 0, 0, window.right - window.left, window.bottom - window.top,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    MoveTo(Control(HeadingId), m_layout.heading);
    MoveTo(Control(LinesId), m_layout.lines);
    MoveTo(Control(BarId), m_layout.bar);
    MoveTo(Control(ElapsedId), m_layout.elapsed);
    MoveTo(Control(CancelId), m_layout.cancel);
    InvalidateRect(m_window, nullptr, TRUE);
    Place();
}

void WaitWindow::Place()
{
    const HWND watched = m_state.watched;
    wait::RaiseOver(m_window, watched);
    if (m_moved)
        return;
    RECT now = {};
    GetWindowRect(m_window, &now);
    const RECT over = wait::RectToCover(watched);
    const SIZE size = {now.right - now.left, now.bottom - now.top};
    const POINT place = wait::CentredOver(over, size, wait::WorkAreaOf(over));
    if (place.x != now.left || place.y != now.top)
        SetWindowPos(m_window, nullptr, place.x, place.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

// The system's own dragging by a caption would activate the window.
void WaitWindow::BeginDrag(POINT grip)
{
    m_grip = grip;
    SetCapture(m_window);
}

// A thread in the background is not told of every move, nor always of the release.
void WaitWindow::FollowMouse()
{
    const HWND holder = GetCapture();
    if (holder != nullptr && !IsMouseDown())
        ReleaseCapture();
    else if (holder == m_window)
        Drag();
}

void WaitWindow::Drag()
{
    if (GetCapture() != m_window)
        return;
    POINT cursor = {};
    GetCursorPos(&cursor);
    ScreenToClient(m_window, &cursor);
    if (cursor.x == m_grip.x && cursor.y == m_grip.y)
        return;
    RECT now = {};
    GetWindowRect(m_window, &now);
    m_moved = true;
    SetWindowPos(m_window, nullptr, now.left + cursor.x - m_grip.x, now.top + cursor.y - m_grip.y, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void WaitWindow::OnCancel()
{
    if (!m_state.cancelEnabled || m_state.canceled.exchange(true))
        return;
    EnableWindow(Control(CancelId), FALSE);
    SetWindowTextW(Control(HeadingId), kCancelingHeading);
}

void WaitWindow::PaintBackground(HDC dc) const
{
    RECT client = {};
    GetClientRect(m_window, &client);
    RECT strip = client;
    strip.bottom = wait::Scaled(kStripHeight, m_metrics.dpi);
    arxui::FillColour(dc, client, GetSysColor(COLOR_WINDOW));
    arxui::FillColour(dc, strip, GetSysColor(COLOR_HIGHLIGHT));
    arxui::FillColour(dc, m_layout.footer, GetSysColor(COLOR_BTNFACE));
}

void WaitWindow::Draw(const DRAWITEMSTRUCT& item) const
{
    const RECT area = {0, 0, item.rcItem.right - item.rcItem.left, item.rcItem.bottom - item.rcItem.top};
    const arxui::BackBuffer buffer(item.hDC, area.right, area.bottom);
    if (item.CtlID == BarId)
        DrawBar(buffer.Get(), area);
    else
        DrawLines(buffer.Get(), area);
    buffer.Show();
}

void WaitWindow::DrawLines(HDC dc, const RECT& area) const
{
    arxui::FillColour(dc, area, GetSysColor(COLOR_WINDOW));
    const arxui::SelectGuard selected(dc, m_font.Get());
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, GetSysColor(COLOR_WINDOWTEXT));
    RECT row = area;
    for (size_t start = 0; start < m_text.size();)
    {
        const size_t end = std::min(m_text.find(L'\n', start), m_text.size());
        row.bottom = row.top + m_metrics.lineHeight;
        DrawTextW(dc, m_text.c_str() + start, static_cast<int>(end - start), &row,
                  DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_EXPANDTABS | DT_END_ELLIPSIS);
        row.top = row.bottom;
        start = end + 1;
    }
}

void WaitWindow::DrawBar(HDC dc, const RECT& area) const
{
    arxui::FillColour(dc, area, GetSysColor(COLOR_BTNFACE));
    const wait::Span span = wait::MovingPart(area.right, GetTickCount64() - m_start);
    const RECT part = {span.left, area.top, span.right, area.bottom};
    arxui::FillColour(dc, part, GetSysColor(COLOR_HIGHLIGHT));
}
