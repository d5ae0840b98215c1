// The real cursor, moved as the user's hand does it.
#pragma once

#include <afxwin.h>

namespace arxhost
{

// Moves the cursor there, in screen coordinates. The window under it is told, even when the cursor was there already.
void MoveScreenCursor(CPoint place);

} // namespace arxhost
