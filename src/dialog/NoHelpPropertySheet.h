// CNoHelpPropertySheet: a property sheet without a Help button. Its Apply button is always enabled and applies every
// page at once, or it is not shown at all; all pages are created when the sheet opens.
//
//     class COptionsSheet : public CNoHelpPropertySheet
//     {
//         CGeneralPage m_general;
//         CColorPage m_colors;
//
//     public:
//         explicit COptionsSheet(CWnd* parent) : CNoHelpPropertySheet(L"选项", parent, 0)
//         {
//             AddPage(&m_general);
//             AddPage(&m_colors);
//             SetShowApply(false);
//         }
//     };
//
//     COptionsSheet sheet(this);
//     if (sheet.DoModal() == IDOK) ...
//
// Creating all pages means that each is activated once before the user sees the sheet: OnSetActive and OnKillActive of
// every page run, and with them the exchange and validation of its data. A page that refuses to let go (OnKillActive)
// stays, and the pages after it are created when the user goes there.
//
// The sheet and its pages must outlive the window; pages stay the caller's.
#pragma once

#include <afxwin.h>
#include <afxdlgs.h>

#include "base/ZnktApi.h"

class ZNKT_API CNoHelpPropertySheet : public CPropertySheet
{
    DECLARE_DYNCREATE(CNoHelpPropertySheet)

public:
    CNoHelpPropertySheet();
    explicit CNoHelpPropertySheet(UINT nIDCaption, CWnd* pParentWnd = NULL, UINT iSelectPage = 0);
    explicit CNoHelpPropertySheet(const wchar_t* pszCaption, CWnd* pParentWnd = NULL, UINT iSelectPage = 0);
    virtual ~CNoHelpPropertySheet();

    // Both are on at first. SetShowApply counts when the sheet opens, SetApplyAllPages at every Apply.
    void SetApplyAllPages(bool applyAllPages) { m_bApplyAllPages = applyAllPages; }
    void SetShowApply(bool showApply) { m_bShowApply = showApply; }
    bool GetApplyAllPages() const { return m_bApplyAllPages; }
    bool GetShowApply() const { return m_bShowApply; }

    virtual BOOL OnInitDialog();

    // What the Apply button does: calls OnApply of the active page and, when all pages are applied, of the others in
    // their order. FALSE as soon as a page answers FALSE: the pages after it are not called. TRUE also when no page is
    // active. The pages are called directly: they do not get OnKillActive, so the base class of the page has not read
    // its controls; a page that needs them calls UpdateData in its OnApply.
    virtual int OnApply();

protected:
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);

    bool m_bApplyAllPages;
    bool m_bShowApply;

private:
    CNoHelpPropertySheet(const CNoHelpPropertySheet&);
    CNoHelpPropertySheet& operator=(const CNoHelpPropertySheet&);

    void MakeRoomForHelp();
    void SwitchButtons();
    void MoveButton(int id);
    void CreateAllPages();
};
