// The wait dialog of this process, seen from outside: its window lives on a thread of its own.
//
//     WaitDialog dialog;
//     ASSERT_TRUE(dialog.WaitUntilShown());
//     EXPECT_EQ(L"A\nB", dialog.Lines());
#pragma once

#include <afxwin.h>

#include <string>

class WaitDialog
{
public:
    static const int LinesId = 102;
    static const int HeadingId = 101;
    static const int BarId = 103;
    static const int ElapsedId = 104;

    // The newest visible wait dialog of this process; null when there is none.
    static HWND Find();
    static bool IsShown() { return Find() != NULL; }

    // These dispatch the messages of the calling thread while they wait.
    static bool WaitUntilShown();
    static bool WaitUntilGone();
    static bool WaitForLines(const std::wstring& lines);

    static std::wstring Text(int id);
    static std::wstring Lines() { return Text(LinesId); }
    static std::wstring Heading() { return Text(HeadingId); }
    static std::wstring Elapsed() { return Text(ElapsedId); }

    // Null when it is hidden.
    static HWND CancelButton();
    static RECT Rect();

    // Presses Cancel with the real mouse. False when there is no button. Meant for a thread of its own while another
    // one is busy: dispatches nothing.
    static bool ClickCancel();
    // The same again and again until the condition holds: under Wine a move that the display reports late takes the
    // cursor back before the button goes down. False after a time-out.
    template<class CONDITION>
    static bool ClickCancelUntil(CONDITION condition)
    {
        const ULONGLONG start = ::GetTickCount64();
        const ULONGLONG patience = 20000;
        while (!condition())
        {
            if (::GetTickCount64() - start > patience)
                return false;
            ClickCancel();
            AwaitBeat();
        }
        return true;
    }

private:
    // Until the dialog's thread has dealt with the input that came in before.
    static void AwaitBeat();
};
