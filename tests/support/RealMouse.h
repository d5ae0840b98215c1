// The real mouse, whose place travels with each event: under Wine the display may report an earlier place of the cursor
// late, which would take it back from wherever it had been set before.
//
//   SendMouse(point, MOUSEEVENTF_LEFTDOWN);
//   EXPECT_TRUE(MoveMouseUntil(point, [&] { return button.IsHovering(); }));
//   EXPECT_TRUE(ClickMouseUntil(point, [&] { return clicks == 1; }));
//
// Points are screen coordinates.
#pragma once

#include <afxwin.h>

#include "FrameworkWait.h"

// `wheel`: by how much MOUSEEVENTF_WHEEL turns it.
inline void SendMouse(CPoint point, DWORD flags, int wheel = 0)
{
    constexpr int units = 65536; // across the screen, each way
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi.dx = (point.x * units + units / 2) / ::GetSystemMetrics(SM_CXSCREEN);
    input.mi.dy = (point.y * units + units / 2) / ::GetSystemMetrics(SM_CYSCREEN);
    input.mi.mouseData = static_cast<DWORD>(wheel);
    input.mi.dwFlags = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE | flags;
    ::SendInput(1, &input, sizeof(input));
}

// Moves the display's own cursor as well, so that it stays; to the point and beside it in turn, because a move to where
// the cursor is tells nobody.
template<class CONDITION>
bool MoveMouseUntil(CPoint point, CONDITION condition)
{
    constexpr int attempts = 10;
    for (int i = 0; i < attempts; ++i)
    {
        const CPoint place = point + CPoint(i % 2, 0);
        ::SetCursorPos(place.x, place.y);
        SendMouse(place, 0);
        if (WaitThroughFramework(condition, 500))
            return true;
    }
    return false;
}

struct MouseClick
{
    DWORD down;
    DWORD up;
    int count; // presses in a row
};
const MouseClick kLeftClick = {MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP, 1};
const MouseClick kRightClick = {MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP, 1};
const MouseClick kDoubleClick = {MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP, 2};

inline void ClickMouse(CPoint point, const MouseClick& click = kLeftClick)
{
    ::SetCursorPos(point.x, point.y);
    for (int i = 0; i < click.count; ++i)
    {
        SendMouse(point, click.down);
        SendMouse(point, click.up);
    }
}

// A click that had no effect in time is tried again, after longer than a double click takes.
template<class CONDITION>
bool ClickMouseUntil(CPoint point, CONDITION condition, const MouseClick& click = kLeftClick)
{
    constexpr int attempts = 5;
    for (int i = 0; i < attempts; ++i)
    {
        ClickMouse(point, click);
        if (WaitThroughFramework(condition, 2 * ::GetDoubleClickTime()))
            return true;
    }
    return false;
}
