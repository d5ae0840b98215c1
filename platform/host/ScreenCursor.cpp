#include "host/ScreenCursor.h"

namespace arxhost
{
namespace
{

// Mouse input measures the screen in 65536ths.
int Absolute(int pixel, int extent)
{
    const int range = 65536;
    return (pixel * range + range / 2) / extent;
}

void SendMove(CPoint place)
{
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE;
    input.mi.dx = Absolute(place.x, ::GetSystemMetrics(SM_CXSCREEN));
    input.mi.dy = Absolute(place.y, ::GetSystemMetrics(SM_CYSCREEN));
    ::SendInput(1, &input, sizeof(input));
}

} // namespace

void MoveScreenCursor(CPoint place)
{
    // A move to where the cursor is tells nobody.
    SendMove(place + CPoint(1, 0));
    // Moves the display's own cursor as well, which Wine's input does not: it would take the cursor back later.
    ::SetCursorPos(place.x, place.y);
    SendMove(place);
}

} // namespace arxhost
