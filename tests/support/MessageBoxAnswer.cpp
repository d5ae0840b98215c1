#include "MessageBoxAnswer.h"

namespace
{

// Control identifier of the text in a message box; that of the icon differs between Windows and Wine.
constexpr int kText = 0xFFFF;

std::wstring TextOf(HWND window)
{
    std::wstring text(static_cast<size_t>(::GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<size_t>(::GetWindowTextW(window, &text[0], static_cast<int>(text.size()))));
    return text;
}

HICON IconOf(HWND box)
{
    HWND child = NULL;
    while ((child = ::FindWindowExW(box, child, L"Static", NULL)) != NULL)
    {
        if ((::GetWindowLongPtrW(child, GWL_STYLE) & SS_TYPEMASK) == SS_ICON)
            return reinterpret_cast<HICON>(::SendMessageW(child, STM_GETICON, 0, 0));
    }
    return NULL;
}

int CountButtons(HWND box)
{
    int count = 0;
    HWND child = NULL;
    while ((child = ::FindWindowExW(box, child, L"Button", NULL)) != NULL)
        ++count;
    return count;
}

bool IsDialog(HWND window)
{
    wchar_t name[16] = L"";
    ::GetClassNameW(window, name, 16);
    return std::wstring(name) == L"#32770" && (::GetWindowLongPtrW(window, GWL_STYLE) & WS_CHILD) == 0;
}

} // namespace

MessageBoxAnswer* MessageBoxAnswer::s_current = NULL;

MessageBoxAnswer::MessageBoxAnswer(int button) : m_button(button)
{
    s_current = this;
    m_hook = ::SetWindowsHookExW(WH_CBT, &OnHook, NULL, ::GetCurrentThreadId());
}

MessageBoxAnswer::~MessageBoxAnswer()
{
    ::UnhookWindowsHookEx(m_hook);
    s_current = NULL;
}

LRESULT CALLBACK MessageBoxAnswer::OnHook(int code, WPARAM wParam, LPARAM lParam)
{
    const HWND window = reinterpret_cast<HWND>(wParam);
    if (code == HCBT_ACTIVATE && IsDialog(window))
        s_current->Press(window);
    return ::CallNextHookEx(NULL, code, wParam, lParam);
}

void MessageBoxAnswer::Press(HWND window)
{
    Box box;
    box.caption = TextOf(window);
    box.text = TextOf(::GetDlgItem(window, kText));
    box.hasYesAndNo = ::GetDlgItem(window, IDYES) != NULL && ::GetDlgItem(window, IDNO) != NULL;
    box.buttons = CountButtons(window);
    box.owner = ::GetWindow(window, GW_OWNER);
    box.icon = IconOf(window);
    m_boxes.push_back(box);
    ::PostMessageW(window, WM_COMMAND, static_cast<WPARAM>(m_button), 0);
}
