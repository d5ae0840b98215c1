// The command CHECKDRAWING (检查图形): checks the current drawing and reports into the message palette.
#pragma once

namespace drawing_check
{

// Checks the current drawing, replaces the messages of the last check of the same drawing and shows the palette.
void CheckDrawing();

} // namespace drawing_check
