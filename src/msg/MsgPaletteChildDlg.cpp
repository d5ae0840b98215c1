#include "msg/MsgPaletteChildDlg.h"

#include <algorithm>
#include <set>

#include "base/CursorInside.h"
#include "base/FlagGuard.h"
#include "base/PrivateMessages.h"
#include "msg/GroupName.h"
#include "msg/MsgObjects.h"
#include "msg/ZNMsgManager.h"
#include "res/resource.h"

namespace
{

struct ButtonInfo
{
    UINT control;
    UINT icon;
    DWORD style;
    const wchar_t* tip;
};

// The toolkit's button styles: a flat tool button, and the same shown pressed while it is checked.
const DWORD kToolButton = 0x1001;
const DWORD kToolToggle = 0x1021;

const ButtonInfo kButtons[] = {
    {IDC_SHOW_TREE, IDI_TREE, kToolToggle, L"显示/隐藏“树”"},
    {IDC_DELETE_SELECTED, IDI_DELETE, kToolButton, L"删除选中消息"},
    {IDC_DELETE_SHOWN, IDI_DELETE_ALL, kToolButton, L"删除显示的全部消息"},
    {IDC_ZOOM, IDI_ZOOM, kToolButton, L"缩放到"},
    {IDC_FLASH, IDI_FLASH, kToolButton, L"闪烁"},
    {IDC_SELECT, IDI_SELECT, kToolButton, L"选中"},
};

// Above the list, and moving with its left edge.
const UINT kToolRow[] = {
    IDC_SHOW_TREE, IDC_SEPARATOR_DELETE, IDC_DELETE_SELECTED, IDC_DELETE_SHOWN, IDC_SEPARATOR_ZOOM, IDC_ZOOM, IDC_FLASH,
    IDC_SELECT};
const int kToolRowLength = sizeof(kToolRow) / sizeof(kToolRow[0]);

const wchar_t kTabText[] = L"树";
const wchar_t kCountFormat[] = L"%d个消息";
const wchar_t kConfirmCaption[] = L"确认";
const wchar_t kDeleteAllQuestion[] = L"真的删除全部消息吗?";
const wchar_t kDeleteGroupBefore[] = L"真的删除 ";
const wchar_t kDeleteGroupAfter[] = L" 组的全部消息吗?";

const wchar_t kProfileSection[] = L"消息查看器";
const wchar_t kProfileShowTree[] = L"显示树";

// The list forwards the notifications of its header, whose control identifier is 0.
const UINT kHeaderId = 0;

} // namespace

IMPLEMENT_DYNAMIC(CMsgPaletteChildDlg, CAcUiDialog)

BEGIN_MESSAGE_MAP(CMsgPaletteChildDlg, CAcUiDialog)
    ON_WM_SIZE()
    ON_WM_TIMER()
    ON_BN_CLICKED(IDC_SHOW_TREE, &CMsgPaletteChildDlg::OnToggleTree)
    ON_BN_CLICKED(IDC_DELETE_SELECTED, &CMsgPaletteChildDlg::OnDeleteSelected)
    ON_BN_CLICKED(IDC_DELETE_SHOWN, &CMsgPaletteChildDlg::OnDeleteShown)
    ON_BN_CLICKED(IDC_ZOOM, &CMsgPaletteChildDlg::OnZoom)
    ON_BN_CLICKED(IDC_FLASH, &CMsgPaletteChildDlg::OnFlash)
    ON_BN_CLICKED(IDC_SELECT, &CMsgPaletteChildDlg::OnSelect)
    ON_NOTIFY(HDN_ITEMCLICK, kHeaderId, &CMsgPaletteChildDlg::OnHeaderClick)
    ON_NOTIFY(LVN_ITEMCHANGED, IDC_LIST, &CMsgPaletteChildDlg::OnListItemChanged)
    ON_NOTIFY(NM_DBLCLK, IDC_LIST, &CMsgPaletteChildDlg::OnListDoubleClick)
    ON_NOTIFY(LVN_DELETEALLITEMS, IDC_LIST, &CMsgPaletteChildDlg::OnListDeleteAll)
    ON_NOTIFY(TVN_SELCHANGED, IDC_TREE, &CMsgPaletteChildDlg::OnTreeSelectionChanged)
    ON_MESSAGE(ZNKT_WM_KEEP_FOCUS, &CMsgPaletteChildDlg::OnKeepFocus)
END_MESSAGE_MAP()

CMsgPaletteChildDlg::CMsgPaletteChildDlg(CWnd* parent)
    : CAcUiDialog(IDD_MSG_VIEWER, parent), m_document(NULL), m_flash(*this), m_sortColumn(-1), m_ascending(true),
      m_updating(false)
{
}

CMsgPaletteChildDlg::~CMsgPaletteChildDlg() {}

void CMsgPaletteChildDlg::Refresh(bool force)
{
    if (GetSafeHwnd() == NULL)
        return;
    {
        CFlagGuard updating(m_updating);
        AcApDocument* const current = CZNMsgManager::CurrentDocument();
        if (force || m_document != current)
            RebuildTree(current);
        m_document = current;
        FillList();
    }
    UpdateCount();
    SelectionChanged();
}

BOOL CMsgPaletteChildDlg::PreTranslateMessage(MSG* message)
{
    if (m_toolTip.GetSafeHwnd() != NULL)
        m_toolTip.RelayEvent(message);
    return CAcUiDialog::PreTranslateMessage(message);
}

void CMsgPaletteChildDlg::DoDataExchange(CDataExchange* exchange)
{
    CAcUiDialog::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_TAB, m_tab);
    DDX_Control(exchange, IDC_TREE, m_tree);
    DDX_Control(exchange, IDC_LIST, m_list);
    DDX_Control(exchange, IDC_COUNT, m_count);
    for (int i = 0; i < BUTTONS; ++i)
        DDX_Control(exchange, kButtons[i].control, m_buttons[i]);
}

BOOL CMsgPaletteChildDlg::OnInitDialog()
{
    CAcUiDialog::OnInitDialog();
    m_tab.InsertItem(0, kTabText);
    SetUpButtons();
    m_tree.LoadImages();
    m_list.SetUp();
    m_header.SubclassWindow(ListView_GetHeader(m_list.m_hWnd));
    Refresh(true);
    AddToolTips();
    RestoreTree();
    return TRUE;
}

void CMsgPaletteChildDlg::OnOK() {}

void CMsgPaletteChildDlg::OnCancel() {}

void CMsgPaletteChildDlg::OnSize(UINT type, int cx, int cy)
{
    CAcUiDialog::OnSize(type, cx, cy);
    if (m_list.GetSafeHwnd() == NULL)
        return;
    const CMsgViewRects rects = LayOutMsgView(GetRects(), cx, cy);
    m_list.MoveWindow(&rects.list);
    m_list.FitTextColumn();
    m_tab.MoveWindow(&rects.tab);
    m_tree.MoveWindow(&rects.tree);
    m_count.MoveWindow(&rects.count);
}

void CMsgPaletteChildDlg::OnTimer(UINT_PTR timer)
{
    if (timer == ZNKT_TIMER_FLASH)
        m_flash.OnTick();
    CAcUiDialog::OnTimer(timer);
}

void CMsgPaletteChildDlg::OnToggleTree()
{
    CXTButton& toggle = m_buttons[BUTTON_SHOW_TREE];
    const bool show = !toggle.GetChecked();
    const CMsgViewRects rects = GetRects();
    AfxGetApp()->WriteProfileInt(kProfileSection, kProfileShowTree, show);
    toggle.SetChecked(show);
    m_tab.ShowWindow(show ? SW_SHOW : SW_HIDE);
    m_tree.ShowWindow(show ? SW_SHOW : SW_HIDE);
    ShiftRightPart(show ? ShiftThatShowsTree(rects) : ShiftThatHidesTree(rects));
}

void CMsgPaletteChildDlg::OnDeleteSelected()
{
    const std::vector<int> rows = m_list.GetSelectedRows();
    if (rows.empty())
    {
        Refresh(true);
        return;
    }
    {
        CFlagGuard updating(m_updating);
        DeleteRows(rows);
    }
    UpdateCount();
    SelectionChanged();
}

void CMsgPaletteChildDlg::OnDeleteShown()
{
    CZNMsgManager& store = CZNMsgManager::Instance();
    const CString group = m_tree.GetSelectedGroup();
    if (group.IsEmpty())
    {
        if (!Confirm(kDeleteAllQuestion))
            return;
        store.RemoveDocument(m_document, true);
    }
    else
    {
        if (!Confirm(kDeleteGroupBefore + group + kDeleteGroupAfter))
            return;
        // A whole group goes in every document, other than all messages, which go in this one only: that is intended.
        store.RemoveGroup(group, true);
    }
    Refresh(true);
}

void CMsgPaletteChildDlg::OnZoom()
{
    CZNMsgData message;
    if (CZNMsgManager::Instance().Find(FirstSelectedId(), message))
        ZoomToMessage(message);
}

void CMsgPaletteChildDlg::OnFlash()
{
    AcArray<AcDbObjectId> objects;
    CollectObjects(CZNMsgManager::Instance(), m_list.GetSelectedIds(), objects);
    m_flash.Start(objects);
}

void CMsgPaletteChildDlg::OnSelect()
{
    AcArray<AcDbObjectId> objects;
    CollectObjects(CZNMsgManager::Instance(), m_list.GetSelectedIds(), objects);
    SelectObjects(objects);
}

void CMsgPaletteChildDlg::OnHeaderClick(NMHDR* header, LRESULT* result)
{
    const int column = reinterpret_cast<NMHEADER*>(header)->iItem;
    m_ascending = column != m_sortColumn || !m_ascending;
    m_sortColumn = column;
    CXTSortClass(&m_list, column).Sort(m_ascending, xtSortString);
    m_header.SetSortImage(column, m_ascending);
    *result = 0;
}

void CMsgPaletteChildDlg::OnListItemChanged(NMHDR* header, LRESULT* result)
{
    *result = 0;
    if (m_updating)
        return;
    const NMLISTVIEW& change = *reinterpret_cast<NMLISTVIEW*>(header);
    // Whoever is told that the flash ends may have refreshed the viewer.
    const bool flashed = m_flash.IsRunning();
    m_flash.Stop();
    if (flashed || change.iItem < 0)
        SelectionChanged();
    else if ((change.uChanged & LVIF_STATE) != 0 && ((change.uOldState ^ change.uNewState) & LVIS_SELECTED) != 0)
        m_selection.Change(CZNMsgManager::Instance(), m_list.GetId(change.iItem),
                           (change.uNewState & LVIS_SELECTED) != 0);
    UpdateCommands();
}

void CMsgPaletteChildDlg::OnListDoubleClick(NMHDR*, LRESULT* result)
{
    *result = 0;
    OnZoom();
}

// Rows own nothing, so the list need not tell each one that goes.
void CMsgPaletteChildDlg::OnListDeleteAll(NMHDR*, LRESULT* result)
{
    *result = TRUE;
}

void CMsgPaletteChildDlg::OnTreeSelectionChanged(NMHDR*, LRESULT* result)
{
    *result = 0;
    if (!m_updating)
        Refresh(false);
}

LRESULT CMsgPaletteChildDlg::OnKeepFocus(WPARAM, LPARAM)
{
    return IsCursorInside(*this) ? TRUE : FALSE;
}

void CMsgPaletteChildDlg::SetUpButtons()
{
    const CSize size(CSmallIcon::SIZE_PIXELS, CSmallIcon::SIZE_PIXELS);
    for (int i = 0; i < BUTTONS; ++i)
    {
        m_buttons[i].SetXButtonStyle(kButtons[i].style);
        m_buttons[i].SetTheme(new CXTToolbarButtonTheme);
        m_buttons[i].SetWindowText(L"");
        m_buttons[i].SetIcon(size, m_icons[i].Load(kButtons[i].icon));
    }
}

void CMsgPaletteChildDlg::AddToolTips()
{
    m_toolTip.Create(this);
    for (int i = 0; i < BUTTONS; ++i)
        m_toolTip.AddTool(&m_buttons[i], kButtons[i].tip);
}

void CMsgPaletteChildDlg::RestoreTree()
{
    // Dialog units do not give the exact gap that hiding and showing the tree works with.
    const CMsgViewRects rects = GetRects();
    ShiftRightPart(rects.tab.left + ShiftThatShowsTree(rects) - rects.list.left);

    m_buttons[BUTTON_SHOW_TREE].SetChecked(TRUE);
    if (AfxGetApp()->GetProfileInt(kProfileSection, kProfileShowTree, TRUE) == 0)
        OnToggleTree();
}

void CMsgPaletteChildDlg::RebuildTree(AcApDocument* current)
{
    const CString wanted = WantedGroup(current);
    CStringArray groups;
    CZNMsgManager::Instance().CollectVisibleGroups(groups);
    m_tree.ShowGroups(groups, wanted);
}

// Remembers the selected group when the document changes, and recalls the one of the new document.
CString CMsgPaletteChildDlg::WantedGroup(AcApDocument* current)
{
    const CString selected = m_tree.GetSelectedGroup();
    if (m_document == current)
        return selected;
    m_groupOfDocument.SetAt(m_document, selected);
    CString wanted;
    m_groupOfDocument.Lookup(current, wanted);
    return wanted;
}

void CMsgPaletteChildDlg::FillList()
{
    const CString group = m_tree.GetSelectedGroup();
    CZNMsgArray messages;
    if (group.IsEmpty())
        CZNMsgManager::Instance().CollectVisible(messages);
    else
        CZNMsgManager::Instance().CollectVisible(group, messages);
    m_list.ShowMessages(messages);
    if (m_list.GetItemCount() > 0)
        m_list.SelectRow(m_list.GetItemCount() - 1);
}

void CMsgPaletteChildDlg::UpdateCount()
{
    CString text;
    text.Format(kCountFormat, m_list.GetItemCount());
    m_count.SetWindowText(text);
    Enable(BUTTON_DELETE_SHOWN, m_list.GetItemCount() > 0);
}

// The selection is another one, or what is known about it may be wrong.
void CMsgPaletteChildDlg::SelectionChanged()
{
    m_flash.Stop();
    m_selection.Reset(CZNMsgManager::Instance(), m_list.GetSelectedIds());
    UpdateCommands();
}

void CMsgPaletteChildDlg::UpdateCommands()
{
    const CZNMsgManager& store = CZNMsgManager::Instance();
    if (m_selection.IsOutdated(store))
        m_selection.Reset(store, m_list.GetSelectedIds());
    const UINT selected = m_list.GetSelectedCount();
    Enable(BUTTON_DELETE_SELECTED, selected > 0);
    Enable(BUTTON_ZOOM, selected == 1 && CMsgSelection::CanZoomTo(store, FirstSelectedId()));
    Enable(BUTTON_FLASH, m_selection.HasObjects());
    Enable(BUTTON_SELECT, m_selection.HasObjects());
}

void CMsgPaletteChildDlg::Enable(int button, bool enable)
{
    if ((m_buttons[button].IsWindowEnabled() != FALSE) != enable)
        m_buttons[button].EnableWindow(enable);
}

// 0, which no message has, when nothing is selected.
int CMsgPaletteChildDlg::FirstSelectedId() const
{
    const int row = m_list.GetNextItem(-1, LVNI_SELECTED);
    return row < 0 ? 0 : m_list.GetId(row);
}

void CMsgPaletteChildDlg::DeleteRows(const std::vector<int>& rows)
{
    const bool showsAll = m_tree.ShowsAll();
    std::set<CString, GroupNameLess> groups;
    std::vector<int> ids;
    ids.reserve(rows.size());
    for (size_t i = 0; i < rows.size(); ++i)
    {
        ids.push_back(m_list.GetId(rows[i]));
        if (showsAll)
            groups.insert(m_list.GetItemText(rows[i], CMsgList::COLUMN_GROUP));
    }
    CZNMsgManager::Instance().Remove(ids);
    m_list.DeleteRows(rows);
    if (m_list.GetItemCount() > 0)
        m_list.SelectRow((std::min)(rows.front(), m_list.GetItemCount() - 1));
    RemoveEmptyGroups(std::vector<CString>(groups.begin(), groups.end()));
}

void CMsgPaletteChildDlg::RemoveEmptyGroups(const std::vector<CString>& groups)
{
    for (size_t i = 0; i < groups.size(); ++i)
    {
        if (CZNMsgManager::Instance().CountVisible(groups[i]) == 0)
            m_tree.RemoveGroup(groups[i]);
    }
}

bool CMsgPaletteChildDlg::Confirm(const CString& question)
{
    return MessageBox(question, kConfirmCaption, MB_YESNO | MB_ICONQUESTION) == IDYES;
}

CRect CMsgPaletteChildDlg::RectOf(const CWnd& control) const
{
    CRect rect;
    control.GetWindowRect(&rect);
    ScreenToClient(&rect);
    return rect;
}

CMsgViewRects CMsgPaletteChildDlg::GetRects() const
{
    CMsgViewRects rects;
    rects.list = RectOf(m_list);
    rects.count = RectOf(m_count);
    rects.tab = RectOf(m_tab);
    rects.tree = RectOf(m_tree);
    return rects;
}

// List and count keep their right edges, the row of buttons moves as it is.
void CMsgPaletteChildDlg::ShiftRightPart(int dx)
{
    for (int i = 0; i < kToolRowLength; ++i)
    {
        CWnd* const control = GetDlgItem(kToolRow[i]);
        CRect rect = RectOf(*control);
        rect.OffsetRect(dx, 0);
        control->MoveWindow(&rect);
    }
    CMsgViewRects rects = GetRects();
    rects.list.left += dx;
    rects.count.left += dx;
    m_list.MoveWindow(&rects.list);
    m_list.FitTextColumn();
    m_count.MoveWindow(&rects.count);
}
