// The real keyboard.
//
//   TypeText(L"1.5");
//   PressKey(VK_TAB, VK_SHIFT);
#pragma once

#include <afxwin.h>

#include <string>

// One event: `flags` as KEYBDINPUT has them; 0 is a press.
inline void SendKey(WORD key, DWORD flags, WORD scan = 0)
{
    INPUT input = {};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.wScan = scan;
    input.ki.dwFlags = flags;
    ::SendInput(1, &input, sizeof(input));
}

// Down and up again, while `with` (Shift, for one) is held down.
inline void PressKey(WORD key, WORD with = 0)
{
    if (with != 0)
        SendKey(with, 0);
    SendKey(key, 0);
    SendKey(key, KEYEVENTF_KEYUP);
    if (with != 0)
        SendKey(with, KEYEVENTF_KEYUP);
}

// Characters of any language, as an input method hands them in.
inline void TypeText(const std::wstring& text)
{
    for (const wchar_t character : text)
    {
        SendKey(0, KEYEVENTF_UNICODE, character);
        SendKey(0, KEYEVENTF_UNICODE | KEYEVENTF_KEYUP, character);
    }
}
