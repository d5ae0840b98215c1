// CPropertyPage: one page of a property sheet, a dialog made of a template without caption and frame.
//
// Create page objects (members of the sheet or of its caller) and give them to CPropertySheet::AddPage; they must live
// as long as the sheet. The window of a page comes when the page is first shown. The sheet tells the page what happens:
//
//   OnSetActive / OnKillActive   the page comes and goes; FALSE from OnKillActive keeps the user on the page. The base
//                                fills the controls when the page comes again, and reads and validates them when it
//                                goes
//   OnApply                      OK or Apply of the sheet; FALSE keeps the sheet open. The base calls OnOK
//   OnQueryCancel / OnReset      Cancel: may it be? (FALSE: no) and it is. The base OnReset calls OnCancel
//   OnWizardBack / Next / Finish the buttons of a wizard: 0 goes on, -1 stays; OnWizardFinish TRUE ends the wizard
//
// A page is shown in the font of the sheet whatever font its template names: the sheet keeps room for its pages in
// units of its own font.
//
// A page whose template is missing cannot be shown: the sheet refuses to open, or to take it when it is open.
#pragma once

#include "afx/dialog/Dialog.h"

#include <prsht.h>

#include <vector>

class CPropertySheet;
struct TemplateFont;

class AFX_API CPropertyPage : public CDialog
{
    DECLARE_DYNAMIC(CPropertyPage)

public:
    CPropertyPage();
    // captionId 0: the caption of the template is the text of the tab.
    explicit CPropertyPage(UINT templateId, UINT captionId = 0, DWORD size = sizeof(PROPSHEETPAGE));
    explicit CPropertyPage(LPCTSTR templateName, UINT captionId = 0, DWORD size = sizeof(PROPSHEETPAGE));
    void Construct(UINT templateId, UINT captionId = 0);
    void Construct(LPCTSTR templateName, UINT captionId = 0);

    // May be changed before the page is added. pszTemplate is looked up when the page is handed to the system.
    PROPSHEETPAGE m_psp = {};

    PROPSHEETPAGE& GetPSP() { return m_psp; }

    // These do nothing for a page that has no window yet.
    void CancelToClose(); // what was done cannot be undone: OK becomes Close
    void SetModified(BOOL changed = TRUE);
    // Asks the pages that exist, in their order, until one answers with something else than 0.
    LRESULT QuerySiblings(WPARAM wParam, LPARAM lParam);

    virtual BOOL OnApply();
    virtual void OnReset();
    void OnOK() override;
    void OnCancel() override;
    virtual BOOL OnSetActive();
    virtual BOOL OnKillActive();
    virtual BOOL OnQueryCancel();
    virtual LRESULT OnWizardBack();
    virtual LRESULT OnWizardNext();
    virtual BOOL OnWizardFinish();
    virtual LRESULT OnQuerySiblings(WPARAM wParam, LPARAM lParam);

    // The keyboard belongs to the whole sheet.
    BOOL PreTranslateMessage(MSG* message) override;

protected:
    friend class CPropertySheet;

    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override;

    afx_msg LRESULT HandleQuerySiblings(WPARAM wParam, LPARAM lParam);

    DECLARE_MESSAGE_MAP()

    CString m_strCaption;
    BOOL m_bFirstSetActive = TRUE; // OnInitDialog fills the controls the first time

private:
    static UINT CALLBACK PageCallback(HWND window, UINT message, PROPSHEETPAGE* page);

    CPropertySheet* GetParentSheet() const;
    bool Answer(UINT code, LRESULT& result);
    // What the system is given; false when there is no template.
    bool MakeSystemPage(PROPSHEETPAGE& page, const TemplateFont& font);

    std::vector<BYTE> m_template; // what the system makes the window of, in the font of the sheet
};
