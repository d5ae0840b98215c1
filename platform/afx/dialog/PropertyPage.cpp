#include <afxdlgs.h>

#include "afx/app/Resource.h"
#include "afx/dialog/DialogProcedure.h"
#include "afx/dialog/DialogTemplateLock.h"
#include "afx/dialog/TemplateFont.h"

IMPLEMENT_DYNAMIC(CPropertyPage, CDialog)

BEGIN_MESSAGE_MAP(CPropertyPage, CDialog)
    ON_MESSAGE(PSM_QUERYSIBLINGS, &CPropertyPage::HandleQuerySiblings)
END_MESSAGE_MAP()

CPropertyPage::CPropertyPage()
{
    Construct(LPCTSTR(nullptr), 0);
}

CPropertyPage::CPropertyPage(UINT templateId, UINT captionId, DWORD)
{
    Construct(templateId, captionId);
}

CPropertyPage::CPropertyPage(LPCTSTR templateName, UINT captionId, DWORD)
{
    Construct(templateName, captionId);
}

void CPropertyPage::Construct(UINT templateId, UINT captionId)
{
    Construct(MAKEINTRESOURCE(templateId), captionId);
    m_nIDHelp = templateId;
}

void CPropertyPage::Construct(LPCTSTR templateName, UINT captionId)
{
    m_lpszTemplateName = templateName;
    m_psp = PROPSHEETPAGE();
    m_psp.dwSize = sizeof(m_psp);
    m_psp.pszTemplate = templateName;
    m_psp.pfnDlgProc = &DialogProcedure;
    m_psp.pfnCallback = &CPropertyPage::PageCallback;
    m_psp.lParam = reinterpret_cast<LPARAM>(this);
    m_psp.dwFlags = PSP_USECALLBACK;
    if (captionId != 0 && m_strCaption.LoadString(captionId))
    {
        m_psp.pszTitle = m_strCaption;
        m_psp.dwFlags |= PSP_USETITLE;
    }
}

void CPropertyPage::CancelToClose()
{
    if (CPropertySheet* const sheet = GetParentSheet())
        sheet->PostMessage(PSM_CANCELTOCLOSE);
}

void CPropertyPage::SetModified(BOOL changed)
{
    if (CPropertySheet* const sheet = GetParentSheet())
        sheet->SendMessage(changed ? PSM_CHANGED : PSM_UNCHANGED, reinterpret_cast<WPARAM>(m_hWnd));
}

LRESULT CPropertyPage::QuerySiblings(WPARAM wParam, LPARAM lParam)
{
    CPropertySheet* const sheet = GetParentSheet();
    return sheet == nullptr ? 0 : sheet->SendMessage(PSM_QUERYSIBLINGS, wParam, lParam);
}

BOOL CPropertyPage::OnApply()
{
    OnOK();
    return TRUE;
}

void CPropertyPage::OnReset()
{
    OnCancel();
}

void CPropertyPage::OnOK() {}

void CPropertyPage::OnCancel() {}

BOOL CPropertyPage::OnSetActive()
{
    if (m_bFirstSetActive)
        m_bFirstSetActive = FALSE;
    else
        UpdateData(FALSE);
    return TRUE;
}

BOOL CPropertyPage::OnKillActive()
{
    return UpdateData(TRUE);
}

BOOL CPropertyPage::OnQueryCancel()
{
    return TRUE;
}

LRESULT CPropertyPage::OnWizardBack()
{
    return 0;
}

LRESULT CPropertyPage::OnWizardNext()
{
    return 0;
}

BOOL CPropertyPage::OnWizardFinish()
{
    return TRUE;
}

LRESULT CPropertyPage::OnQuerySiblings(WPARAM, LPARAM)
{
    return 0;
}

BOOL CPropertyPage::PreTranslateMessage(MSG* message)
{
    return CWnd::PreTranslateMessage(message);
}

BOOL CPropertyPage::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    if (CDialog::OnNotify(wParam, lParam, result))
        return TRUE;
    // A control may use the same numbers as the sheet.
    const NMHDR& header = *reinterpret_cast<const NMHDR*>(lParam);
    if (header.hwndFrom != m_hWnd && header.hwndFrom != ::GetParent(m_hWnd))
        return FALSE;
    return Answer(header.code, *result);
}

LRESULT CPropertyPage::HandleQuerySiblings(WPARAM wParam, LPARAM lParam)
{
    return OnQuerySiblings(wParam, lParam);
}

UINT CALLBACK CPropertyPage::PageCallback(HWND, UINT message, PROPSHEETPAGE* page)
{
    if (message == PSPCB_CREATE)
    {
        CPropertyPage* const object = reinterpret_cast<CPropertyPage*>(page->lParam);
        object->m_bFirstSetActive = TRUE;
        AfxHookWindowCreate(object);
    }
    return TRUE;
}

CPropertySheet* CPropertyPage::GetParentSheet() const
{
    return m_hWnd == nullptr ? nullptr : DYNAMIC_DOWNCAST(CPropertySheet, FromHandlePermanent(::GetParent(m_hWnd)));
}

bool CPropertyPage::Answer(UINT code, LRESULT& result)
{
    switch (code)
    {
    case PSN_SETACTIVE:
        result = OnSetActive() ? 0 : -1;
        return true;
    case PSN_KILLACTIVE:
        result = !OnKillActive();
        return true;
    case PSN_APPLY:
        result = OnApply() ? PSNRET_NOERROR : PSNRET_INVALID_NOCHANGEPAGE;
        return true;
    case PSN_RESET:
        OnReset();
        return true;
    case PSN_QUERYCANCEL:
        result = !OnQueryCancel();
        return true;
    case PSN_WIZBACK:
        result = OnWizardBack();
        return true;
    case PSN_WIZNEXT:
        result = OnWizardNext();
        return true;
    case PSN_WIZFINISH:
        result = !OnWizardFinish();
        return true;
    case PSN_HELP:
        SendMessage(WM_COMMAND, ID_HELP);
        return true;
    default:
        return false;
    }
}

bool CPropertyPage::MakeSystemPage(PROPSHEETPAGE& page, const TemplateFont& font)
{
    page = m_psp;
    page.dwSize = sizeof(page);
    const bool indirect = (page.dwFlags & PSP_DLGINDIRECT) != 0;
    if (!indirect)
        page.hInstance = AfxFindResourceHandle(page.pszTemplate, RT_DIALOG);
    const CDialogTemplateLock lock =
        indirect ? CDialogTemplateLock(page.pResource) : CDialogTemplateLock(page.pszTemplate);
    if (lock.Get() == nullptr)
        return false;
    if (font.points == 0)
        return true;
    m_template = TemplateWithFont(lock.Get(), font);
    page.pResource = reinterpret_cast<PROPSHEETPAGE_RESOURCE>(m_template.data());
    page.dwFlags |= PSP_DLGINDIRECT;
    return true;
}
