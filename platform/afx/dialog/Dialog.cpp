#include "afx/dialog/Dialog.h"

#include "afx/app/Resource.h"
#include "afx/app/WinApp.h"
#include "afx/dialog/DialogCommands.h"
#include "afx/dialog/DialogProcedure.h"
#include "afx/dialog/DialogTemplateLock.h"
#include "afx/dialog/DisabledWindow.h"
#include "afx/gdi/GdiObject.h"
#include "afx/wnd/MessageMacros.h"

IMPLEMENT_DYNAMIC(CDialog, CWnd)

BEGIN_MESSAGE_MAP(CDialog, CWnd)
    ON_COMMAND(IDOK, &CDialog::OnOK)
    ON_COMMAND(IDCANCEL, &CDialog::OnCancel)
    ON_MESSAGE(WM_INITDIALOG, &CDialog::HandleInitDialog)
    ON_MESSAGE(WM_SETFONT, &CDialog::HandleSetFont)
END_MESSAGE_MAP()

namespace
{
const int CreationFailed = -1;
const size_t ClassNameSize = 32;
} // namespace

INT_PTR CALLBACK DialogProcedure(HWND window, UINT message, WPARAM, LPARAM)
{
    if (message != WM_INITDIALOG)
        return FALSE;
    CDialog* const dialog = DYNAMIC_DOWNCAST(CDialog, CWnd::FromHandlePermanent(window));
    return dialog == nullptr || dialog->OnInitDialog();
}

CDialog::CDialog() = default;

CDialog::CDialog(LPCTSTR templateName, CWnd* parent) : m_lpszTemplateName(templateName), m_pParentWnd(parent) {}

CDialog::CDialog(UINT templateId, CWnd* parent)
    : m_nIDHelp(templateId), m_lpszTemplateName(MAKEINTRESOURCE(templateId)), m_pParentWnd(parent)
{
}

CDialog::~CDialog()
{
    if (m_hWnd != nullptr)
        DestroyWindow();
}

BOOL CDialog::Create(LPCTSTR templateName, CWnd* parent)
{
    m_lpszTemplateName = templateName;
    if (IS_INTRESOURCE(templateName) && m_nIDHelp == 0)
        m_nIDHelp = LOWORD(reinterpret_cast<UINT_PTR>(templateName));
    const CDialogTemplateLock lock(templateName);
    const CWnd* const owner = parent == nullptr ? AfxGetMainWnd() : parent;
    return CreateFromTemplate(lock.Get(), owner->GetSafeHwnd(), lock.Instance());
}

BOOL CDialog::Create(UINT templateId, CWnd* parent)
{
    return Create(MAKEINTRESOURCE(templateId), parent);
}

BOOL CDialog::CreateIndirect(LPCDLGTEMPLATE dialogTemplate, CWnd* parent, void* init)
{
    m_lpDialogInit = init;
    const CWnd* const owner = parent == nullptr ? AfxGetMainWnd() : parent;
    return CreateFromTemplate(dialogTemplate, owner->GetSafeHwnd(), AfxGetResourceHandle());
}

BOOL CDialog::CreateIndirect(HGLOBAL dialogTemplate, CWnd* parent)
{
    const CDialogTemplateLock lock(dialogTemplate);
    return CreateIndirect(lock.Get(), parent);
}

BOOL CDialog::InitModalIndirect(LPCDLGTEMPLATE dialogTemplate, CWnd* parent, void* init)
{
    m_lpDialogTemplate = dialogTemplate;
    m_lpDialogInit = init;
    m_pParentWnd = parent;
    return dialogTemplate != nullptr;
}

BOOL CDialog::InitModalIndirect(HGLOBAL dialogTemplate, CWnd* parent)
{
    m_hDialogTemplate = dialogTemplate;
    m_pParentWnd = parent;
    return dialogTemplate != nullptr;
}

INT_PTR CDialog::DoModal()
{
    if (m_lpDialogTemplate != nullptr)
    {
        RunModal(m_lpDialogTemplate, AfxGetResourceHandle());
        return m_nModalResult;
    }
    if (m_hDialogTemplate != nullptr)
    {
        const CDialogTemplateLock lock(m_hDialogTemplate);
        RunModal(lock.Get(), AfxGetResourceHandle());
        return m_nModalResult;
    }
    const CDialogTemplateLock lock(m_lpszTemplateName);
    RunModal(lock.Get(), lock.Instance());
    return m_nModalResult;
}

void CDialog::EndDialog(int result)
{
    if (m_nFlags & (WF_MODALLOOP | WF_CONTINUEMODAL))
        EndModalLoop(result);
    else
        ::EndDialog(m_hWnd, result); // a dialog of the system
}

BOOL CDialog::OnInitDialog()
{
    BOOL filled = TRUE;
    if (m_lpDialogInit != nullptr)
        filled = ExecuteDlgInit(m_lpDialogInit);
    else if (m_lpszTemplateName != nullptr)
        filled = ExecuteDlgInit(m_lpszTemplateName);
    if (!filled || !UpdateData(FALSE))
    {
        EndDialog(CreationFailed);
        return FALSE;
    }
    return TRUE;
}

void CDialog::OnSetFont(CFont*)
{
    Default();
}

BOOL CDialog::PreTranslateMessage(MSG* message)
{
    if (CWnd::PreTranslateMessage(message))
        return TRUE;
    if (IsEscapeInMultilineEdit(*message))
    {
        SendMessage(WM_COMMAND, IDCANCEL);
        return TRUE;
    }
    return PreTranslateInput(message);
}

BOOL CDialog::OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo)
{
    return CWnd::OnCmdMsg(id, code, extra, handlerInfo) || OfferToOwnerAndThread(*this, id, code, extra, handlerInfo);
}

BOOL CDialog::CheckAutoCenter()
{
    return !m_templateHasPlace;
}

void CDialog::OnOK()
{
    if (UpdateData(TRUE))
        EndDialog(IDOK);
}

void CDialog::OnCancel()
{
    EndDialog(IDCANCEL);
}

void CDialog::PreInitDialog() {}

LRESULT CDialog::HandleInitDialog(WPARAM, LPARAM)
{
    PreInitDialog();
    return Default(); // reaches OnInitDialog through the dialog procedure
}

LRESULT CDialog::HandleSetFont(WPARAM font, LPARAM)
{
    OnSetFont(CFont::FromHandle(reinterpret_cast<HFONT>(font)));
    return 0;
}

BOOL CDialog::CreateFromTemplate(LPCDLGTEMPLATE dialogTemplate, HWND parent, HINSTANCE instance)
{
    if (dialogTemplate == nullptr)
        return FALSE;
    m_templateHasPlace = CDialogTemplateLock::HasPlace(dialogTemplate);
    AfxHookWindowCreate(this);
    const HWND window = ::CreateDialogIndirect(instance, dialogTemplate, parent, &DialogProcedure);
    // An object whose window never came gets its last call here; otherwise the window made it.
    if (!AfxUnhookWindowCreate() && window == nullptr)
        PostNcDestroy();
    return window != nullptr;
}

void CDialog::RunModal(LPCDLGTEMPLATE dialogTemplate, HINSTANCE instance)
{
    m_nModalResult = CreationFailed;
    HWND top = nullptr;
    const HWND parent = CWnd::GetSafeOwner(m_pParentWnd, &top)->GetSafeHwnd();
    DisabledWindow disabledTop(top);
    DisabledWindow disabledParent(parent);

    m_nFlags |= WF_CONTINUEMODAL;
    const BOOL created = CreateFromTemplate(dialogTemplate, parent, instance);
    if (created && (m_nFlags & WF_CONTINUEMODAL)) // OnInitDialog may have ended it
        RunModalLoop(MLF_SHOWONIDLE | ((GetStyle() & DS_NOIDLEMSG) ? MLF_NOIDLEMSG : 0));
    m_nFlags &= ~WF_CONTINUEMODAL;

    // The parent must be enabled before the dialog goes: the system looks for the next active window among enabled
    // ones.
    disabledParent.Restore();
    HideModal(parent);
    DestroyWindow();
}

void CDialog::HideModal(HWND parent)
{
    if (m_hWnd == nullptr)
        return;
    if (parent != nullptr && ::GetActiveWindow() == m_hWnd)
        ::SetActiveWindow(parent);
    ::SetWindowPos(m_hWnd, nullptr, 0, 0, 0, 0,
                   SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_NOZORDER);
}

bool CDialog::IsEscapeInMultilineEdit(const MSG& message) const
{
    if (message.message != WM_KEYDOWN || (message.wParam != VK_ESCAPE && message.wParam != VK_CANCEL))
        return false;
    if (!(::GetWindowLongPtr(message.hwnd, GWL_STYLE) & ES_MULTILINE))
        return false;
    TCHAR className[ClassNameSize] = {};
    ::GetClassName(message.hwnd, className, ClassNameSize);
    if (::lstrcmpi(className, WC_EDIT) != 0)
        return false;
    const HWND cancel = ::GetDlgItem(m_hWnd, IDCANCEL);
    return cancel == nullptr || ::IsWindowEnabled(cancel);
}
