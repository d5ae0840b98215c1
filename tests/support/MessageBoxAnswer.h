// Answers message boxes of this thread as a user would, and remembers what they said.
//
//   MessageBoxAnswer answer(IDNO);
//   ... code that asks ...
//   EXPECT_EQ(1u, answer.Boxes().size());
#pragma once

#include <afxwin.h>

#include <string>
#include <vector>

class MessageBoxAnswer
{
public:
    struct Box
    {
        std::wstring caption;
        std::wstring text;
        bool hasYesAndNo = false;
        int buttons = 0; // how many there are
        HWND owner = NULL;
        HICON icon = NULL;
    };

    // `button`: IDxxx of the button that is pressed in every box.
    explicit MessageBoxAnswer(int button);
    ~MessageBoxAnswer();

    MessageBoxAnswer(const MessageBoxAnswer&) = delete;
    MessageBoxAnswer& operator=(const MessageBoxAnswer&) = delete;

    const std::vector<Box>& Boxes() const { return m_boxes; }

private:
    static LRESULT CALLBACK OnHook(int code, WPARAM wParam, LPARAM lParam);
    void Press(HWND box);

    static MessageBoxAnswer* s_current;

    int m_button;
    HHOOK m_hook;
    std::vector<Box> m_boxes;
};
