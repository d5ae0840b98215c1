#include "WaitDialog.h"

#include "RealMouse.h"

namespace
{

BOOL CALLBACK TakeDialog(HWND window, LPARAM found)
{
    wchar_t name[16] = L"";
    DWORD process = 0;
    ::GetClassNameW(window, name, 16);
    ::GetWindowThreadProcessId(window, &process);
    if (process != ::GetCurrentProcessId() || !::IsWindowVisible(window) || std::wstring(name) != L"ZNWaitDlg")
        return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

} // namespace

HWND WaitDialog::Find()
{
    HWND found = NULL;
    ::EnumWindows(&TakeDialog, reinterpret_cast<LPARAM>(&found));
    return found;
}

bool WaitDialog::WaitUntilShown()
{
    return WaitFor([] { return IsShown(); });
}

bool WaitDialog::WaitUntilGone()
{
    return WaitFor([] { return !IsShown(); });
}

bool WaitDialog::WaitForLines(const std::wstring& lines)
{
    return WaitFor([&lines] { return IsShown() && Lines() == lines; });
}

std::wstring WaitDialog::Text(int id)
{
    const HWND control = ::GetDlgItem(Find(), id);
    const LRESULT length = ::SendMessageW(control, WM_GETTEXTLENGTH, 0, 0);
    std::wstring text(static_cast<size_t>(length) + 1, L'\0');
    text.resize(
        static_cast<size_t>(::SendMessageW(control, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(&text[0]))));
    return text;
}

HWND WaitDialog::CancelButton()
{
    const HWND button = ::GetDlgItem(Find(), IDCANCEL);
    return ::IsWindowVisible(button) ? button : NULL;
}

RECT WaitDialog::Rect()
{
    RECT rect = {};
    ::GetWindowRect(Find(), &rect);
    return rect;
}

bool WaitDialog::ClickCancel()
{
    RECT rect = {};
    if (!::GetWindowRect(CancelButton(), &rect))
        return false;
    ClickMouse(CRect(rect).CenterPoint());
    return true;
}

void WaitDialog::AwaitBeat()
{
    const UINT patience = 500;
    DWORD_PTR result = 0;
    ::SendMessageTimeoutW(Find(), WM_NULL, 0, 0, SMTO_NORMAL, patience, &result);
    ::SwitchToThread();
}
