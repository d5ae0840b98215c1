// A flat push button that shows a bitmap, an icon or its caption: a raised frame while the mouse is over it, a sunken
// one while it is pressed or checked.
//
//     CMyButton m_dock; // DDX_Control; the template gives the control the style BS_ICON, BS_BITMAP or none of them
//     m_dock.SetIcon(pinUp);
//     m_dock.SetCheckedIcon(pinDown);
//     m_dock.SetCheck(!m_dock.GetCheck()); // on BN_CLICKED: the button does not toggle by itself
//
// The button becomes a visible, owner-drawn one with a tab stop, whatever else its style said. Its parent must be a
// window of the framework, which hands the drawing down. While the mouse is over the button it has the mouse captured.
#pragma once

#include <afxwin.h>

class CMyButton : public CButton
{
    DECLARE_DYNAMIC(CMyButton)

public:
    CMyButton();
    virtual ~CMyButton();

    // Any state but 0 is checked; drawn at once.
    void SetCheck(int state);
    int GetCheck() const { return m_checked; }

    // A picture for a button with BS_BITMAP: copied into the upper left corner of one that fills the button inside its
    // frame. Null or a handle that is no bitmap takes the picture away.
    void SetBitmap(HBITMAP bitmap);

    // Pictures for a button with BS_ICON, always and while it is checked, from its next drawing on. The icons stay the
    // caller's and must live as long as the button shows them. Null takes them away; a button without an icon shows its
    // caption.
    void SetIcon(HICON icon);
    void SetCheckedIcon(HICON icon);

    // Whether the mouse is over the button, and whether it has the focus.
    bool IsHovering() const { return m_hovering; }
    bool IsFocused() const { return m_focused; }

    // The colour behind everything: at first that of buttons.
    void SetBackgroundColor(COLORREF color);

    virtual void DrawItem(LPDRAWITEMSTRUCT drawItem);

protected:
    virtual void PreSubclassWindow();

    DECLARE_MESSAGE_MAP()

    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg void OnSetFocus(CWnd* oldWindow);
    afx_msg void OnKillFocus(CWnd* newWindow);

private:
    CMyButton(const CMyButton&);
    CMyButton& operator=(const CMyButton&);

    // Of the hover frame.
    enum HoverState
    {
        IDLE = 0,
        HOVERED = 1,
        PRESSED = 2
    };

    void DrawNow(bool hovered);
    void DrawContent(CDC& dc, const CRect& client);
    HICON ShownIcon() const;
    void ReleaseMouse();
    void Reset();

    bool m_hovering;
    bool m_focused;
    DWORD m_style;
    int m_checked;
    int m_hoverState;
    UINT m_drawState; // ODS_ bits of the last drawing
    HFONT m_font;     // the parent's: a handle, as the framework's object for it is a temporary one
    CBitmap* m_bitmap;
    HICON m_icon;
    HICON m_checkedIcon;
    COLORREF m_background;
};
