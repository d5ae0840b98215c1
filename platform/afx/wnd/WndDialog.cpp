// What every window can do with dialog items: data exchange, initial list texts, states of command buttons.
#include <afxwin.h>
#include <afxpriv.h>

namespace
{
// Notifications that the exchange causes mustn't reach the dialog while its members are half set.
class NotificationLock
{
public:
    explicit NotificationLock(HWND window) : m_previous(AfxGetThreadState()->m_hLockoutNotifyWindow)
    {
        AfxGetThreadState()->m_hLockoutNotifyWindow = window;
    }
    ~NotificationLock() { AfxGetThreadState()->m_hLockoutNotifyWindow = m_previous; }
    NotificationLock(const NotificationLock&) = delete;
    NotificationLock& operator=(const NotificationLock&) = delete;

private:
    HWND m_previous;
};

// The state of a command button of a dialog.
class ControlState : public CCmdUI
{
public:
    void Take(CWnd* control)
    {
        m_pOther = control;
        m_nID = LOWORD(control->GetDlgCtrlID());
        m_bEnableChanged = FALSE;
    }
};

bool IsPushButton(CWnd& control)
{
    return (control.SendMessage(WM_GETDLGCODE) & (DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON)) != 0;
}

// Entries of an RT_DLGINIT resource: control id, message, byte count, bytes; a zero id ends the list. The messages are
// the 16-bit numbers of LB_ADDSTRING and CB_ADDSTRING and two newer ones, the texts are in the system's code page.
const WORD OldListBoxAddString = 0x0401;
const WORD OldComboBoxAddString = 0x0403;
const WORD ComboBoxExAddString = 0x1234;

UINT AddStringMessage(WORD message)
{
    switch (message)
    {
    case OldListBoxAddString:
        return LB_ADDSTRING;
    case OldComboBoxAddString:
    case ComboBoxExAddString:
        return CB_ADDSTRING;
    default:
        return message;
    }
}

bool AddInitialText(CWnd& dialog, int id, WORD message, const char* bytes)
{
    const UINT add = AddStringMessage(message);
    if (add != LB_ADDSTRING && add != CB_ADDSTRING)
        return true;
    const CString text(bytes);
    return dialog.SendDlgItemMessage(id, add, 0, LPARAM(text.GetString())) >= 0;
}
} // namespace

void CWnd::DoDataExchange(CDataExchange*) {}

BOOL CWnd::UpdateData(BOOL saveAndValidate)
{
    CDataExchange exchange(this, saveAndValidate);
    const NotificationLock lock(m_hWnd);
    try
    {
        DoDataExchange(&exchange);
        return TRUE;
    }
    catch (CUserException* e)
    {
        e->Delete(); // the user has seen what is wrong
    }
    catch (CException* e)
    {
        e->ReportError(MB_ICONEXCLAMATION);
        e->Delete();
    }
    return FALSE;
}

BOOL CWnd::ExecuteDlgInit(LPCTSTR resourceName)
{
    const LPCTSTR type = MAKEINTRESOURCE(240); // RT_DLGINIT
    if (resourceName == nullptr)
        return TRUE;
    const HINSTANCE module = AfxFindResourceHandle(resourceName, type);
    const HRSRC resource = ::FindResource(module, resourceName, type);
    if (resource == nullptr)
        return TRUE; // most dialogs have none
    const HGLOBAL loaded = ::LoadResource(module, resource);
    return loaded != nullptr && ExecuteDlgInit(::LockResource(loaded));
}

BOOL CWnd::ExecuteDlgInit(LPVOID resource)
{
    const BYTE* at = static_cast<const BYTE*>(resource);
    BOOL good = TRUE;
    while (at != nullptr && good)
    {
        WORD head[2];
        DWORD length = 0;
        memcpy(head, at, sizeof(WORD));
        if (head[0] == 0)
            break;
        memcpy(head, at, sizeof(head));
        memcpy(&length, at + sizeof(head), sizeof(length));
        at += sizeof(head) + sizeof(length);
        good = AddInitialText(*this, head[0], head[1], reinterpret_cast<const char*>(at));
        at += length;
    }
    if (good)
        SendMessageToDescendants(WM_INITIALUPDATE, 0, 0, FALSE, FALSE);
    return good;
}

void CWnd::UpdateDialogControls(CCmdTarget* target, BOOL disableIfNoHandler)
{
    ControlState state;
    for (HWND child = ::GetTopWindow(m_hWnd); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
    {
        CWnd* const control = FromHandle(child);
        state.Take(control);
        if (state.m_nID == 0 || state.m_nID == LOWORD(IDC_STATIC))
            continue;
        // The control may know its state itself, then the dialog, then the target.
        const int update = static_cast<int>(CN_UPDATE_COMMAND_UI);
        const int reflected = static_cast<int>(MAKELONG(0xFFFF, WM_REFLECT_BASE + WM_COMMAND));
        if (control->OnCmdMsg(0, reflected, &state, nullptr) || OnCmdMsg(state.m_nID, update, &state, nullptr))
            continue;
        state.DoUpdate(target, disableIfNoHandler && IsPushButton(*control));
    }
}
