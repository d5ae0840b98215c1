// What the validating edit and its parent talk about: character sets, verdicts, messages.
#pragma once

#include <afxwin.h>

// Which characters a validating edit takes. The sets 4 to 9 are numeric: their texts have a value and a range.
enum VVEset
{
    VVE_CUSTOM = 0,   // the characters that the owner gives
    VVE_ALL = 1,      // any character
    VVE_ALPHANUM = 2, // letters, digits and the space
    VVE_ALPHA = 3,    // letters and the space
    VVE_DECIMAL = 4,  // unsigned number, radix 10
    VVE_SIGNED = 5,   // signed number, radix 10
    VVE_HEX = 6,      // unsigned number, radix 16
    VVE_OCTAL = 7,    // unsigned number, radix 8
    VVE_BINARY = 8,   // unsigned number, radix 2
    VVE_FLOAT = 9     // floating-point number
};

// The verdicts on a text, called status codes where they are numbers. Each selects the brush of the background.
enum VVEbrush
{
    VVB_EMPTY_INVALID = 0, // empty, which is not allowed (painted like VVB_INVALID)
    VVB_EMPTY = 1,         // empty, which is allowed
    VVB_VALID = 2,
    VVB_INVALID = 3,    // a character or the syntax is wrong
    VVB_INCOMPLETE = 4, // a sign, a point or an exponent still waits for digits
    VVB_TOO_SHORT = 5,
    VVB_TOO_LONG = 6,
    VVB_TYPE_RANGE = 7, // outside of what the set's type can hold
    VVB_BELOW_MIN = 8,
    VVB_ABOVE_MAX = 9,
    VVB_CUSTOM1 = 10, // verdicts of the parent's own
    VVB_CUSTOM2 = 11
};

// Messages that a validating edit sends to its parent. The parent has one millisecond to answer.
enum
{
    // "What do you think of this text?" Sent for every validation while custom validation is on.
    // wParam: const VVENotice*, status is the one before. lParam: const wchar_t*, the text.
    // Result: a VVEbrush; 0, and any number that is none, means no answer.
    WM_VVE_VALIDATE = WM_APP + 1,

    // The text became valid or invalid.
    // wParam: const VVENotice*. lParam: 1 valid, 0 invalid. The result is not used.
    WM_VVE_VALIDITY = WM_APP + 2
};

// Which edit it is about. Lives only during the message.
struct VVENotice
{
    HWND window;
    int controlId;
    int status;
};
