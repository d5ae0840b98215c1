// CDialog: a dialog box made of a template, modal (DoModal) or modeless (Create).
//
// The template is looked up through AfxFindResourceHandle when DoModal or Create runs, not at construction. A modal
// dialog runs a message loop of this framework, so PreTranslateMessage and idle processing work inside it; its parent
// is disabled meanwhile. DoModal returns what EndDialog was given, -1 where the dialog couldn't be made.
// OnInitDialog: return TRUE to let the system set the focus to the first tab stop.
#pragma once

#include "afx/wnd/Wnd.h"

class AFX_API CDialog : public CWnd
{
    DECLARE_DYNAMIC(CDialog)

public:
    CDialog();
    explicit CDialog(LPCTSTR templateName, CWnd* parent = nullptr);
    explicit CDialog(UINT templateId, CWnd* parent = nullptr);
    ~CDialog() override;

    // Modeless. Without a parent the main window owns the dialog.
    virtual BOOL Create(LPCTSTR templateName, CWnd* parent = nullptr);
    virtual BOOL Create(UINT templateId, CWnd* parent = nullptr);
    virtual BOOL CreateIndirect(LPCDLGTEMPLATE dialogTemplate, CWnd* parent = nullptr, void* init = nullptr);
    virtual BOOL CreateIndirect(HGLOBAL dialogTemplate, CWnd* parent = nullptr);

    // Modal, from memory: the template must live until DoModal returns.
    BOOL InitModalIndirect(LPCDLGTEMPLATE dialogTemplate, CWnd* parent = nullptr, void* init = nullptr);
    BOOL InitModalIndirect(HGLOBAL dialogTemplate, CWnd* parent = nullptr);
    virtual INT_PTR DoModal();

    // Moves the focus, as the Tab key does.
    void NextDlgCtrl() const { ::SendMessage(m_hWnd, WM_NEXTDLGCTL, 0, 0); }
    void PrevDlgCtrl() const { ::SendMessage(m_hWnd, WM_NEXTDLGCTL, 1, 0); }
    void GotoDlgCtrl(CWnd* control) { ::SendMessage(m_hWnd, WM_NEXTDLGCTL, WPARAM(control->m_hWnd), TRUE); }

    // The default button. GetDefID: id in the low word, DC_HASDEFID in the high word.
    void SetDefID(UINT id) { ::SendMessage(m_hWnd, DM_SETDEFID, id, 0); }
    DWORD GetDefID() const { return static_cast<DWORD>(::SendMessage(m_hWnd, DM_GETDEFID, 0, 0)); }
    // From dialog units to pixels.
    void MapDialogRect(LPRECT rect) const { ::MapDialogRect(m_hWnd, rect); }
    void SetHelpID(UINT id) { m_nIDHelp = id; }

    // Ends a modal dialog; may be called in OnInitDialog already.
    void EndDialog(int result);

    // Overridables. The base OnInitDialog fills the controls (UpdateData(FALSE)).
    virtual BOOL OnInitDialog();
    virtual void OnSetFont(CFont* font);

    BOOL PreTranslateMessage(MSG* message) override;
    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo) override;
    BOOL CheckAutoCenter() override;

protected:
    // The base OnOK stays in the dialog when a control's value is wrong.
    virtual void OnOK();
    virtual void OnCancel();
    // Runs before the controls get their values.
    virtual void PreInitDialog();

    afx_msg LRESULT HandleInitDialog(WPARAM focus, LPARAM initParameter);
    afx_msg LRESULT HandleSetFont(WPARAM font, LPARAM redraw);

    DECLARE_MESSAGE_MAP()

    UINT m_nIDHelp = 0;
    LPCTSTR m_lpszTemplateName = nullptr;        // name or MAKEINTRESOURCE
    HGLOBAL m_hDialogTemplate = nullptr;         // indirect (memory handle)
    LPCDLGTEMPLATE m_lpDialogTemplate = nullptr; // indirect
    void* m_lpDialogInit = nullptr;
    CWnd* m_pParentWnd = nullptr; // parent of a modal dialog

private:
    BOOL CreateFromTemplate(LPCDLGTEMPLATE dialogTemplate, HWND parent, HINSTANCE instance);
    void RunModal(LPCDLGTEMPLATE dialogTemplate, HINSTANCE instance);
    void HideModal(HWND parent);
    bool IsEscapeInMultilineEdit(const MSG& message) const;

    bool m_templateHasPlace = false; // of the template in use
};
