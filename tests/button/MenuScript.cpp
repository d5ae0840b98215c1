#include "MenuScript.h"

namespace
{

const UINT kInterval = 10;     // milliseconds
const DWORD kPatience = 10000; // milliseconds
const UINT kGetMenu = 0x1E1;   // MN_GETHMENU
const wchar_t* const kMenuClass = L"#32768";

} // namespace

MenuScript* MenuScript::s_current = nullptr;

MenuScript::MenuScript() : m_waitingSince(::GetTickCount()), m_timer(::SetTimer(NULL, 0, kInterval, OnTimer))
{
    s_current = this;
}

MenuScript::~MenuScript()
{
    ::KillTimer(NULL, m_timer);
    s_current = nullptr;
}

MenuScript& MenuScript::When(Condition condition, Action action)
{
    m_steps.push_back({std::move(condition), std::move(action)});
    return *this;
}

HWND MenuScript::MenuWindow()
{
    for (HWND window = NULL; (window = ::FindWindowExW(NULL, window, kMenuClass, NULL)) != NULL;)
    {
        DWORD process = 0;
        ::GetWindowThreadProcessId(window, &process);
        if (process == ::GetCurrentProcessId() && ::IsWindowVisible(window))
            return window;
    }
    return NULL;
}

HMENU MenuScript::OpenMenu()
{
    const HWND window = MenuWindow();
    return window == NULL ? NULL : reinterpret_cast<HMENU>(::SendMessageW(window, kGetMenu, 0, 0));
}

bool MenuScript::IsOpen()
{
    return OpenMenu() != NULL;
}

bool MenuScript::IsHighlighted(int position)
{
    const HMENU menu = OpenMenu();
    return menu != NULL && (::GetMenuState(menu, static_cast<UINT>(position), MF_BYPOSITION) & MF_HILITE) != 0;
}

CPoint MenuScript::EntryPoint(int position)
{
    RECT entry = {};
    ::GetMenuItemRect(MenuWindow(), OpenMenu(), static_cast<UINT>(position), &entry);
    return CPoint((entry.left + entry.right) / 2, (entry.top + entry.bottom) / 2);
}

void CALLBACK MenuScript::OnTimer(HWND, UINT, UINT_PTR, DWORD)
{
    if (s_current != nullptr)
        s_current->TakeStep();
}

void MenuScript::TakeStep()
{
    if (m_inStep || IsDone())
        return;
    if (m_steps[m_next].condition())
    {
        m_inStep = true;
        m_steps[m_next].action();
        m_inStep = false;
        ++m_next;
        m_waitingSince = ::GetTickCount();
    }
    else if (::GetTickCount() - m_waitingSince > kPatience)
    {
        ::EndMenu();
    }
}
