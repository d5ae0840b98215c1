#include "GalleryDlg.h"

#include "GalleryFilter.h"
#include "GalleryIds.h"

#include <AcExtensionModule.h>
#include <aced.h>
#include <adui.h>
#include <rxmfcapi.h>

namespace
{

// Around which F6 goes.
enum Pane
{
    PANE_TREE,
    PANE_PAGE,
    PANE_CODE,
    PANES
};

const wchar_t kPlaceName[] = L"Gallery";

// Tenths of a point.
const int kTitleSize = 120;
const int kCodeSize = 90;

// Shared: the system lets it go with the module.
HICON LoadGalleryIcon(int widthMetric, int heightMetric)
{
    const int width = ::GetSystemMetrics(widthMetric);
    const int height = ::GetSystemMetrics(heightMetric);
    return static_cast<HICON>(
        ::LoadImage(AfxGetResourceHandle(), MAKEINTRESOURCE(IDI_GALLERY), IMAGE_ICON, width, height, LR_SHARED));
}

CString WithReturns(CString text)
{
    text.Replace(L"\n", L"\r\n");
    return text;
}

} // namespace

CGalleryDlg* CGalleryDlg::s_current = nullptr;

BEGIN_MESSAGE_MAP(CGalleryDlg, CDialog)
    ON_WM_CLOSE()
    ON_WM_DESTROY()
    ON_WM_SIZE()
    ON_WM_GETMINMAXINFO()
    ON_EN_CHANGE(IDC_GALLERY_SEARCH, &CGalleryDlg::OnSearchChange)
    ON_NOTIFY(TVN_SELCHANGED, IDC_GALLERY_TREE, &CGalleryDlg::OnTreeSelection)
    ON_MESSAGE(WM_ACAD_KEEPFOCUS, &CGalleryDlg::OnKeepFocus)
END_MESSAGE_MAP()

CGalleryDlg* CGalleryDlg::Show()
{
    if (s_current == nullptr)
    {
        const CAcModuleResourceOverride resources;
        CGalleryDlg* const dialog = new CGalleryDlg;
        if (!dialog->Create(IDD_GALLERY, acedGetAcadFrame()))
        {
            delete dialog;
            return nullptr;
        }
        s_current = dialog;
        dialog->ShowPage(GalleryPages().front());
    }
    s_current->ShowWindow(s_current->IsIconic() ? SW_RESTORE : SW_SHOW);
    s_current->SetForegroundWindow();
    s_current->m_tree.SetFocus();
    return s_current;
}

void CGalleryDlg::Close()
{
    if (s_current != nullptr)
        s_current->DestroyWindow();
}

void CGalleryDlg::ShowPage(const GalleryEntry& entry)
{
    if (ItemOf(entry) == nullptr)
        m_search.SetWindowText(L""); // the search hides it
    m_tree.SelectItem(ItemOf(entry));
}

BOOL CGalleryDlg::PreTranslateMessage(MSG* message)
{
    if (message->message == WM_KEYDOWN && TakeKey(static_cast<UINT>(message->wParam)))
        return TRUE;
    return CDialog::PreTranslateMessage(message);
}

BOOL CGalleryDlg::OnInitDialog()
{
    CDialog::OnInitDialog();
    SetIcon(LoadGalleryIcon(SM_CXICON, SM_CYICON), TRUE);
    SetIcon(LoadGalleryIcon(SM_CXSMICON, SM_CYSMICON), FALSE);
    m_tree.SubclassDlgItem(IDC_GALLERY_TREE, this);
    m_search.SubclassDlgItem(IDC_GALLERY_SEARCH, this);
    m_code.SubclassDlgItem(IDC_GALLERY_CODE, this);
    SetUpLayout();
    MakeFonts();
    FillTree();
    CCtrlResize::RestoreWinPos(kPlaceName, m_hWnd, TRUE);
    return TRUE;
}

// Enter: from the search to what it found. The window stays open.
void CGalleryDlg::OnOK()
{
    if (GetFocus() == &m_search)
        GoToFound();
}

void CGalleryDlg::OnCancel()
{
    if (LeaveCell())
        return;
    if (m_search.GetWindowTextLength() > 0)
        m_search.SetWindowText(L"");
    else
        DestroyWindow();
}

// The dialog that gets the keys hears of Enter on any button, one of the page included.
BOOL CGalleryDlg::OnCommand(WPARAM wParam, LPARAM lParam)
{
    const HWND control = reinterpret_cast<HWND>(lParam);
    if (control != nullptr && m_page && ::GetParent(control) == m_page->GetSafeHwnd())
        return static_cast<BOOL>(m_page->SendMessage(WM_COMMAND, wParam, lParam));
    return CDialog::OnCommand(wParam, lParam);
}

void CGalleryDlg::PostNcDestroy()
{
    if (s_current == this)
        s_current = nullptr;
    delete this;
}

// The button in the caption closes whatever is searched.
void CGalleryDlg::OnClose()
{
    DestroyWindow();
}

void CGalleryDlg::OnDestroy()
{
    if (!IsIconic() && !IsZoomed())
        CCtrlResize::SaveWinPos(kPlaceName, m_hWnd, TRUE);
    CDialog::OnDestroy();
}

void CGalleryDlg::OnSize(UINT type, int cx, int cy)
{
    CDialog::OnSize(type, cx, cy);
    if (type == SIZE_MINIMIZED)
        return;
    m_resize.ResizeAllCtrl(cx, cy);
    PlacePage();
}

void CGalleryDlg::OnGetMinMaxInfo(MINMAXINFO* info)
{
    CDialog::OnGetMinMaxInfo(info);
    info->ptMinTrackSize = CPoint(m_smallestWindow.cx, m_smallestWindow.cy);
}

void CGalleryDlg::OnSearchChange()
{
    FillTree();
}

void CGalleryDlg::OnTreeSelection(NMHDR* /*notification*/, LRESULT* result)
{
    *result = 0;
    const GalleryEntry* entry = m_filling ? nullptr : EntryOf(m_tree.GetSelectedItem());
    if (entry != nullptr && entry != m_entry)
        OpenPage(*entry);
}

// Keys are meant for the gallery, not for the host's command line.
LRESULT CGalleryDlg::OnKeepFocus(WPARAM /*wParam*/, LPARAM /*lParam*/)
{
    return TRUE;
}

// Page and code share what the window grows in height.
void CGalleryDlg::SetUpLayout()
{
    CRect window;
    GetWindowRect(&window);
    m_smallestWindow = window.Size();
    m_resize.InitDlg(this);
    m_resize.AddCtrl(IDC_GALLERY_TREE, 0, 0, 0, 1);
    m_resize.AddCtrl(IDC_GALLERY_TITLE, 0, 0, 1, 0);
    m_resize.AddCtrl(IDC_GALLERY_DESCRIPTION, 0, 0, 1, 0);
    m_resize.AddCtrl(IDC_GALLERY_PAGE_AREA, 0, 0, 1, 0.5);
    m_resize.AddCtrl(IDC_GALLERY_CODE_LABEL, 0, 0.5, 0, 0);
    m_resize.AddCtrl(IDC_GALLERY_CODE, 0, 0.5, 1, 0.5);
}

void CGalleryDlg::MakeFonts()
{
    LOGFONT title = {};
    GetFont()->GetLogFont(&title);
    title.lfWeight = FW_BOLD;
    title.lfHeight = kTitleSize;
    m_titleFont.CreatePointFontIndirect(&title);
    GetDlgItem(IDC_GALLERY_TITLE)->SetFont(&m_titleFont);
    m_codeFont.CreatePointFont(kCodeSize, L"新宋体");
    m_code.SetFont(&m_codeFont);
}

// What the search finds; the page that is open stays selected when it is among it.
void CGalleryDlg::FillTree()
{
    m_filling = true;
    m_tree.SetRedraw(FALSE);
    m_tree.DeleteAllItems();
    AddFoundPages();
    if (m_tree.GetCount() == 0)
        m_tree.InsertItem(L"没有匹配");
    m_filling = false;
    const HTREEITEM current = m_entry != nullptr ? ItemOf(*m_entry) : nullptr;
    m_tree.SelectItem(current != nullptr ? current : m_tree.GetChildItem(m_tree.GetRootItem()));
    m_tree.SetRedraw(TRUE);
}

// In groups that are open.
void CGalleryDlg::AddFoundPages()
{
    CString search;
    m_search.GetWindowText(search);
    for (const GalleryEntry& entry : GalleryPages())
    {
        if (!MatchesSearch(entry, search))
            continue;
        const HTREEITEM group = GroupItem(entry.group);
        m_tree.SetItemData(m_tree.InsertItem(entry.title, group), reinterpret_cast<DWORD_PTR>(&entry));
        m_tree.Expand(group, TVE_EXPAND);
    }
}

HTREEITEM CGalleryDlg::GroupItem(const wchar_t* group)
{
    for (HTREEITEM item = m_tree.GetRootItem(); item != nullptr; item = m_tree.GetNextSiblingItem(item))
    {
        if (m_tree.GetItemText(item) == group)
            return item;
    }
    return m_tree.InsertItem(group);
}

const GalleryEntry* CGalleryDlg::EntryOf(HTREEITEM item) const
{
    return item != nullptr ? reinterpret_cast<const GalleryEntry*>(m_tree.GetItemData(item)) : nullptr;
}

HTREEITEM CGalleryDlg::ItemOf(const GalleryEntry& entry) const
{
    for (HTREEITEM group = m_tree.GetRootItem(); group != nullptr; group = m_tree.GetNextSiblingItem(group))
    {
        for (HTREEITEM item = m_tree.GetChildItem(group); item != nullptr; item = m_tree.GetNextSiblingItem(item))
        {
            if (EntryOf(item) == &entry)
                return item;
        }
    }
    return nullptr;
}

void CGalleryDlg::OpenPage(const GalleryEntry& entry)
{
    if (m_page)
        m_page->DestroyWindow();
    m_entry = &entry;
    m_page.reset(entry.make());
    SetDlgItemText(IDC_GALLERY_TITLE, entry.title);
    SetDlgItemText(IDC_GALLERY_DESCRIPTION, entry.description);
    m_code.SetWindowText(WithReturns(entry.code));
    if (!m_page->CreateIn(*this))
        return;
    m_page->SetWindowText(entry.title);
    PlacePage();
    m_page->ShowWindow(SW_SHOWNA);
}

// Behind the page's area in the order of the keyboard: tree, page, code.
void CGalleryDlg::PlacePage()
{
    if (!m_page || m_page->GetSafeHwnd() == nullptr)
        return;
    CWnd* const area = GetDlgItem(IDC_GALLERY_PAGE_AREA);
    CRect rect;
    area->GetWindowRect(&rect);
    ScreenToClient(&rect);
    m_page->SetWindowPos(area, rect.left, rect.top, rect.Width(), rect.Height(), SWP_NOACTIVATE);
}

bool CGalleryDlg::TakeKey(UINT key)
{
    const bool control = ::GetKeyState(VK_CONTROL) < 0;
    if (key == VK_F3 || (control && key == L'F'))
        GoToSearch();
    else if (key == VK_F6 || (control && key == VK_TAB))
        GoToNextPane(::GetKeyState(VK_SHIFT) < 0);
    else if (key == VK_DOWN && GetFocus() == &m_search)
        GoToFound();
    else if (control && key == L'A' && GetFocus() == &m_code)
        m_code.SetSel(0, -1); // before Windows 10 an edit of many lines does not know the key
    else
        return false;
    return true;
}

// The editor of a list leaves Escape to the dialog, but nobody who gives a cell up means the whole window.
bool CGalleryDlg::LeaveCell()
{
    CWnd* const focus = GetFocus();
    CWnd* const list = focus != nullptr ? focus->GetParent() : nullptr;
    if (list == nullptr || !list->IsKindOf(RUNTIME_CLASS(CListCtrl)))
        return false;
    list->SetFocus();
    return true;
}

void CGalleryDlg::GoToSearch()
{
    m_search.SetFocus();
    m_search.SetSel(0, -1);
}

// To the first page found. Where nothing is searched the page that is open stays.
void CGalleryDlg::GoToFound()
{
    const HTREEITEM first = m_tree.GetChildItem(m_tree.GetRootItem());
    if (first == nullptr)
        return;
    if (m_search.GetWindowTextLength() > 0)
        m_tree.SelectItem(first);
    m_tree.SetFocus();
}

void CGalleryDlg::GoToNextPane(bool back)
{
    const int step = back ? PANES - 1 : 1;
    int pane = (PaneWithFocus() + step) % PANES;
    if (FirstControlOf(pane) == nullptr)
        pane = (pane + step) % PANES;
    GotoDlgCtrl(FirstControlOf(pane));
}

int CGalleryDlg::PaneWithFocus() const
{
    const HWND focus = ::GetFocus();
    if (m_page && (focus == m_page->m_hWnd || ::IsChild(m_page->m_hWnd, focus)))
        return PANE_PAGE;
    return focus == m_code.m_hWnd ? PANE_CODE : PANE_TREE;
}

// Null for a page whose controls take no keys.
CWnd* CGalleryDlg::FirstControlOf(int pane) const
{
    if (pane == PANE_PAGE)
        return m_page ? m_page->GetNextDlgTabItem(nullptr) : nullptr;
    return pane == PANE_CODE ? GetDlgItem(IDC_GALLERY_CODE) : GetDlgItem(IDC_GALLERY_TREE);
}
