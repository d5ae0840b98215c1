#include <afxwin.h>

#include "afx/core/ThreadLocal.h"
#include "afx/wnd/WndMap.h"

IMPLEMENT_DYNCREATE(CWnd, CCmdTarget)

const CWnd CWnd::wndTop(HWND_TOP);
const CWnd CWnd::wndBottom(HWND_BOTTOM);
const CWnd CWnd::wndTopMost(HWND_TOPMOST);
const CWnd CWnd::wndNoTopMost(HWND_NOTOPMOST);

namespace
{
CWnd* MakeTemporary(HWND window)
{
    return new CWnd(window);
}

void SetHandle(CWnd* object, HWND window)
{
    object->m_hWnd = window;
}

bool IsPlace(const CWnd* object)
{
    return object == &CWnd::wndTop || object == &CWnd::wndBottom || object == &CWnd::wndTopMost ||
           object == &CWnd::wndNoTopMost;
}
} // namespace

CHandleMap<CWnd, HWND>& AfxWndMap()
{
    static CPerThread<CHandleMap<CWnd, HWND>> maps;
    return maps.Get([] { return new CHandleMap<CWnd, HWND>(&MakeTemporary, &SetHandle); });
}

CWnd::CWnd() {}

CWnd::CWnd(HWND window) : m_hWnd(window) {}

// The virtual functions of the derived class are gone by now: a class with an OnDestroy must be destroyed before.
CWnd::~CWnd()
{
    if (m_hWnd != nullptr && !IsPlace(this))
    {
        TRACE(L"a window object ends before its window; the window is destroyed\n");
        DestroyWindow();
    }
}

HWND CWnd::GetSafeHwnd() const
{
    return this == nullptr ? nullptr : m_hWnd;
}

CWnd* PASCAL CWnd::FromHandle(HWND window)
{
    return AfxWndMap().FromHandle(window);
}

CWnd* PASCAL CWnd::FromHandlePermanent(HWND window)
{
    return AfxWndMap().LookupPermanent(window);
}

void PASCAL CWnd::DeleteTempMap()
{
    AfxWndMap().DeleteTemp();
}

BOOL CWnd::Attach(HWND window)
{
    ASSERT(m_hWnd == nullptr);
    ASSERT(FromHandlePermanent(window) == nullptr);
    if (window == nullptr)
        return FALSE;
    m_hWnd = window;
    AfxWndMap().SetPermanent(window, this);
    return TRUE;
}

HWND CWnd::Detach()
{
    const HWND window = m_hWnd;
    if (window != nullptr)
    {
        if (FromHandlePermanent(window) == this)
            AfxWndMap().RemoveHandle(window);
        m_hWnd = nullptr;
    }
    return window;
}

BOOL CWnd::Create(LPCTSTR className, LPCTSTR windowName, DWORD style, const RECT& rect, CWnd* parent, UINT id,
                  CCreateContext* context)
{
    ASSERT(parent != nullptr && (style & WS_POPUP) == 0);
    return CreateEx(0, className, windowName, style | WS_CHILD, rect.left, rect.top, rect.right - rect.left,
                    rect.bottom - rect.top, parent->GetSafeHwnd(), reinterpret_cast<HMENU>(UINT_PTR(id)), context);
}

BOOL CWnd::CreateEx(DWORD exStyle, LPCTSTR className, LPCTSTR windowName, DWORD style, const RECT& rect, CWnd* parent,
                    UINT id, LPVOID param)
{
    return CreateEx(exStyle, className, windowName, style, rect.left, rect.top, rect.right - rect.left,
                    rect.bottom - rect.top, parent->GetSafeHwnd(), reinterpret_cast<HMENU>(UINT_PTR(id)), param);
}

BOOL CWnd::CreateEx(DWORD exStyle, LPCTSTR className, LPCTSTR windowName, DWORD style, int x, int y, int width,
                    int height, HWND parent, HMENU idOrMenu, LPVOID param)
{
    CREATESTRUCT create = {};
    create.dwExStyle = exStyle;
    create.lpszClass = className;
    create.lpszName = windowName;
    create.style = static_cast<LONG>(style);
    create.x = x;
    create.y = y;
    create.cx = width;
    create.cy = height;
    create.hwndParent = parent;
    create.hMenu = idOrMenu;
    create.hInstance = AfxGetInstanceHandle();
    create.lpCreateParams = param;

    if (!PreCreateWindow(create))
    {
        PostNcDestroy();
        return FALSE;
    }

    AfxHookWindowCreate(this);
    const HWND window = ::CreateWindowEx(create.dwExStyle, create.lpszClass, create.lpszName, DWORD(create.style),
                                         create.x, create.y, create.cx, create.cy, create.hwndParent, create.hMenu,
                                         create.hInstance, create.lpCreateParams);
    if (!AfxUnhookWindowCreate())
        PostNcDestroy(); // no window came, so no WM_NCDESTROY ends the object
    return window != nullptr;
}

BOOL CWnd::PreCreateWindow(CREATESTRUCT& create)
{
    if (create.lpszClass == nullptr)
        create.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW));
    return TRUE;
}

BOOL CWnd::DestroyWindow()
{
    if (m_hWnd == nullptr)
        return FALSE;
    const HWND window = m_hWnd;
    CWnd* const object = FromHandlePermanent(window);
    const BOOL destroyed = ::DestroyWindow(window);
    // A window of another procedure sent no WM_NCDESTROY here. When the object was permanent it may be deleted by now.
    if (object == nullptr)
        m_hWnd = nullptr;
    else if (FromHandlePermanent(window) == object && destroyed)
        object->Detach();
    return destroyed;
}

void CWnd::PreSubclassWindow() {}

WNDPROC* CWnd::GetSuperWndProcAddr()
{
    return &m_pfnSuper;
}

BOOL CWnd::SubclassWindow(HWND window)
{
    if (!::IsWindow(window) || !Attach(window))
        return FALSE;
    PreSubclassWindow();

    const WNDPROC former =
        reinterpret_cast<WNDPROC>(::SetWindowLongPtr(window, GWLP_WNDPROC, LONG_PTR(AfxGetAfxWndProc())));
    if (former != AfxGetAfxWndProc())
        *GetSuperWndProcAddr() = former;
    return TRUE;
}

BOOL CWnd::SubclassDlgItem(UINT id, CWnd* parent)
{
    const HWND item = ::GetDlgItem(parent->GetSafeHwnd(), static_cast<int>(id));
    return item != nullptr && SubclassWindow(item);
}

HWND CWnd::UnsubclassWindow()
{
    WNDPROC* const super = GetSuperWndProcAddr();
    if (*super != nullptr)
    {
        ::SetWindowLongPtr(m_hWnd, GWLP_WNDPROC, LONG_PTR(*super));
        *super = nullptr;
    }
    return Detach();
}

BOOL PASCAL CWnd::ModifyStyle(HWND window, DWORD remove, DWORD add, UINT flags)
{
    const LONG_PTR before = ::GetWindowLongPtr(window, GWL_STYLE);
    const LONG_PTR after = (before & ~LONG_PTR(remove)) | add;
    if (before == after)
        return FALSE;
    ::SetWindowLongPtr(window, GWL_STYLE, after);
    if (flags != 0)
        ::SetWindowPos(window, nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | flags);
    return TRUE;
}

BOOL PASCAL CWnd::ModifyStyleEx(HWND window, DWORD remove, DWORD add, UINT flags)
{
    const LONG_PTR before = ::GetWindowLongPtr(window, GWL_EXSTYLE);
    const LONG_PTR after = (before & ~LONG_PTR(remove)) | add;
    if (before == after)
        return FALSE;
    ::SetWindowLongPtr(window, GWL_EXSTYLE, after);
    if (flags != 0)
        ::SetWindowPos(window, nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | flags);
    return TRUE;
}

void CWnd::AssertValid() const
{
    ASSERT(m_hWnd == nullptr || IsPlace(this) || ::IsWindow(m_hWnd));
}
