#include "tip/FollowMouseTipWnd.h"

#include <ZnQFCBaseU.h>

#include "tip/FollowTipRules.h"
#include "tip/TipWindow.h"

namespace
{

const wchar_t kWindowClass[] = L"ZNKTFollowMouseTipWnd";
const UINT kWindowId = 10001;
const CRect kFirstPlace(0, 0, 100, 20);
const UINT_PTR kTimer = 1;
const UINT kTimerPeriod = 1000; // milliseconds
const int kFirstLineHeight = 10;
const int kFontHeight = 12;
const COLORREF kBackground = RGB(255, 255, 175);

// Handles have 32 significant bits in programs of 64 bits too.
unsigned int Number(HWND window)
{
    return static_cast<unsigned int>(reinterpret_cast<UINT_PTR>(window));
}

} // namespace

// The mouse hook of the thread, and the tip that it tells.
struct FollowTipHook
{
    CFollowMouseTipWnd* instance;
    HHOOK handle;

    static LRESULT CALLBACK Proc(int code, WPARAM message, LPARAM event)
    {
        // The tip may end meanwhile and take the record with it.
        const HHOOK hook = s_record == NULL ? NULL : s_record->handle;
        if (code >= 0 && s_record != NULL && (message == WM_MOUSEMOVE || message == WM_NCMOUSEMOVE))
        {
            const MOUSEHOOKSTRUCT& mouse = *reinterpret_cast<const MOUSEHOOKSTRUCT*>(event);
            s_record->instance->OnMouseMove(mouse.hwnd, mouse.pt);
        }
        return ::CallNextHookEx(hook, code, message, event);
    }

    static FollowTipHook* Install(CFollowMouseTipWnd* tip)
    {
        if (s_record == NULL)
        {
            s_record = new FollowTipHook;
            s_record->handle = ::SetWindowsHookEx(WH_MOUSE, &FollowTipHook::Proc, NULL, ::GetCurrentThreadId());
        }
        s_record->instance = tip;
        return s_record;
    }

    static void Remove(FollowTipHook* hook)
    {
        if (hook == NULL)
            return;
        ::UnhookWindowsHookEx(hook->handle);
        s_record = NULL;
        delete hook;
    }

    static FollowTipHook* s_record;
};

FollowTipHook* FollowTipHook::s_record = NULL;

CFollowMouseTipWnd* CFollowMouseTipWnd::s_instance = NULL;
HWND CFollowMouseTipWnd::s_watch = NULL;

IMPLEMENT_DYNAMIC(CFollowMouseTipWnd, CWnd)

BEGIN_MESSAGE_MAP(CFollowMouseTipWnd, CWnd)
    ON_WM_CREATE()
    ON_WM_PAINT()
    ON_WM_TIMER()
END_MESSAGE_MAP()

void CFollowMouseTipWnd::ShowMsg(const wchar_t* text, unsigned long seconds, CWnd* parent)
{
    if (parent->GetSafeHwnd() == NULL)
        parent = NULL;
    if (s_instance == NULL && !Open(new CFollowMouseTipWnd(text, TipSeconds(seconds)), parent))
        return;
    s_instance->m_debug = IsDebugTip(text);
    if (parent != NULL)
        s_instance->MoveInto(*parent);
    s_instance->m_hideMode = false;
    s_instance->SetMsg(text, TipSeconds(seconds));
}

void CFollowMouseTipWnd::Hide()
{
    if (s_instance == NULL)
        return;
    s_instance->m_hideMode = true;
    s_instance->Conceal();
}

void CFollowMouseTipWnd::Destroy()
{
    if (s_instance != NULL)
        s_instance->DestroyWindow();
    s_watch = NULL;
}

void CFollowMouseTipWnd::SetWatchWnd(CWnd* watch)
{
    s_watch = watch->GetSafeHwnd();
}

CFollowMouseTipWnd::CFollowMouseTipWnd(const wchar_t* text, unsigned long seconds)
    : m_debug(IsDebugTip(text)), m_text(text), m_duration(TipDuration(seconds)), m_shownAt(::GetTickCount()),
      m_lineHeight(kFirstLineHeight), m_hideMode(false), m_hook(NULL)
{
    if (s_watch != NULL && !::IsWindow(s_watch))
        s_watch = NULL;
    CreateTipFont(m_font, kFontHeight);
}

CFollowMouseTipWnd::~CFollowMouseTipWnd()
{
    FollowTipHook::Remove(m_hook);
}

bool CFollowMouseTipWnd::Open(CFollowMouseTipWnd* tip, CWnd* parent)
{
    s_instance = tip;
    try
    {
        return tip->Create(kFirstPlace, parent, kWindowId) != FALSE;
    }
    catch (CException*)
    {
        // No window came into being that could have taken the object with it.
        s_instance = NULL;
        delete tip;
        throw;
    }
}

BOOL CFollowMouseTipWnd::Create(const RECT& rect, CWnd* parent, UINT)
{
    RegisterTipClass(kWindowClass, CS_SAVEBITS, reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1));
    // Windows takes the identifier of a popup for a menu, and refuses it.
    return CreateEx(WS_EX_TOOLWINDOW, kWindowClass, NULL, WS_POPUP, rect.left, rect.top, rect.right - rect.left,
                    rect.bottom - rect.top, parent->GetSafeHwnd(), NULL);
}

CSize CFollowMouseTipWnd::CalWndSize()
{
    CClientDC dc(this);
    CFont* const before = dc.SelectObject(&m_font);
    CTipMeasure measure;
    CTipLines lines(m_text);
    for (TipLine line; lines.Next(line);)
    {
        CRect rect(0, 0, 0, 0);
        dc.DrawText(line.text, line.length, &rect, DT_CALCRECT | DT_SINGLELINE);
        measure.Add(rect.Size());
    }
    dc.SelectObject(before);
    m_lineHeight = measure.LineHeight();
    return measure.Size();
}

void CFollowMouseTipWnd::SetMsg(const wchar_t* text, unsigned long seconds)
{
    m_shownAt = TickCount();
    m_text = text;
    m_duration = TipDuration(seconds);

    const CSize size = CalWndSize();
    CRect current;
    GetWindowRect(&current);
    const bool visible = IsWindowVisible() != FALSE;
    if (KeepsTipSize(current.Size(), size))
    {
        if (!visible)
            SetWindowPos(&wndTop, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_SHOWWINDOW);
        if (m_debug)
            Tevrin::Trace(visible ? L"Window is Visible" : L"SWP_SHOWWINDOW");
    }
    else
    {
        const UINT show = visible ? SWP_NOZORDER : SWP_SHOWWINDOW;
        SetWindowPos(&wndTop, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOACTIVATE | show);
        if (m_debug)
            Tevrin::Trace(visible ? L"Window is Visible: %d,%d" : L"SWP_SHOWWINDOW: %d,%d", size.cx, size.cy);
    }
    Repaint();
}

void CFollowMouseTipWnd::OnMouseMove(HWND under)
{
    CPoint pointer;
    if (::GetCursorPos(&pointer))
        OnMouseMove(under, pointer);
}

void CFollowMouseTipWnd::OnMouseMove(HWND under, CPoint pointer)
{
    const bool visible = IsWindowVisible() != FALSE;
    if (s_watch != NULL && under != s_watch)
    {
        if (visible)
        {
            Conceal();
            TraceOutside(under);
        }
        return;
    }
    if (m_hideMode)
    {
        if (m_debug)
            Tevrin::Trace(L"In hide mode");
        return;
    }
    CRect tip;
    GetWindowRect(&tip);
    const CPoint place = TipPlace(pointer, tip.Height());
    PlaceAt(place, visible ? 0 : SWP_SHOWWINDOW);
    if (m_debug)
        Tevrin::Trace(L"update wnd pos: %d,%d", place.x, place.y);
}

DWORD CFollowMouseTipWnd::TickCount() const
{
    return ::GetTickCount();
}

void CFollowMouseTipWnd::PostNcDestroy()
{
    if (s_instance == this)
        s_instance = NULL;
    delete this;
}

int CFollowMouseTipWnd::OnCreate(LPCREATESTRUCT create)
{
    if (CWnd::OnCreate(create) == -1)
        return -1;
    SetTimer(kTimer, kTimerPeriod, NULL);
    m_hook = FollowTipHook::Install(this);
    OnMouseMove(s_watch);
    return 0;
}

void CFollowMouseTipWnd::OnPaint()
{
    CPaintDC dc(this);
    CRect client;
    GetClientRect(&client);
    dc.FillSolidRect(&client, kBackground);
    CFont* const before = dc.SelectObject(&m_font);
    CTipLines lines(m_text);
    CRect rect(0, 0, 0, 0);
    int index = 0;
    // What lies below the window is not seen, however long the text is.
    for (TipLine line; rect.top < client.bottom && lines.Next(line); ++index)
    {
        rect = TipLineRect(index, m_lineHeight, client.right);
        dc.DrawText(line.text, line.length, &rect, DT_SINGLELINE | DT_VCENTER);
    }
    dc.SelectObject(before);
}

void CFollowMouseTipWnd::OnTimer(UINT_PTR id)
{
    if (id != kTimer || !IsTipOver(TickCount(), m_shownAt, m_duration))
    {
        CWnd::OnTimer(id);
        return;
    }
    KillTimer(kTimer);
    if (m_debug)
        Tevrin::Trace(L"OnTimer Destroy");
    Destroy();
}

// A window keeps its coordinates when its parent changes, so that it would jump by the place of the new parent.
void CFollowMouseTipWnd::MoveInto(CWnd& parent)
{
    if (::GetAncestor(m_hWnd, GA_PARENT) == parent.m_hWnd)
        return;
    CRect place;
    GetWindowRect(&place);
    SetParent(&parent);
    PlaceAt(place.TopLeft(), 0);
}

// Inside a parent, its client area is what coordinates are relative to.
void CFollowMouseTipWnd::PlaceAt(CPoint screen, UINT flags)
{
    const HWND parent = ::GetAncestor(m_hWnd, GA_PARENT);
    if (parent != NULL && parent != ::GetDesktopWindow())
        ::ScreenToClient(parent, &screen);
    SetWindowPos(NULL, screen.x, screen.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | flags);
}

void CFollowMouseTipWnd::Conceal()
{
    if (IsWindowVisible())
        SetWindowPos(NULL, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_HIDEWINDOW);
}

// At once, because the caller may be busy for longer than the tip stays.
void CFollowMouseTipWnd::Repaint()
{
    Invalidate(FALSE);
    UpdateWindow();
}

void CFollowMouseTipWnd::TraceOutside(HWND under) const
{
    if (!m_debug)
        return;
    CString text;
    if (under != NULL)
        CWnd::FromHandle(under)->GetWindowText(text);
    Tevrin::Trace(L"Out of watch window %x(cur in wnd %x,%s)", Number(s_watch), Number(under), text.GetString());
}
