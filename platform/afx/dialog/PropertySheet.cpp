#include <afxcmn.h>
#include <afxdlgs.h>

#include "afx/app/WinApp.h"
#include "afx/dialog/DialogCommands.h"
#include "afx/dialog/DisabledWindow.h"
#include "afx/dialog/ExtendedTemplate.h"
#include "afx/dialog/TemplateFont.h"

IMPLEMENT_DYNAMIC(CPropertySheet, CWnd)

BEGIN_MESSAGE_MAP(CPropertySheet, CWnd)
    ON_WM_CLOSE()
    ON_MESSAGE(WM_INITDIALOG, &CPropertySheet::HandleInitDialog)
    ON_MESSAGE(PSM_PRESSBUTTON, &CPropertySheet::HandlePressButton)
END_MESSAGE_MAP()

namespace
{
const int CreationFailed = -1;
const DWORD DefaultStyle = static_cast<DWORD>(-1);
const int Buttons[] = {IDOK, IDCANCEL, ID_APPLY_NOW, IDHELP};

// The templates that the system makes its sheets of.
const int SheetTemplate = 1006;
const int WizardTemplate = 1020;

bool IsPushButton(HWND control)
{
    const LRESULT code = ::SendMessage(control, WM_GETDLGCODE, 0, 0);
    return (code & (DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON)) != 0;
}

// The system keeps room for the pages in units of the font of its sheets. Without a known template the pages keep
// theirs.
TemplateFont SheetFont(bool wizard)
{
    const HMODULE controls = ::GetModuleHandle(L"comctl32");
    const LPCTSTR name = MAKEINTRESOURCE(wizard ? WizardTemplate : SheetTemplate);
    const HRSRC resource = ::FindResource(controls, name, RT_DIALOG);
    const HGLOBAL loaded = resource == nullptr ? nullptr : ::LoadResource(controls, resource);
    return loaded == nullptr ? TemplateFont() : FontOfTemplate(static_cast<LPCDLGTEMPLATE>(::LockResource(loaded)));
}

// The button's id as the result of a modal sheet, 0 when the button ends nothing.
int ResultOf(WPARAM button)
{
    switch (button)
    {
    case PSBTN_OK:
        return IDOK;
    case PSBTN_CANCEL:
        return IDCANCEL;
    case PSBTN_FINISH:
        return ID_WIZFINISH;
    default:
        return 0;
    }
}
} // namespace

CPropertySheet::CPropertySheet()
{
    Construct(L"", nullptr, 0);
}

CPropertySheet::CPropertySheet(UINT captionId, CWnd* parent, UINT selectedPage)
{
    Construct(captionId, parent, selectedPage);
}

CPropertySheet::CPropertySheet(LPCTSTR caption, CWnd* parent, UINT selectedPage)
{
    Construct(caption, parent, selectedPage);
}

CPropertySheet::~CPropertySheet()
{
    if (m_hWnd != nullptr)
        DestroyWindow();
}

void CPropertySheet::Construct(UINT captionId, CWnd* parent, UINT selectedPage)
{
    CString caption;
    caption.LoadString(captionId);
    Construct(caption, parent, selectedPage);
}

void CPropertySheet::Construct(LPCTSTR caption, CWnd* parent, UINT selectedPage)
{
    m_strCaption = caption;
    m_pParentWnd = parent;
    m_psh = PROPSHEETHEADER();
    m_psh.dwSize = sizeof(m_psh);
    m_psh.nStartPage = selectedPage;
}

// The system's own modal loop would bypass the message filters and the idle work of the framework, so the system always
// makes a modeless sheet.
INT_PTR CPropertySheet::DoModal()
{
    m_bModeless = FALSE;
    m_style = DefaultStyle;
    m_nModalResult = CreationFailed;
    HWND top = nullptr;
    const HWND parent = GetSafeOwner(m_pParentWnd, &top)->GetSafeHwnd();
    DisabledWindow disabledTop(top);
    DisabledWindow disabledParent(parent);

    m_nFlags |= WF_CONTINUEMODAL;
    const bool created = CreateSheet(parent);
    if (created && (m_nFlags & WF_CONTINUEMODAL)) // OnInitDialog may have ended it
        RunModalLoop(MLF_SHOWONIDLE | MLF_NOIDLEMSG);
    m_nFlags &= ~WF_CONTINUEMODAL;

    // The parent must be enabled before the sheet goes: the system looks for the next active window among enabled ones.
    disabledParent.Restore();
    if (parent != nullptr && m_hWnd != nullptr && ::GetActiveWindow() == m_hWnd)
        ::SetActiveWindow(parent);
    DestroyWindow();
    return m_nModalResult;
}

BOOL CPropertySheet::Create(CWnd* parent, DWORD style, DWORD exStyle)
{
    m_bModeless = TRUE;
    m_style = style;
    m_exStyle = exStyle;
    const CWnd* const owner = parent == nullptr ? AfxGetMainWnd() : parent;
    return CreateSheet(owner->GetSafeHwnd());
}

void CPropertySheet::AddPage(CPropertyPage* page)
{
    if (page == nullptr)
        return;
    if (m_hWnd == nullptr)
    {
        m_pages.Add(page);
        return;
    }
    PROPSHEETPAGE systemPage = {};
    if (!page->MakeSystemPage(systemPage, SheetFont(IsWizard())))
        AfxThrowInvalidArgException();
    const HPROPSHEETPAGE handle = ::CreatePropertySheetPage(&systemPage);
    if (handle == nullptr)
        AfxThrowMemoryException();
    m_pages.Add(page); // the system may ask for the page at once
    if (!SendMessage(PSM_ADDPAGE, 0, reinterpret_cast<LPARAM>(handle)))
    {
        m_pages.RemoveAt(m_pages.GetUpperBound());
        ::DestroyPropertySheetPage(handle);
        AfxThrowMemoryException();
    }
}

void CPropertySheet::RemovePage(CPropertyPage* page)
{
    const int index = GetPageIndex(page);
    if (index >= 0)
        RemovePage(index);
}

void CPropertySheet::RemovePage(int index)
{
    if (index < 0 || index >= GetPageCount())
        return;
    if (m_hWnd != nullptr)
        SendMessage(PSM_REMOVEPAGE, static_cast<WPARAM>(index));
    m_pages.RemoveAt(index);
}

int CPropertySheet::GetPageCount() const
{
    return static_cast<int>(m_pages.GetSize());
}

CPropertyPage* CPropertySheet::GetPage(int index) const
{
    return static_cast<CPropertyPage*>(m_pages.GetAt(index));
}

int CPropertySheet::GetPageIndex(CPropertyPage* page) const
{
    for (int index = 0; index < GetPageCount(); ++index)
    {
        if (GetPage(index) == page)
            return index;
    }
    return -1;
}

int CPropertySheet::GetActiveIndex() const
{
    return m_hWnd == nullptr ? static_cast<int>(m_psh.nStartPage) : TabCtrl_GetCurSel(GetTabControl()->m_hWnd);
}

CPropertyPage* CPropertySheet::GetActivePage() const
{
    if (m_hWnd != nullptr)
    {
        const HWND page = reinterpret_cast<HWND>(SendMessage(PSM_GETCURRENTPAGEHWND));
        return DYNAMIC_DOWNCAST(CPropertyPage, FromHandlePermanent(page));
    }
    const int index = GetActiveIndex();
    return index >= 0 && index < GetPageCount() ? GetPage(index) : nullptr;
}

BOOL CPropertySheet::SetActivePage(int index)
{
    if (index < 0 || index >= GetPageCount())
        return FALSE;
    if (m_hWnd != nullptr)
        return static_cast<BOOL>(SendMessage(PSM_SETCURSEL, static_cast<WPARAM>(index)));
    m_psh.nStartPage = static_cast<UINT>(index);
    return TRUE;
}

BOOL CPropertySheet::SetActivePage(CPropertyPage* page)
{
    const int index = GetPageIndex(page);
    return SetActivePage(index);
}

void CPropertySheet::SetTitle(LPCTSTR text, UINT style)
{
    m_strCaption = text;
    m_psh.dwFlags = (m_psh.dwFlags & ~PSH_PROPTITLE) | (style & PSH_PROPTITLE);
    if (m_hWnd != nullptr)
        SendMessage(PSM_SETTITLE, style, reinterpret_cast<LPARAM>(m_strCaption.GetString()));
}

CTabCtrl* CPropertySheet::GetTabControl() const
{
    return static_cast<CTabCtrl*>(FromHandle(reinterpret_cast<HWND>(SendMessage(PSM_GETTABCONTROL))));
}

BOOL CPropertySheet::PressButton(int button)
{
    return static_cast<BOOL>(SendMessage(PSM_PRESSBUTTON, static_cast<WPARAM>(button)));
}

void CPropertySheet::EndDialog(int result)
{
    if (m_bModeless)
    {
        DestroyWindow();
        return;
    }
    EndModalLoop(result);
}

void CPropertySheet::SetWizardButtons(DWORD flags)
{
    if (m_hWnd != nullptr)
        PostMessage(PSM_SETWIZBUTTONS, 0, flags);
}

void CPropertySheet::SetFinishText(LPCTSTR text)
{
    if (m_hWnd != nullptr)
        SendMessage(PSM_SETFINISHTEXT, 0, reinterpret_cast<LPARAM>(text));
}

BOOL CPropertySheet::OnInitDialog()
{
    const BOOL result = static_cast<BOOL>(Default());
    if (m_bModeless && !IsWizard())
        HideButtons();
    return result;
}

BOOL CPropertySheet::PreTranslateMessage(MSG* message)
{
    if (CWnd::PreTranslateMessage(message))
        return TRUE;
    const bool keyboard = message->message >= WM_KEYFIRST && message->message <= WM_KEYLAST;
    const bool mouse = message->message >= WM_MOUSEFIRST && message->message <= WM_MOUSELAST;
    // The sheet's own filter knows Ctrl+Tab besides the keys of dialogs.
    return (keyboard || mouse) && SendMessage(PSM_ISDIALOGMESSAGE, 0, reinterpret_cast<LPARAM>(message)) != 0;
}

BOOL CPropertySheet::OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo)
{
    return CWnd::OnCmdMsg(id, code, extra, handlerInfo) || OfferToOwnerAndThread(*this, id, code, extra, handlerInfo);
}

// The system ends a sheet by having no current page any more.
BOOL CPropertySheet::ContinueModal()
{
    return CWnd::ContinueModal() && m_hWnd != nullptr && SendMessage(PSM_GETCURRENTPAGEHWND) != 0;
}

BOOL CPropertySheet::OnCommand(WPARAM wParam, LPARAM lParam)
{
    if (CWnd::OnCommand(wParam, lParam))
        return TRUE;
    const HWND control = reinterpret_cast<HWND>(lParam);
    if (control != nullptr && HIWORD(wParam) == BN_CLICKED && IsPushButton(control))
        m_nModalResult = LOWORD(wParam);
    return FALSE;
}

void CPropertySheet::OnClose()
{
    m_nModalResult = IDCANCEL;
    if (m_bModeless)
        DestroyWindow();
    else
        Default();
}

LRESULT CPropertySheet::HandleInitDialog(WPARAM, LPARAM)
{
    return OnInitDialog();
}

// A button pressed by message tells no WM_COMMAND.
LRESULT CPropertySheet::HandlePressButton(WPARAM button, LPARAM)
{
    const int result = ResultOf(button);
    if (result != 0)
        m_nModalResult = result;
    return Default();
}

// Called with the sheet's template before its window is made.
int CALLBACK CPropertySheet::SheetCallback(HWND, UINT message, LPARAM lParam)
{
    const CPropertySheet* const sheet = DYNAMIC_DOWNCAST(CPropertySheet, AfxGetThreadState()->m_pWndInit);
    if (message != PSCB_PRECREATE || sheet == nullptr || sheet->m_style == DefaultStyle)
        return 0;
    if (ExtendedTemplate* const extended = ExtendedTemplate::Of(reinterpret_cast<void*>(lParam)))
    {
        extended->style = sheet->m_style | (extended->style & DS_SETFONT);
        extended->exStyle = sheet->m_exStyle;
        return 0;
    }
    DLGTEMPLATE* const plain = reinterpret_cast<DLGTEMPLATE*>(lParam);
    plain->style = sheet->m_style | (plain->style & DS_SETFONT);
    plain->dwExtendedStyle = sheet->m_exStyle;
    return 0;
}

bool CPropertySheet::MakePages()
{
    m_systemPages.assign(static_cast<size_t>(GetPageCount()), PROPSHEETPAGE());
    const TemplateFont font = SheetFont(IsWizard());
    for (int index = 0; index < GetPageCount(); ++index)
    {
        if (!GetPage(index)->MakeSystemPage(m_systemPages[static_cast<size_t>(index)], font))
            return false;
    }
    return !m_systemPages.empty();
}

bool CPropertySheet::CreateSheet(HWND parent)
{
    ASSERT(m_hWnd == nullptr);
    if (m_hWnd != nullptr || !MakePages())
        return false;
    if (m_psh.nStartPage >= m_systemPages.size())
        m_psh.nStartPage = 0;

    PROPSHEETHEADER header = m_psh;
    header.dwFlags |= PSH_PROPSHEETPAGE | PSH_MODELESS;
    header.hwndParent = parent;
    header.hInstance = AfxGetInstanceHandle();
    header.pszCaption = m_strCaption;
    header.nPages = static_cast<UINT>(m_systemPages.size());
    header.ppsp = m_systemPages.data();
    if (!(header.dwFlags & PSH_USECALLBACK))
    {
        header.dwFlags |= PSH_USECALLBACK;
        header.pfnCallback = &CPropertySheet::SheetCallback;
    }
    AfxHookWindowCreate(this);
    const INT_PTR made = ::PropertySheet(&header);
    if (!AfxUnhookWindowCreate())
        PostNcDestroy(); // no window came, so no WM_NCDESTROY ends the object
    return made > 0;
}

void CPropertySheet::HideButtons()
{
    CRect ok;
    CRect frame;
    CRect tabs;
    GetDlgItem(IDOK)->GetWindowRect(&ok);
    GetTabControl()->GetWindowRect(&tabs);
    GetWindowRect(&frame);
    for (const int id : Buttons)
    {
        if (CWnd* const button = GetDlgItem(id))
        {
            button->ShowWindow(SW_HIDE);
            button->EnableWindow(FALSE);
        }
    }
    const int row = ok.bottom - tabs.bottom;
    SetWindowPos(nullptr, 0, 0, frame.Width(), frame.Height() - row, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}
