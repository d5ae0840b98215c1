#include <afxwin.h>
#include <afxpriv.h>

#include "afx/wnd/MessageCall.h"

namespace
{
// Makes the message the thread's current one for the time of its dispatch. Temporary objects that its handlers hold
// survive a nested message loop.
class CurrentMessage
{
public:
    CurrentMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
        : m_state(AfxGetThreadState()), m_previous(m_state->m_lastSentMsg)
    {
        m_state->m_lastSentMsg = MSG();
        m_state->m_lastSentMsg.hwnd = window;
        m_state->m_lastSentMsg.message = message;
        m_state->m_lastSentMsg.wParam = wParam;
        m_state->m_lastSentMsg.lParam = lParam;
        AfxLockTempMaps();
    }
    ~CurrentMessage()
    {
        AfxUnlockTempMaps(FALSE);
        m_state->m_lastSentMsg = m_previous;
    }
    CurrentMessage(const CurrentMessage&) = delete;
    CurrentMessage& operator=(const CurrentMessage&) = delete;

    const MSG& Get() const { return m_state->m_lastSentMsg; }

private:
    _AFX_THREAD_STATE* m_state;
    MSG m_previous;
};

// A dialog that nobody placed or showed during WM_INITDIALOG is centred over its owner.
class AutoCenter
{
public:
    explicit AutoCenter(CWnd* dialog) : m_dialog(dialog), m_window(dialog->m_hWnd)
    {
        dialog->GetWindowRect(&m_rect);
        m_visible = (dialog->GetStyle() & WS_VISIBLE) != 0;
    }
    void Finish()
    {
        if (m_visible || CWnd::FromHandlePermanent(m_window) != m_dialog)
            return;
        CRect now;
        m_dialog->GetWindowRect(&now);
        const bool untouched = now.TopLeft() == m_rect.TopLeft() && !(m_dialog->GetStyle() & (WS_VISIBLE | WS_CHILD));
        if (untouched && m_dialog->CheckAutoCenter())
            m_dialog->CenterWindow();
    }

private:
    CWnd* m_dialog;
    HWND m_window;
    CRect m_rect;
    bool m_visible = false;
};

bool IsColourMessage(UINT message)
{
    return message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC;
}

MSG MakeMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    MSG made = {};
    made.hwnd = window;
    made.message = message;
    made.wParam = wParam;
    made.lParam = lParam;
    return made;
}

// The entry of a registered message holds the address of its number where others hold their signature.
bool FindWindowMessage(const AFX_MSGMAP* map, UINT message, AFX_MSGMAP_ENTRY& found)
{
    const bool registered = message >= AFX_REGISTERED_MESSAGE;
    const AFX_MSGMAP_ENTRY* const entry =
        registered ? AfxFindRegisteredEntry(map, message) : AfxFindMessageEntry(map, message, 0, 0);
    if (entry == nullptr)
        return false;
    found = *entry;
    if (registered)
        found.nSig = AfxSig_l_wl;
    return true;
}

AFX_CTLCOLOR MakeColour(UINT message, WPARAM wParam, LPARAM lParam)
{
    const AFX_CTLCOLOR colour = {reinterpret_cast<HWND>(lParam), reinterpret_cast<HDC>(wParam),
                                 message - WM_CTLCOLORMSGBOX};
    return colour;
}

// Asks the update handlers whether a command is allowed at all.
class EnabledTest : public CCmdUI
{
public:
    explicit EnabledTest(UINT id) { m_nID = id; }
    void Enable(BOOL on) override
    {
        m_enabled = on != FALSE;
        m_bEnableChanged = TRUE;
    }
    void SetCheck(int) override {}
    void SetRadio(BOOL) override {}
    void SetText(LPCTSTR) override {}

    bool IsEnabled(CCmdTarget& target)
    {
        target.OnCmdMsg(m_nID, static_cast<int>(CN_UPDATE_COMMAND_UI), this, nullptr);
        return m_enabled;
    }

private:
    bool m_enabled = true;
};
} // namespace

LRESULT CALLBACK AfxWndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_QUERYAFXWNDPROC)
        return 1;
    CWnd* const object = CWnd::FromHandlePermanent(window);
    if (object == nullptr)
        return ::DefWindowProc(window, message, wParam, lParam);
    return AfxCallWndProc(object, window, message, wParam, lParam);
}

WNDPROC AFXAPI AfxGetAfxWndProc()
{
    return &AfxWndProc;
}

LRESULT AFXAPI AfxCallWndProc(CWnd* object, HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    const CurrentMessage current(window, message, wParam, lParam);
    try
    {
        if (message != WM_INITDIALOG)
            return object->WindowProc(message, wParam, lParam);
        AutoCenter autoCenter(object);
        const LRESULT result = object->WindowProc(message, wParam, lParam);
        autoCenter.Finish();
        return result;
    }
    catch (CException* e)
    {
        const LRESULT result = AfxProcessWndProcException(e, &current.Get());
        e->Delete();
        return result;
    }
}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    LRESULT result = 0;
    if (!OnWndMsg(message, wParam, lParam, &result))
        result = DefWindowProc(message, wParam, lParam);
    return result;
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    const WNDPROC super = *GetSuperWndProcAddr();
    if (super == nullptr)
        return ::DefWindowProc(m_hWnd, message, wParam, lParam);
    return ::CallWindowProc(super, m_hWnd, message, wParam, lParam);
}

LRESULT CWnd::Default()
{
    const MSG current = AfxGetThreadState()->m_lastSentMsg;
    return DefWindowProc(current.message, current.wParam, current.lParam);
}

const MSG* PASCAL CWnd::GetCurrentMessage()
{
    return &AfxGetThreadState()->m_lastSentMsg;
}

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    if (message == WM_COMMAND)
    {
        if (!OnCommand(wParam, lParam))
            return FALSE;
        if (result != nullptr)
            *result = 1;
        return TRUE;
    }
    if (message == WM_NOTIFY)
    {
        LRESULT answer = 0;
        const NMHDR* const header = reinterpret_cast<const NMHDR*>(lParam);
        if (header->hwndFrom == nullptr || !OnNotify(wParam, lParam, &answer))
            return FALSE;
        if (result != nullptr)
            *result = answer;
        return TRUE;
    }

    const AFX_MSGMAP* const map = GetMessageMap();
    AFX_MSGMAP_ENTRY entry = {};
    if (FindWindowMessage(map, message, entry))
        return AfxCallMessageHandler(this, entry, MakeMessage(m_hWnd, message, wParam, lParam), result);
    if (!IsColourMessage(message))
        return FALSE;

    const AFX_MSGMAP_ENTRY* const colourEntry = AfxFindMessageEntry(map, WM_CTLCOLOR, 0, 0);
    const AFX_CTLCOLOR colour = MakeColour(message, wParam, lParam);
    return AfxCallMessageHandler(this, *colourEntry, MakeMessage(m_hWnd, WM_CTLCOLOR, 0, LPARAM(&colour)), result);
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam)
{
    const UINT id = LOWORD(wParam);
    const HWND control = reinterpret_cast<HWND>(lParam);
    if (control == nullptr)
    {
        if (id == 0)
            return FALSE; // a menu item without an id
        // A disabled command is used up, whoever sent it: an accelerator doesn't look at the menu.
        if (!EnabledTest(id).IsEnabled(*this))
            return TRUE;
        return OnCmdMsg(id, CN_COMMAND, nullptr, nullptr);
    }

    if (AfxGetThreadState()->m_hLockoutNotifyWindow == m_hWnd)
        return TRUE;
    if (ReflectLastMsg(control))
        return TRUE;
    return OnCmdMsg(id, HIWORD(wParam), nullptr, nullptr);
}

BOOL CWnd::OnNotify(WPARAM, LPARAM lParam, LRESULT* result)
{
    NMHDR* const header = reinterpret_cast<NMHDR*>(lParam);
    const HWND control = header->hwndFrom;
    // Tool tips put the tool's id into the header; the map goes by the id of the window that notifies.
    const UINT id = static_cast<UINT>(::GetDlgCtrlID(control));

    if (AfxGetThreadState()->m_hLockoutNotifyWindow == m_hWnd)
        return TRUE;
    if (ReflectLastMsg(control, result))
        return TRUE;
    AFX_NOTIFY notify = {result, header};
    return OnCmdMsg(id, static_cast<int>(MAKELONG(header->code, WM_NOTIFY)), &notify, nullptr);
}

BOOL CWnd::OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo)
{
    return CCmdTarget::OnCmdMsg(id, code, extra, handlerInfo);
}

BOOL PASCAL CWnd::ReflectLastMsg(HWND child, LRESULT* result)
{
    CWnd* const object = FromHandlePermanent(child);
    return object != nullptr && object->SendChildNotifyLastMsg(result);
}

BOOL CWnd::SendChildNotifyLastMsg(LRESULT* result)
{
    const MSG current = AfxGetThreadState()->m_lastSentMsg;
    return OnChildNotify(current.message, current.wParam, current.lParam, result);
}

BOOL CWnd::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    return ReflectChildNotify(message, wParam, lParam, result);
}

BOOL CWnd::ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    if (IsColourMessage(message))
    {
        const AFX_CTLCOLOR colour = MakeColour(message, wParam, lParam);
        return CWnd::OnWndMsg(WM_REFLECT_BASE + WM_CTLCOLOR, 0, LPARAM(&colour), result);
    }
    switch (message)
    {
    case WM_HSCROLL:
    case WM_VSCROLL:
    case WM_PARENTNOTIFY:
    case WM_DRAWITEM:
    case WM_MEASUREITEM:
    case WM_DELETEITEM:
    case WM_VKEYTOITEM:
    case WM_CHARTOITEM:
    case WM_COMPAREITEM:
        return CWnd::OnWndMsg(WM_REFLECT_BASE + message, wParam, lParam, result);
    case WM_COMMAND:
        if (!OnCmdMsg(0, static_cast<int>(MAKELONG(HIWORD(wParam), WM_REFLECT_BASE + WM_COMMAND)), nullptr, nullptr))
            return FALSE;
        if (result != nullptr)
            *result = 1;
        return TRUE;
    case WM_NOTIFY: {
        NMHDR* const header = reinterpret_cast<NMHDR*>(lParam);
        LRESULT ignored = 0;
        AFX_NOTIFY notify = {result == nullptr ? &ignored : result, header};
        return OnCmdMsg(0, static_cast<int>(MAKELONG(header->code, WM_REFLECT_BASE + WM_NOTIFY)), &notify, nullptr);
    }
    default:
        return FALSE;
    }
}

BOOL CWnd::PreTranslateMessage(MSG* message)
{
    FilterToolTipMessage(message);
    return FALSE;
}

BOOL CWnd::IsDialogMessage(LPMSG message)
{
    return ::IsDialogMessage(m_hWnd, message);
}

BOOL CWnd::PreTranslateInput(MSG* message)
{
    const bool keyboard = message->message >= WM_KEYFIRST && message->message <= WM_KEYLAST;
    const bool mouse = message->message >= WM_MOUSEFIRST && message->message <= WM_MOUSELAST;
    return (keyboard || mouse) && IsDialogMessage(message);
}

BOOL PASCAL CWnd::WalkPreTranslateTree(HWND stop, MSG* message)
{
    for (HWND window = message->hwnd; window != nullptr; window = ::GetParent(window))
    {
        CWnd* const object = FromHandlePermanent(window);
        if (object != nullptr && object->PreTranslateMessage(message))
            return TRUE;
        if (window == stop)
            break;
    }
    return FALSE;
}
