// Draws the parts of a combo button that do not depend on its items. Each leaves the device context as it was.
#pragma once

#include "button/ComboButtonLayout.h"

void PaintFace(CDC& dc, const CRect& button, const ComboButtonState& state);
void PaintDropZone(CDC& dc, const CRect& button, const ComboButtonState& state);

// The hot frame, the focus rectangle and the border.
void DrawBorder(CDC& dc, const CRect& button, const ComboButtonState& state);

// The line before the drop zone and its arrow.
void DrawDropSign(CDC& dc, const CRect& button, const ComboButtonState& state);
