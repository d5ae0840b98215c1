// The input line of the command panel.
#pragma once

#include <afxwin.h>

#include "host/CommandHistory.h"

#include <functional>

namespace arxhost
{

class CommandEdit : public CEdit
{
public:
    // Enter with the line typed; Esc.
    std::function<void(const std::wstring&)> onEnter;
    std::function<void()> onEscape;

    // Appends a character as if it were typed here, and takes the focus.
    void Type(wchar_t character);
    CommandHistory& History() { return m_history; }

protected:
    afx_msg void OnChar(UINT character, UINT repeat, UINT flags);
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);

    DECLARE_MESSAGE_MAP()

private:
    void Show(const std::wstring& line);

    CommandHistory m_history;
};

} // namespace arxhost
