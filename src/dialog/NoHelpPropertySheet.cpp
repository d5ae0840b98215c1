#include "dialog/NoHelpPropertySheet.h"

#include "dialog/SheetButtonPlace.h"

IMPLEMENT_DYNCREATE(CNoHelpPropertySheet, CPropertySheet)

CNoHelpPropertySheet::CNoHelpPropertySheet() : m_bApplyAllPages(true), m_bShowApply(true)
{
    MakeRoomForHelp();
}

CNoHelpPropertySheet::CNoHelpPropertySheet(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage)
    : CPropertySheet(nIDCaption, pParentWnd, iSelectPage), m_bApplyAllPages(true), m_bShowApply(true)
{
    MakeRoomForHelp();
}

CNoHelpPropertySheet::CNoHelpPropertySheet(const wchar_t* pszCaption, CWnd* pParentWnd, UINT iSelectPage)
    : CPropertySheet(pszCaption, pParentWnd, iSelectPage), m_bApplyAllPages(true), m_bShowApply(true)
{
    MakeRoomForHelp();
}

CNoHelpPropertySheet::~CNoHelpPropertySheet() {}

BOOL CNoHelpPropertySheet::OnInitDialog()
{
    const BOOL result = CPropertySheet::OnInitDialog();
    SwitchButtons();
    MoveButton(IDOK);
    MoveButton(IDCANCEL);
    if (m_bShowApply)
        MoveButton(ID_APPLY_NOW);
    CreateAllPages();
    return result;
}

int CNoHelpPropertySheet::OnApply()
{
    const int active = GetActiveIndex();
    if (active < 0 || active >= GetPageCount())
        return TRUE;
    if (!GetPage(active)->OnApply())
        return FALSE;
    if (!m_bApplyAllPages)
        return TRUE;
    // The count is asked again each time: a page may remove others.
    for (int index = 0; index < GetPageCount(); ++index)
    {
        if (index != active && !GetPage(index)->OnApply())
            return FALSE;
    }
    return TRUE;
}

BOOL CNoHelpPropertySheet::OnCommand(WPARAM wParam, LPARAM lParam)
{
    if (LOWORD(wParam) == ID_APPLY_NOW)
    {
        OnApply();
        return TRUE;
    }
    return CPropertySheet::OnCommand(wParam, lParam);
}

// The row closes up over the place of Help. The system keeps that place only for sheets that have help; without it the
// row would leave the frame.
void CNoHelpPropertySheet::MakeRoomForHelp()
{
    m_psh.dwFlags |= PSH_HASHELP;
}

void CNoHelpPropertySheet::SwitchButtons()
{
    if (CWnd* const help = GetDlgItem(IDHELP))
        help->ShowWindow(SW_HIDE);
    CWnd* const apply = GetDlgItem(ID_APPLY_NOW);
    if (apply == NULL)
        return;
    apply->EnableWindow(TRUE);
    if (!m_bShowApply)
    {
        apply->ShowWindow(SW_HIDE);
        apply->EnableWindow(FALSE);
    }
}

void CNoHelpPropertySheet::MoveButton(int id)
{
    CWnd* const button = GetDlgItem(id);
    if (button == NULL)
        return;
    CRect place;
    button->GetWindowRect(&place);
    ScreenToClient(&place);
    button->MoveWindow(SheetButtonPlace(place, m_bShowApply), TRUE);
}

void CNoHelpPropertySheet::CreateAllPages()
{
    const int start = static_cast<int>(m_psh.nStartPage);
    for (int index = 0; index < GetPageCount(); ++index)
    {
        if (index != start)
            SetActivePage(index);
    }
    SetActivePage(start);
}
