#include "xtp/button/XTButtonTheme.h"

#include "xtp/button/ButtonDrawing.h"
#include "xtp/button/ButtonLayout.h"
#include "xtp/button/GdiGuards.h"

IMPLEMENT_DYNCREATE(CXTButtonTheme, CObject)

namespace
{
const int kContentMargin = 3;
const int kFocusMargin = 3;
const int kHeldPercent = 50; // how much lighter the face of a checked button is
const UINT kCaptionFormat = DT_SINGLELINE | DT_CENTER | DT_VCENTER | DT_END_ELLIPSIS;

SIZE MeasureCaption(HDC dc, const CString& caption)
{
    RECT rect = {};
    if (!caption.IsEmpty())
        ::DrawTextW(dc, caption, caption.GetLength(), &rect, DT_SINGLELINE | DT_CALCRECT);
    return SIZE{rect.right, rect.bottom};
}

void DrawSunken(HDC dc, const RECT& rect, const XTButtonColors& colors)
{
    xtp::Frame(dc, rect, colors.darkShadow, colors.light);
    RECT inner = rect;
    ::InflateRect(&inner, -1, -1);
    xtp::Frame(dc, inner, colors.shadow, colors.face);
}

void DrawRaised(HDC dc, const RECT& rect, const XTButtonColors& colors)
{
    xtp::Frame(dc, rect, colors.light, colors.darkShadow);
    RECT inner = rect;
    ::InflateRect(&inner, -1, -1);
    xtp::Frame(dc, inner, colors.face, colors.shadow);
}

bool IsIn(const XTButtonState& state)
{
    return state.pressed || state.checked;
}

enum FrameKind
{
    kNoFrame,
    kThinFrame,
    kFullFrame
};

FrameKind ChooseFrame(DWORD style, const XTButtonState& state)
{
    const bool awake = state.hot || IsIn(state) || state.isDefault;
    if ((style & BS_XT_SEMIFLAT) != 0)
        return awake ? kFullFrame : kThinFrame;
    if ((style & BS_XT_FLAT) != 0)
        return awake ? kThinFrame : kNoFrame;
    return kFullFrame;
}

void DrawThin(HDC dc, const RECT& rect, bool in, const XTButtonColors& colors)
{
    xtp::Frame(dc, rect, in ? colors.shadow : colors.light, in ? colors.light : colors.shadow);
}
} // namespace

XTButtonColors XTButtonColors::FromSystem()
{
    return XTButtonColors{::GetSysColor(COLOR_BTNFACE),   ::GetSysColor(COLOR_BTNHIGHLIGHT),
                          ::GetSysColor(COLOR_BTNSHADOW), ::GetSysColor(COLOR_3DDKSHADOW),
                          ::GetSysColor(COLOR_BTNTEXT),   ::GetSysColor(COLOR_GRAYTEXT),
                          ::GetSysColor(COLOR_HIGHLIGHT), ::GetSysColor(COLOR_WINDOW)};
}

CXTButtonTheme::CXTButtonTheme() = default;

CXTButtonTheme::~CXTButtonTheme() = default;

void CXTButtonTheme::Draw(HDC dc, const RECT& rect, DWORD style, const XTButtonState& state,
                          const XTButtonContent& content, const XTButtonColors& colors) const
{
    const xtp::SavedDC saved(dc);
    DrawFace(dc, rect, style, state, colors);
    DrawContent(dc, rect, state, content, colors);
    if (state.focused)
    {
        RECT focus = rect;
        ::InflateRect(&focus, -kFocusMargin, -kFocusMargin);
        ::SetTextColor(dc, colors.text);
        ::SetBkColor(dc, colors.face);
        ::DrawFocusRect(dc, &focus);
    }
}

void CXTButtonTheme::DrawFace(HDC dc, const RECT& rect, DWORD style, const XTButtonState& state,
                              const XTButtonColors& colors) const
{
    const FrameKind frame = ChooseFrame(style, state);
    if (frame == kNoFrame)
        return;
    const bool held = state.checked && !state.pressed;
    RECT face = rect;
    xtp::Fill(dc, face, held ? xtp::BlendColors(colors.face, colors.light, kHeldPercent) : colors.face);
    if (state.isDefault)
    {
        xtp::Frame(dc, face, colors.darkShadow, colors.darkShadow);
        ::InflateRect(&face, -1, -1);
    }
    if (frame == kThinFrame)
        DrawThin(dc, face, IsIn(state), colors);
    else if (IsIn(state))
        DrawSunken(dc, face, colors);
    else
        DrawRaised(dc, face, colors);
}

SIZE CXTButtonTheme::GetPressedOffset() const
{
    return SIZE{1, 1};
}

COLORREF CXTButtonTheme::GetTextColor(const XTButtonState& state, const XTButtonColors& colors) const
{
    return state.enabled ? colors.text : colors.disabledText;
}

void CXTButtonTheme::DrawContent(HDC dc, const RECT& rect, const XTButtonState& state, const XTButtonContent& content,
                                 const XTButtonColors& colors) const
{
    if (content.font != nullptr)
        ::SelectObject(dc, content.font);
    RECT room = rect;
    ::InflateRect(&room, -kContentMargin, -kContentMargin);
    if (state.pressed)
        ::OffsetRect(&room, GetPressedOffset().cx, GetPressedOffset().cy);
    const SIZE iconSize = content.icon != nullptr ? content.iconSize : SIZE{0, 0};
    xtp::ButtonLayout layout = xtp::LayOutButton(room, iconSize, MeasureCaption(dc, content.caption), content.stacked);

    if (content.icon != nullptr && state.enabled)
        xtp::DrawIcon(dc, layout.icon, content.icon);
    else if (content.icon != nullptr)
        xtp::DrawDisabledIcon(dc, layout.icon, content.icon);
    if (content.caption.IsEmpty())
        return;
    ::SetBkMode(dc, TRANSPARENT);
    ::SetTextColor(dc, GetTextColor(state, colors));
    ::DrawTextW(dc, content.caption, content.caption.GetLength(), &layout.text,
                kCaptionFormat | (content.hidePrefix ? DT_HIDEPREFIX : 0));
}
