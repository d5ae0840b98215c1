// The window messages and timers of the module, with sender, receiver, parameters and result.
// What the validating edit sends to its parent is the client's business too: edit/SuperEditTypes.h.
#pragma once

// The host asks a modeless dialog that has the focus, before it takes the focus back to the drawing.
// No parameters. Result: 1 keeps the focus in the dialog, 0 lets the host take it.
// The number is the one that the host's own headers call WM_ACAD_KEEPFOCUS.
enum
{
    ZNKT_WM_KEEP_FOCUS = 0x7101
};

// Timer of the message viewer while objects flash.
enum
{
    ZNKT_TIMER_FLASH = 1
};

// Timers of the check window: the cursor has rested; look whether it has left.
enum
{
    ZNKT_TIMER_CHECK_SHOW = 1,
    ZNKT_TIMER_CHECK_HIDE = 2
};
