// CPropertySheet: the tabbed dialog of the system (or a wizard), modal (DoModal) or modeless (Create).
//
//     CPropertySheet sheet(L"Options", this);
//     sheet.AddPage(&m_general);                        // pages stay the caller's
//     sheet.AddPage(&m_colors);
//     if (sheet.DoModal() == IDOK) ...
//
// DoModal gives the id of the button that ended the sheet (IDOK, IDCANCEL, ID_WIZFINISH) or what EndDialog was given,
// -1 when the sheet couldn't be made: it has no page, or a page has no template. A modal sheet runs a message loop of
// this framework; its parent is disabled meanwhile. A modeless sheet has no buttons of its own: its row of buttons is
// hidden and its frame closes up; end it by DestroyWindow.
//
// The window of the sheet is the system's: OnInitDialog runs for both kinds once the system has laid the sheet out and
// shown the start page. Flags and further properties go into m_psh before the sheet opens.
#pragma once

#include "afx/dialog/PropertyPage.h"

#include <vector>

class CTabCtrl;

class AFX_API CPropertySheet : public CWnd
{
    DECLARE_DYNAMIC(CPropertySheet)

public:
    CPropertySheet();
    explicit CPropertySheet(UINT captionId, CWnd* parent = nullptr, UINT selectedPage = 0);
    explicit CPropertySheet(LPCTSTR caption, CWnd* parent = nullptr, UINT selectedPage = 0);
    ~CPropertySheet() override;
    void Construct(UINT captionId, CWnd* parent = nullptr, UINT selectedPage = 0);
    void Construct(LPCTSTR caption, CWnd* parent = nullptr, UINT selectedPage = 0);

    PROPSHEETHEADER m_psh = {}; // nStartPage is the page to start with; pages and caption are filled in at opening

    virtual INT_PTR DoModal();
    // style -1: a popup with a caption.
    virtual BOOL Create(CWnd* parent = nullptr, DWORD style = static_cast<DWORD>(-1), DWORD exStyle = 0);

    // Pages, before or while the sheet is open. Null is ignored.
    void AddPage(CPropertyPage* page);
    void RemovePage(CPropertyPage* page);
    void RemovePage(int index);
    int GetPageCount() const;
    CPropertyPage* GetPage(int index) const;     // throws the invalid-argument exception for a bad index
    int GetPageIndex(CPropertyPage* page) const; // -1: not of this sheet
    int GetActiveIndex() const;                  // before opening: the page to start with
    CPropertyPage* GetActivePage() const;        // NULL: there is none
    BOOL SetActivePage(int index);               // FALSE: no such page, or the active page doesn't let go
    BOOL SetActivePage(CPropertyPage* page);

    void SetTitle(LPCTSTR text, UINT style = 0); // PSH_PROPTITLE: the system adds a word for "properties"
    CTabCtrl* GetTabControl() const;
    BOOL PressButton(int button); // PSBTN_
    // Ends a modal sheet with this result without asking the pages; destroys a modeless one.
    void EndDialog(int result);

    void SetWizardMode() { m_psh.dwFlags |= PSH_WIZARD; }
    BOOL IsWizard() const { return (m_psh.dwFlags & PSH_WIZARD) != 0; }
    BOOL IsModeless() const { return m_bModeless; }
    void SetWizardButtons(DWORD flags); // PSWIZB_
    void SetFinishText(LPCTSTR text);

    // The base hides the buttons of a modeless sheet.
    virtual BOOL OnInitDialog();

    BOOL PreTranslateMessage(MSG* message) override;
    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo) override;
    BOOL ContinueModal() override;

protected:
    // Remembers the button that ends the sheet.
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

    afx_msg void OnClose();
    afx_msg LRESULT HandleInitDialog(WPARAM focus, LPARAM initParameter);
    afx_msg LRESULT HandlePressButton(WPARAM button, LPARAM);

    DECLARE_MESSAGE_MAP()

    CWnd* m_pParentWnd = nullptr;
    CPtrArray m_pages; // CPropertyPage*
    CString m_strCaption;
    BOOL m_bModeless = FALSE;

private:
    static int CALLBACK SheetCallback(HWND window, UINT message, LPARAM lParam);

    bool MakePages();
    bool CreateSheet(HWND parent);
    void HideButtons();

    std::vector<PROPSHEETPAGE> m_systemPages;
    DWORD m_style = 0; // of a modeless sheet
    DWORD m_exStyle = 0;
};
