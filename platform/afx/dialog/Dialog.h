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

    // Modeless.
    virtual BOOL Create(LPCTSTR templateName, CWnd* parent = nullptr);
    virtual BOOL Create(UINT templateId, CWnd* parent = nullptr);
    virtual BOOL CreateIndirect(LPCDLGTEMPLATE dialogTemplate, CWnd* parent = nullptr, void* init = nullptr);
    virtual BOOL CreateIndirect(HGLOBAL dialogTemplate, CWnd* parent = nullptr);

    // Modal, from memory: the template must live until DoModal returns.
    BOOL InitModalIndirect(LPCDLGTEMPLATE dialogTemplate, CWnd* parent = nullptr, void* init = nullptr);
    BOOL InitModalIndirect(HGLOBAL dialogTemplate, CWnd* parent = nullptr);
    virtual INT_PTR DoModal();

    // Moves the focus, as the Tab key does.
    void NextDlgCtrl() const;
    void PrevDlgCtrl() const;
    void GotoDlgCtrl(CWnd* control);

    void SetDefID(UINT id);
    DWORD GetDefID() const;
    void MapDialogRect(LPRECT rect) const;
    void SetHelpID(UINT id) { m_nIDHelp = id; }

    // Ends a modal dialog; may be called in OnInitDialog already.
    void EndDialog(int result);

    // Overridables.
    virtual BOOL OnInitDialog();
    virtual void OnSetFont(CFont* font);

    BOOL PreTranslateMessage(MSG* message) override;
    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo) override;

protected:
    virtual void OnOK();
    virtual void OnCancel();
    // Runs before the controls get their values.
    virtual void PreInitDialog();

    BOOL CheckAutoCenter() override;

    afx_msg LRESULT HandleInitDialog(WPARAM focus, LPARAM initParameter);
    afx_msg LRESULT HandleSetFont(WPARAM font, LPARAM redraw);
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT kind);

    UINT m_nIDHelp = 0;
    LPCTSTR m_lpszTemplateName = nullptr; // name or MAKEINTRESOURCE
    HGLOBAL m_hDialogTemplate = nullptr; // indirect (memory handle)
    LPCDLGTEMPLATE m_lpDialogTemplate = nullptr; // indirect
    void* m_lpDialogInit = nullptr;
    CWnd* m_pParentWnd = nullptr;

    DECLARE_MESSAGE_MAP()

private:
    class LockedTemplate;
    class DisabledParent;

    BOOL CreateFromTemplate(LPCDLGTEMPLATE dialogTemplate, HWND parent, HINSTANCE instance);
    HWND ModalParent() const;
    void RunModal(const LockedTemplate& locked, HWND parent);
    BOOL LeaveKeyToDefault(const MSG& message) const;
};
