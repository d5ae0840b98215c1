#include "host/CommandEdit.h"

namespace arxhost
{

BEGIN_MESSAGE_MAP(CommandEdit, CEdit)
    ON_WM_CHAR()
    ON_WM_KEYDOWN()
END_MESSAGE_MAP()

void CommandEdit::Type(wchar_t character)
{
    SetFocus();
    SendMessage(WM_CHAR, character);
}

void CommandEdit::OnChar(UINT character, UINT repeat, UINT flags)
{
    if (character == VK_RETURN)
    {
        CString line;
        GetWindowText(line);
        SetWindowText(L"");
        onEnter(line.GetString());
    }
    else if (character == VK_ESCAPE)
    {
        SetWindowText(L"");
        onEscape();
    }
    else
        CEdit::OnChar(character, repeat, flags);
}

void CommandEdit::OnKeyDown(UINT key, UINT repeat, UINT flags)
{
    if (key == VK_UP)
        Show(m_history.Previous());
    else if (key == VK_DOWN)
        Show(m_history.Next());
    else
        CEdit::OnKeyDown(key, repeat, flags);
}

void CommandEdit::Show(const std::wstring& line)
{
    SetWindowText(line.c_str());
    const int end = static_cast<int>(line.size());
    SetSel(end, end);
}

} // namespace arxhost
