// CXTButtonTheme: draws a CXTButton. This one is the classic look with raised and sunken edges, and the base of the
// others.
//
// A theme holds no window and no handle. Drawing takes everything as arguments, so that one theme object could serve
// any button and a test can draw without a window. Rectangles are in pixels of the device context given.
#pragma once

#include "xtp/Api.h"
#include "xtp/button/XTButtonStyles.h"
#include "afx/core/Object.h"
#include "afx/core/String.h"

// What stands on the face: an icon, a caption, or both. Nothing is owned.
struct XTButtonContent
{
    HICON icon;
    SIZE iconSize;
    CString caption;
    HFONT font;
    bool stacked;    // the icon above the caption
    bool hidePrefix; // the keyboard cues are off: no underlined letter
};

class XTP_API CXTButtonTheme : public CObject
{
    DECLARE_DYNCREATE(CXTButtonTheme)

public:
    CXTButtonTheme();
    ~CXTButtonTheme() override;

    // Face, content and focus rectangle over a background that is already there. `style` are BS_XT_ bits.
    void Draw(HDC dc, const RECT& rect, DWORD style, const XTButtonState& state, const XTButtonContent& content,
              const XTButtonColors& colors) const;

protected:
    // Fill and frame.
    virtual void DrawFace(HDC dc, const RECT& rect, DWORD style, const XTButtonState& state,
                          const XTButtonColors& colors) const;
    // How far the content moves while the button is in.
    virtual SIZE GetPressedOffset() const;
    virtual COLORREF GetTextColor(const XTButtonState& state, const XTButtonColors& colors) const;

private:
    void DrawContent(HDC dc, const RECT& rect, const XTButtonState& state, const XTButtonContent& content,
                     const XTButtonColors& colors) const;
};
