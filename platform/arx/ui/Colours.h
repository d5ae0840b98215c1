// The colours of the host's own surfaces: quiet greys with a dark blue accent, so that the drawing stands out.
#pragma once

#include <windows.h>

namespace arxui
{
namespace colours
{

const COLORREF surface = RGB(240, 241, 244);
const COLORREF border = RGB(171, 178, 190);
const COLORREF splitter = RGB(214, 218, 226);
const COLORREF captionActive = RGB(58, 92, 140);
const COLORREF captionActiveText = RGB(255, 255, 255);
const COLORREF captionInactive = RGB(206, 213, 225);
const COLORREF captionInactiveText = RGB(38, 48, 64);
const COLORREF buttonHot = RGB(143, 172, 214);
const COLORREF buttonPressed = RGB(104, 136, 184);
const COLORREF tabIdle = RGB(222, 226, 233);
const COLORREF tabActive = RGB(252, 252, 253);
const COLORREF text = RGB(30, 34, 42);

} // namespace colours
} // namespace arxui
