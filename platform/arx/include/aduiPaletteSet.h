// CAdUiPaletteSet: a dockable bar that holds palettes, one visible at a time, the others behind tabs.
//
//     CAdUiPaletteSet* set = new CMySet;
//     set->Create(_T("Name"), WS_OVERLAPPED | WS_DLGFRAME, rect, acedGetAcadFrame(), PSS_CLOSE_BUTTON |
//     PSS_AUTO_ROLLUP); palette->Create(WS_CHILD | WS_VISIBLE, _T("Name"), set); set->AddPalette(palette);
//     set->SetToolID(&clsid);
//     set->EnableDocking(CBRS_ALIGN_ANY);
//     set->RestoreControlBar(AFX_IDW_DOCKBAR_LEFT);
//     acedGetAcadFrame()->ShowControlBar(set, TRUE, FALSE);
#pragma once

#include "aduiDock.h"

#include "aduiPalette.h"

#include <vector>

// Styles of a palette set.
#define PSS_AUTO_ROLLUP 0x00000002
#define PSS_PROPERTIES_MENU 0x00000004
#define PSS_CLOSE_BUTTON 0x00000008
#define PSS_EDIT_NAME 0x00000010
#define PSS_SNAP 0x00000020

// Style of a palette: its name may be edited by the user.
#define PS_EDIT_NAME 0x00000001

class ARX_API CAdUiPaletteSet : public CAdUiDockControlBar
{
    DECLARE_DYNCREATE(CAdUiPaletteSet)

public:
    explicit CAdUiPaletteSet(int nStyle = 0);
    virtual ~CAdUiPaletteSet();

    // Creates the set, hidden and floating in `rect` (screen coordinates). pParent is the host's frame.
    virtual BOOL Create(LPCTSTR lpszTitle, DWORD dwStyle, const RECT& rect, CWnd* pParent,
                        DWORD dwPaletteSetStyle = PSS_PROPERTIES_MENU | PSS_AUTO_ROLLUP | PSS_CLOSE_BUTTON);

    // Palettes are borrowed: their owner destroys them, before the set or behind it; one whose window ends is taken out
    // of the set. AddPalette answers the index, -1 on failure (NULL, without a window, already there). The first
    // palette added becomes the active one. RemovePalette hides the palette and activates its neighbour; FALSE for a
    // bad index.
    int AddPalette(CAdUiPalette* pPalette);
    BOOL RemovePalette(int nPaletteIndex);
    int GetPaletteCount() const;
    CAdUiPalette* GetPalette(int nPaletteIndex) const;
    BOOL SetActivePalette(int nPaletteIndex);
    CAdUiPalette* GetActivePalette() const;
    int GetActivePaletteTabIndex() const;

    // Styles (PSS_).
    DWORD GetPaletteSetStyle() const;
    void SetPaletteSetStyle(DWORD dwStyle);
    BOOL AutoRollupStyle() const;
    BOOL PropertiesMenuStyle() const;
    BOOL CloseButtonStyle() const;
    BOOL EditNameStyle() const;

    // Roll-up of a floating set to its caption. Automatic roll-up needs PSS_AUTO_ROLLUP (FALSE without).
    BOOL GetAutoRollup() const;
    BOOL SetAutoRollup(BOOL bAutoRollup);
    BOOL GetRolledUp() const;
    void RollUp();
    void RollDown();
    // The rectangle in screen coordinates that the set fills, or would fill if it were not rolled up.
    void GetFullRect(CRect& rect) const;

    // Opacity of a floating set in percent; 100 is solid. SetOpacity is FALSE outside 10 to 100.
    int GetOpacity() const;
    BOOL SetOpacity(int nOpacity);

    // Persistence of the palettes: each palette's Load and Save.
    virtual BOOL Load(IUnknown* pUnk);
    virtual BOOL Save(IUnknown* pUnk);

    virtual void GetMinimumSize(CSize& size);
    virtual bool CanFrameworkTakeFocus();

protected:
    virtual bool HasCloseButton() const;
    virtual bool HasRollUpButton() const;
    virtual bool HasMenu() const;
    virtual void LayOutContents(const CRect& area);
    virtual void DrawContents(CDC& dc, const CRect& area);
    virtual bool ContentsClicked(CPoint point);
    virtual void LayoutRestored(const arxui::PaletteLayout& layout);
    virtual void LayoutSaving(arxui::PaletteLayout& layout);

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnParentNotify(UINT message, LPARAM lParam);

    DECLARE_MESSAGE_MAP()

private:
    void ShowActive();
    void ApplyOpacity();
    CRect TabArea(const CRect& area) const;
    CRect TabAt(const CRect& tabs, int index) const;

    std::vector<CAdUiPalette*> m_palettes;
    int m_active;
    DWORD m_setStyle;
    int m_opacity;
};
