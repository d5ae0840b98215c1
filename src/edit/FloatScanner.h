// The syntax of a floating-point number as it is being typed.
//
// Beside right and wrong there is "incomplete": a sign, a point or an exponent that still waits for digits. Some
// oddities are what users of the control know: an exponent may open the text ("E5"), and a point straight after a lone
// sign ("-.") is painted as valid.
#pragma once

#include "edit/EditBrush.h"

struct FloatSyntax
{
    EditBrush brush; // BRUSH_EMPTY when there was nothing to judge
    int status;
};

// `status` is the code so far; it stays when nothing in the text says otherwise. Null is the empty text.
FloatSyntax ScanFloat(const wchar_t* text, int status);
