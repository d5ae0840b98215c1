// A window's relatives: parents, owners, frames, descendants.
#include <afxwin.h>
#include <afxpriv.h>

BOOL AFXAPI AfxIsDescendant(HWND parent, HWND child)
{
    for (HWND window = child; window != nullptr; window = ::GetParent(window))
    {
        if (window == parent)
            return TRUE;
    }
    return FALSE;
}

namespace
{
bool IsChildWindow(HWND window)
{
    return (::GetWindowLongPtr(window, GWL_STYLE) & WS_CHILD) != 0;
}

// Up through the owner that a window was given by SetOwner, else through its parent or system owner.
HWND OwnerOf(HWND window)
{
    const CWnd* const object = CWnd::FromHandlePermanent(window);
    if (object != nullptr && object->m_hWndOwner != nullptr)
        return object->m_hWndOwner;
    return ::GetParent(window);
}

template<class NEXT>
HWND LastOf(HWND window, NEXT next)
{
    HWND last = window;
    while (window != nullptr)
    {
        last = window;
        window = next(window);
    }
    return last;
}
} // namespace

CWnd* CWnd::GetOwner() const
{
    return m_hWndOwner != nullptr ? FromHandle(m_hWndOwner) : GetParent();
}

CWnd* CWnd::GetTopLevelParent() const
{
    return FromHandle(GetSafeHwnd() == nullptr ? nullptr : LastOf(m_hWnd, OwnerOf));
}

CWnd* CWnd::GetTopLevelOwner() const
{
    return FromHandle(LastOf(GetSafeHwnd(), [](HWND window) { return ::GetWindow(window, GW_OWNER); }));
}

CWnd* CWnd::GetParentOwner() const
{
    HWND window = GetSafeHwnd();
    while (window != nullptr && IsChildWindow(window))
        window = ::GetParent(window);
    return FromHandle(window);
}

CFrameWnd* CWnd::GetParentFrame() const
{
    if (GetSafeHwnd() == nullptr)
        return nullptr;
    for (CWnd* parent = GetParent(); parent != nullptr; parent = parent->GetParent())
    {
        if (parent->IsFrameWnd())
            return static_cast<CFrameWnd*>(parent);
    }
    return nullptr;
}

CFrameWnd* CWnd::GetTopLevelFrame() const
{
    if (GetSafeHwnd() == nullptr)
        return nullptr;
    CFrameWnd* frame = IsFrameWnd() ? static_cast<CFrameWnd*>(const_cast<CWnd*>(this)) : GetParentFrame();
    for (CFrameWnd* above = frame; above != nullptr; above = above->GetParentFrame())
        frame = above;
    return frame;
}

// The window that owns a new dialog: the parent's or main window's first one that isn't a child, and its last active
// popup. topLevel gets the window to disable.
HWND PASCAL CWnd::GetSafeOwner_(HWND parent, HWND* topLevel)
{
    HWND owner = parent;
    if (owner == nullptr)
    {
        CWnd* const mainWindow = AfxGetMainWnd();
        owner = mainWindow->GetSafeHwnd();
    }
    while (owner != nullptr && IsChildWindow(owner))
        owner = ::GetParent(owner);

    const HWND top = LastOf(owner, [](HWND window) { return ::GetParent(window); });
    if (parent == nullptr && owner != nullptr)
        owner = ::GetLastActivePopup(owner);
    if (topLevel != nullptr)
        *topLevel = top != nullptr && top != owner && ::IsWindowEnabled(top) ? top : nullptr;
    return owner;
}

CWnd* PASCAL CWnd::GetSafeOwner(CWnd* parent, HWND* topLevel)
{
    return FromHandle(GetSafeOwner_(parent->GetSafeHwnd(), topLevel));
}

BOOL CWnd::IsTopParentActive() const
{
    const CWnd* const top = GetTopLevelParent();
    return top != nullptr && ::GetForegroundWindow() == ::GetLastActivePopup(top->m_hWnd);
}

void CWnd::ActivateTopLevel()
{
    CWnd* const top = GetTopLevelParent();
    if (top != nullptr && !IsTopParentActive())
        ::SetActiveWindow(::GetLastActivePopup(top->m_hWnd));
}

CWnd* CWnd::GetDescendantWindow(int id, BOOL onlyPermanent) const
{
    return GetDescendantWindow(m_hWnd, id, onlyPermanent);
}

CWnd* PASCAL CWnd::GetDescendantWindow(HWND window, int id, BOOL onlyPermanent)
{
    const HWND item = ::GetDlgItem(window, id);
    if (item != nullptr)
    {
        // A container may repeat its own id inside: the inner one is meant.
        if (::GetTopWindow(item) != nullptr)
        {
            CWnd* const inner = GetDescendantWindow(item, id, onlyPermanent);
            if (inner != nullptr)
                return inner;
        }
        CWnd* const object = onlyPermanent ? FromHandlePermanent(item) : FromHandle(item);
        if (object != nullptr)
            return object;
    }
    for (HWND child = ::GetTopWindow(window); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
    {
        CWnd* const found = GetDescendantWindow(child, id, onlyPermanent);
        if (found != nullptr)
            return found;
    }
    return nullptr;
}

void CWnd::SendMessageToDescendants(UINT message, WPARAM wParam, LPARAM lParam, BOOL deep, BOOL onlyPermanent)
{
    SendMessageToDescendants(m_hWnd, message, wParam, lParam, deep, onlyPermanent);
}

void PASCAL CWnd::SendMessageToDescendants(HWND window, UINT message, WPARAM wParam, LPARAM lParam, BOOL deep,
                                           BOOL onlyPermanent)
{
    HWND next = nullptr;
    for (HWND child = ::GetTopWindow(window); child != nullptr; child = next)
    {
        next = ::GetWindow(child, GW_HWNDNEXT); // the message may end the child
        CWnd* const object = FromHandlePermanent(child);
        if (object == nullptr && !onlyPermanent)
            ::SendMessage(child, message, wParam, lParam);
        else if (object != nullptr)
            AfxCallWndProc(object, child, message, wParam, lParam);
        if (deep && ::IsWindow(child))
            SendMessageToDescendants(child, message, wParam, lParam, deep, onlyPermanent);
    }
}

CWnd* CWnd::GetNextDlgTabItem(CWnd* control, BOOL previous) const
{
    return FromHandle(::GetNextDlgTabItem(m_hWnd, control->GetSafeHwnd(), previous));
}

CWnd* CWnd::GetNextDlgGroupItem(CWnd* control, BOOL previous) const
{
    return FromHandle(::GetNextDlgGroupItem(m_hWnd, control->GetSafeHwnd(), previous));
}

int CWnd::GetCheckedRadioButton(int first, int last) const
{
    for (int id = first; id <= last; ++id)
    {
        if (IsDlgButtonChecked(id) != 0)
            return id;
    }
    return 0;
}
