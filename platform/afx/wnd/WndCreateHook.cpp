// Binds the object to its window at the first moment of creation: the CBT hook runs before any message, so that
// WM_GETMINMAXINFO and WM_NCCREATE reach the object.
#include <afxwin.h>

namespace
{
// Windows that appear inside somebody else's creation are not ours: IME windows belong to the system.
bool IsImeWindow(HWND window)
{
    TCHAR name[8] = {};
    ::GetClassName(window, name, _countof(name));
    return lstrcmpi(name, L"ime") == 0;
}

// A window of another class runs its own procedure; ours goes in front of it and keeps it as the superclass.
void BindWindow(CWnd* object, HWND window)
{
    object->Attach(window);
    object->PreSubclassWindow();

    const WNDPROC ours = AfxGetAfxWndProc();
    const WNDPROC former = reinterpret_cast<WNDPROC>(::SetWindowLongPtr(window, GWLP_WNDPROC, LONG_PTR(ours)));
    if (former != ours)
        *object->GetSuperWndProcAddr() = former;
}

LRESULT CALLBACK CreationHook(int code, WPARAM wParam, LPARAM lParam)
{
    _AFX_THREAD_STATE* const state = AfxGetThreadState();
    const HWND window = reinterpret_cast<HWND>(wParam);
    if (code == HCBT_CREATEWND && state->m_pWndInit != nullptr && !IsImeWindow(window))
    {
        CWnd* const object = state->m_pWndInit;
        state->m_pWndInit = nullptr; // windows that this one creates are not the object's
        BindWindow(object, window);
    }
    return ::CallNextHookEx(state->m_hHookOldCbtFilter, code, wParam, lParam);
}
} // namespace

void AFXAPI AfxHookWindowCreate(CWnd* object)
{
    _AFX_THREAD_STATE* const state = AfxGetThreadState();
    if (state->m_hHookOldCbtFilter == nullptr)
        state->m_hHookOldCbtFilter = ::SetWindowsHookEx(WH_CBT, CreationHook, nullptr, ::GetCurrentThreadId());
    if (state->m_hHookOldCbtFilter == nullptr)
        AfxThrowMemoryException();
    ASSERT(object != nullptr && object->m_hWnd == nullptr);
    state->m_pWndInit = object;
}

BOOL AFXAPI AfxUnhookWindowCreate()
{
    _AFX_THREAD_STATE* const state = AfxGetThreadState();
    if (state->m_hHookOldCbtFilter != nullptr)
    {
        ::UnhookWindowsHookEx(state->m_hHookOldCbtFilter);
        state->m_hHookOldCbtFilter = nullptr;
    }
    const BOOL bound = state->m_pWndInit == nullptr;
    state->m_pWndInit = nullptr;
    return bound;
}
