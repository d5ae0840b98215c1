#include "tip/TabSheet.h"

#include <algorithm>

#include "tip/TabPagePlace.h"

IMPLEMENT_DYNAMIC(CTabSheet, CTabCtrl)

BEGIN_MESSAGE_MAP(CTabSheet, CTabCtrl)
    ON_WM_LBUTTONDOWN()
END_MESSAGE_MAP()

CTabSheet::CTabSheet() : m_count(0), m_current(0), m_created(0)
{
    std::fill_n(m_titles, static_cast<int>(MAX_PAGES), static_cast<const wchar_t*>(NULL));
    std::fill_n(m_templates, static_cast<int>(MAX_PAGES), 0u);
    std::fill_n(m_pages, static_cast<int>(MAX_PAGES), static_cast<CDialog*>(NULL));
}

CTabSheet::~CTabSheet() {}

int CTabSheet::AddPage(const wchar_t* title, CDialog* page, UINT templateId)
{
    if (m_count == MAX_PAGES)
        return 0;
    m_titles[m_count] = title;
    m_pages[m_count] = page;
    m_templates[m_count] = templateId;
    ++m_count;
    return 1;
}

void CTabSheet::Show()
{
    if (GetSafeHwnd() == NULL)
        return;
    // A window that was created anew has no tabs.
    for (int index = std::min(m_created, GetItemCount()); index < m_count; ++index)
        CreatePage(index);
    m_created = m_count;
    for (int index = 0; index < m_count; ++index)
        ShowPage(index, index == 0 ? SW_SHOW : SW_HIDE);
    SetRect();
}

void CTabSheet::SetRect()
{
    CRect tab;
    if (GetSafeHwnd() == NULL || !GetItemRect(0, &tab))
        return;
    CRect client;
    GetClientRect(&client);
    const CRect place = TabPageRect(client, tab);
    for (int index = 0; index < m_count; ++index)
    {
        const UINT visibility = index == 0 ? SWP_SHOWWINDOW : SWP_HIDEWINDOW;
        if (m_pages[index]->GetSafeHwnd() != NULL)
            m_pages[index]->SetWindowPos(&wndTop, place.left, place.top, place.Width(), place.Height(), visibility);
    }
}

int CTabSheet::SetCurSel(int index)
{
    if (index < 0 || index >= m_count)
        return -1;
    const int before = m_current;
    if (index != m_current)
    {
        Switch(index);
        if (GetSafeHwnd() != NULL)
            CTabCtrl::SetCurSel(index);
    }
    return before;
}

int CTabSheet::GetCurSel()
{
    return GetSafeHwnd() == NULL ? -1 : CTabCtrl::GetCurSel();
}

void CTabSheet::OnLButtonDown(UINT flags, CPoint point)
{
    const HWND window = m_hWnd;
    CTabCtrl::OnLButtonDown(flags, point);
    // The owner is told of the new tab meanwhile, and may end the sheet.
    if (!::IsWindow(window))
        return;
    const int focused = GetCurFocus();
    if (focused >= 0 && focused < m_count && focused != m_current)
        Switch(focused);
}

void CTabSheet::CreatePage(int index)
{
    CDialog* const page = m_pages[index];
    if (page != NULL && page->GetSafeHwnd() == NULL)
        page->Create(m_templates[index], this);
    TCITEM item = {};
    item.mask = TCIF_TEXT;
    item.pszText = const_cast<wchar_t*>(m_titles[index] == NULL ? L"" : m_titles[index]);
    InsertItem(index, &item);
}

void CTabSheet::ShowPage(int index, int command)
{
    if (index < m_count && m_pages[index]->GetSafeHwnd() != NULL)
        m_pages[index]->ShowWindow(command);
}

void CTabSheet::Switch(int index)
{
    ShowPage(m_current, SW_HIDE);
    m_current = index;
    ShowPage(m_current, SW_SHOW);
}
