#include "xtp/button/XTButtonThemes.h"

#include "xtp/button/ButtonDrawing.h"
#include "xtp/button/ButtonLayout.h"

IMPLEMENT_DYNCREATE(CXTButtonThemeOfficeXP, CXTButtonTheme)
IMPLEMENT_DYNCREATE(CXTButtonThemeOffice2003, CXTButtonThemeOfficeXP)
IMPLEMENT_DYNCREATE(CXTToolbarButtonTheme, CXTButtonThemeOfficeXP)

namespace
{
// Parts of the highlight colour in the fills.
const int kHotPercent = 30;
const int kPressedPercent = 50;
const int kCheckedPercent = 15;
const int kCheckedHotPercent = 45;
const int kFramePercent = 60;    // of the shadow, around a button at rest
const int kGradientPercent = 25; // how far a gradient's ends stand off its middle

struct Look
{
    COLORREF fill;
    COLORREF frame;
};

Look EnabledLook(DWORD style, const XTButtonState& state, const XTButtonColors& colors)
{
    const auto tint = [&colors](int percent) { return xtp::BlendColors(colors.window, colors.highlight, percent); };
    if (state.pressed && (style & BS_XT_HILITEPRESSED) == 0)
        return Look{tint(kPressedPercent), colors.highlight};
    if (state.checked)
        return Look{tint(state.hot ? kCheckedHotPercent : kCheckedPercent), colors.highlight};
    if (state.hot || state.pressed)
        return Look{tint(kHotPercent), colors.highlight};
    const COLORREF quiet = xtp::BlendColors(colors.face, colors.shadow, kFramePercent);
    return Look{colors.face, state.isDefault ? colors.darkShadow : quiet};
}

Look ChooseLook(DWORD style, const XTButtonState& state, const XTButtonColors& colors)
{
    const Look look = EnabledLook(style, state, colors);
    return state.enabled ? look : Look{look.fill, colors.shadow};
}

bool IsAtRest(const XTButtonState& state)
{
    return !state.hot && !state.pressed && !state.checked && !state.isDefault;
}
} // namespace

CXTButtonThemeOfficeXP::CXTButtonThemeOfficeXP(BOOL flat) : m_flat(flat) {}

void CXTButtonThemeOfficeXP::DrawFace(HDC dc, const RECT& rect, DWORD style, const XTButtonState& state,
                                      const XTButtonColors& colors) const
{
    if (IsAtRest(state) && IsBareAtRest(style))
        return;
    const Look look = ChooseLook(style, state, colors);
    xtp::Fill(dc, rect, look.fill);
    xtp::Frame(dc, rect, look.frame, look.frame);
}

SIZE CXTButtonThemeOfficeXP::GetPressedOffset() const
{
    return SIZE{0, 0};
}

bool CXTButtonThemeOfficeXP::IsBareAtRest(DWORD style) const
{
    return m_flat || (style & BS_XT_FLAT) != 0;
}

CXTButtonThemeOffice2003::CXTButtonThemeOffice2003(BOOL flat) : CXTButtonThemeOfficeXP(flat) {}

void CXTButtonThemeOffice2003::DrawFace(HDC dc, const RECT& rect, DWORD style, const XTButtonState& state,
                                        const XTButtonColors& colors) const
{
    if (IsAtRest(state) && IsBareAtRest(style))
        return;
    const Look look = ChooseLook(style, state, colors);
    const COLORREF bright = xtp::BlendColors(look.fill, colors.light, kGradientPercent);
    const COLORREF dim = xtp::BlendColors(look.fill, colors.shadow, kGradientPercent);
    xtp::FillGradient(dc, rect, state.pressed ? dim : bright, state.pressed ? bright : dim);
    xtp::Frame(dc, rect, look.frame, look.frame);
}

CXTToolbarButtonTheme::CXTToolbarButtonTheme() : CXTButtonThemeOfficeXP(TRUE) {}

SIZE CXTToolbarButtonTheme::GetPressedOffset() const
{
    return SIZE{1, 1};
}
