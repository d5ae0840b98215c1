// The module's commands.
#pragma once

namespace drawing_check
{

// CHECKDRAWING (检查图形): checks the current drawing, replaces the messages of the last check of the same drawing and
// shows the palette. A wait dialog tells how far it is; Cancel ends the check and keeps what was found.
void CheckDrawing();

// The summary of the last check of the current drawing, presented in three ways: CHECKSUMMARYBOX (检查摘要框) in a
// message box, CHECKSUMMARYLINE (检查摘要行) on the command line, CHECKSUMMARYPANEL (检查摘要面板) in the palette. The
// first two say the sum alone, since a box and a line show the final message.
void SummaryInBox();
void SummaryOnCommandLine();
void SummaryInPanel();

} // namespace drawing_check
