// A dialog made of a template in memory that runs a piece of the test once it is shown and idle, and counts its calls.
#pragma once

#include <afxwin.h>
#include <afxpriv.h>

#include <functional>

#include "DialogTemplate.h"

const int IDC_FIRST_EDIT = 101;
const int IDC_SECOND_EDIT = 102;
const int IDC_MEMO = 103;
const int IDC_APPLY = 104;
const UINT ID_OWNER_COMMAND = 0x8123;

class ScriptedDialog : public CDialog
{
public:
    typedef std::function<void(ScriptedDialog&)> Script;

    explicit ScriptedDialog(Script script = Script()) : m_script(script) {}

    using CDialog::EndDialog;
    using CDialog::OnCancel;
    using CDialog::OnOK;

    // Runs the dialog with its usual controls over owner.
    INT_PTR Run(CWnd* owner)
    {
        DialogTemplate form = Form();
        InitModalIndirect(form.Get(), owner);
        return DoModal();
    }

    static DialogTemplate Form(DWORD style = DialogTemplate::ModalStyle)
    {
        DialogTemplate form(L"Form", 160, 100, style);
        form.Edit(IDC_FIRST_EDIT, 10, 10).Edit(IDC_SECOND_EDIT, 10, 25);
        form.Edit(IDC_MEMO, 80, 10, 60, 40, ES_MULTILINE);
        form.DefaultButton(IDOK, L"OK", 10, 70)
            .Button(IDCANCEL, L"Cancel", 60, 70)
            .Button(IDC_APPLY, L"Apply", 110, 70);
        return form;
    }

    void Key(int controlId, UINT key) { ::PostMessage(::GetDlgItem(m_hWnd, controlId), WM_KEYDOWN, key, 0); }

    std::function<BOOL(ScriptedDialog&)> m_onInit;
    int m_exchanges = 0;
    int m_applies = 0;
    int m_keysSeen = 0;
    int m_lastCalls = 0;

protected:
    void DoDataExchange(CDataExchange* exchange) override
    {
        CDialog::DoDataExchange(exchange);
        ++m_exchanges;
    }

    BOOL OnInitDialog() override
    {
        const BOOL result = CDialog::OnInitDialog();
        return m_onInit ? m_onInit(*this) : result;
    }

    BOOL PreTranslateMessage(MSG* message) override
    {
        m_keysSeen += message->message == WM_KEYDOWN;
        return CDialog::PreTranslateMessage(message);
    }

    void PostNcDestroy() override
    {
        ++m_lastCalls;
        CDialog::PostNcDestroy();
    }

    afx_msg void OnApply() { ++m_applies; }

    afx_msg LRESULT OnKickIdle(WPARAM, LPARAM)
    {
        const Script script = m_script;
        m_script = Script();
        if (script)
            script(*this);
        return FALSE;
    }

    DECLARE_MESSAGE_MAP()

private:
    Script m_script;
};

// The window over which the dialogs run; it knows one command.
class OwnerWindow : public CWnd
{
public:
    OwnerWindow()
    {
        CreateEx(0, AfxRegisterWndClass(0), L"Owner", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(100, 80, 700, 500),
                 nullptr, 0);
    }
    ~OwnerWindow() override { DestroyWindow(); }

    int m_commands = 0;

protected:
    afx_msg void OnOwnerCommand() { ++m_commands; }

    DECLARE_MESSAGE_MAP()
};
