// The themes that come with the toolkit beside the classic CXTButtonTheme.
//
//   m_button.SetTheme(new CXTButtonThemeOffice2003(TRUE));   // the button owns it from here on
#pragma once

#include "xtp/button/XTButtonTheme.h"

// Even fills in tints of the highlight colour with a one-pixel frame. Buttons that were given no theme use it.
class XTP_API CXTButtonThemeOfficeXP : public CXTButtonTheme
{
    DECLARE_DYNCREATE(CXTButtonThemeOfficeXP)

public:
    // `flat`: no face at rest, whatever the button's style says.
    explicit CXTButtonThemeOfficeXP(BOOL flat = FALSE);

protected:
    void DrawFace(HDC dc, const RECT& rect, DWORD style, const XTButtonState& state,
                  const XTButtonColors& colors) const override;
    SIZE GetPressedOffset() const override;

    bool IsBareAtRest(DWORD style) const;

private:
    BOOL m_flat;
};

// Like it, with vertical gradients.
class XTP_API CXTButtonThemeOffice2003 : public CXTButtonThemeOfficeXP
{
    DECLARE_DYNCREATE(CXTButtonThemeOffice2003)

public:
    explicit CXTButtonThemeOffice2003(BOOL flat = FALSE);

protected:
    void DrawFace(HDC dc, const RECT& rect, DWORD style, const XTButtonState& state,
                  const XTButtonColors& colors) const override;
};

// A button of a toolbar: bare at rest, framed while hot, in while pressed or checked; the content moves when pressed.
class XTP_API CXTToolbarButtonTheme : public CXTButtonThemeOfficeXP
{
    DECLARE_DYNCREATE(CXTToolbarButtonTheme)

public:
    CXTToolbarButtonTheme();

protected:
    SIZE GetPressedOffset() const override;
};
