// CXTButton: a push button drawn by a theme, with an icon, a caption or both, a hot look and a checked state.
//
//   CXTButton m_tree;                                        // DDX_Control(pDX, IDC_TREE, m_tree), or Create
//   m_tree.SetXButtonStyle(0x1021);                          // flat, shown pressed in while checked
//   m_tree.SetTheme(new CXTToolbarButtonTheme());            // owned by the button
//   m_tree.SetIcon(CSize(16, 16), icon);                     // the icon stays the caller's
//   m_tree.SetChecked(TRUE);
//
// Clicks arrive as BN_CLICKED. A click never changes the checked state: the owner's handler does. The button becomes
// owner-drawn, so its parent must be a window of the framework whose OnDrawItem, if any, calls the base.
#pragma once

#include "xtp/Api.h"
#include "xtp/button/XTButtonStyles.h"
#include "afx/ctrl/Button.h"

#include <memory>

class CXTButtonTheme;
struct XTButtonContent;

class XTP_API CXTButton : public CButton
{
    DECLARE_DYNCREATE(CXTButton)

public:
    // `theme`: run-time class of a CXTButtonTheme that can be created by it; anything else, or NULL, gives the default.
    explicit CXTButton(CRuntimeClass* theme = nullptr);
    ~CXTButton() override;

    // BS_XT_ bits; returns the previous ones.
    DWORD SetXButtonStyle(DWORD style, BOOL redraw = TRUE);
    DWORD GetXButtonStyle() const { return m_style; }

    // Takes the theme over; NULL goes back to the default theme.
    void SetTheme(CXTButtonTheme* theme);
    CXTButtonTheme* GetTheme() const { return m_theme.get(); }

    // Draws the icon in that size; `pressed`, if any, while the button is in. The handles are borrowed for as long as
    // the button draws. FALSE, and no change, for an icon of NULL or a size without area.
    BOOL SetIcon(CSize size, HICON icon, HICON pressed = nullptr, BOOL redraw = TRUE);
    // The same from the current resources; the button owns what it loads. 0 as `pressed` means none.
    BOOL SetIcon(CSize size, UINT icon, UINT pressed = 0, BOOL redraw = TRUE);
    HICON GetIcon() const { return m_icon; }

    BOOL GetChecked() const { return m_checked; }
    void SetChecked(BOOL checked);

    // The mouse is over the button, or the button holds the mouse.
    BOOL IsHot() const { return m_hot; }

    void DrawItem(LPDRAWITEMSTRUCT drawItem) override;

protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    void PreSubclassWindow() override;

    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnEnable(BOOL enable);
    afx_msg UINT OnGetDlgCode();
    afx_msg LRESULT OnGetCheck(WPARAM, LPARAM);
    afx_msg LRESULT OnSetCheck(WPARAM check, LPARAM);
    afx_msg LRESULT OnSetStyle(WPARAM style, LPARAM redraw);

    DECLARE_MESSAGE_MAP()

private:
    struct OwnedIcons;

    void SetHot(BOOL hot);
    void TakeIcons(CSize size, HICON icon, HICON pressed, BOOL redraw);
    void Redraw(BOOL redraw);
    void Paint(HDC dc, const RECT& rect, UINT itemState) const;
    void FillBackground(HDC dc, const RECT& rect) const;
    const CXTButtonTheme& GetDrawTheme() const;
    XTButtonState GetDrawState(UINT itemState) const;
    XTButtonContent GetContent(const XTButtonState& state) const;

    DWORD m_style;
    std::unique_ptr<CXTButtonTheme> m_theme;
    std::unique_ptr<OwnedIcons> m_ownedIcons;
    HICON m_icon;
    HICON m_pressedIcon;
    CSize m_iconSize;
    BOOL m_checked;
    BOOL m_hot;
    BOOL m_default;
};
