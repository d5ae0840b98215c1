#include "list/ZNListCtrl.h"

#include "edit/SuperEdit.h"
#include "list/CellKeys.h"
#include "list/DateText.h"
#include "list/InPlaceControl.h"
#include "list/ListRows.h"

namespace
{

const int kNoLastCell = -100;
const int kNoCellYet = -200;
const int kCellOfNoEdit = -100;
const int kFirstEditColumn = 1; // the one that the first key edits

CString TextOfWindow(const CWnd& wnd)
{
    CString text;
    wnd.GetWindowText(text);
    return text;
}

CString TextOfComboBox(const CComboBox& combo)
{
    // A drop-down has this bit, with or without an edit of its own; a simple one has not.
    if ((combo.GetStyle() & CBS_DROPDOWN) != 0)
        return TextOfWindow(combo);
    CString text;
    if (combo.GetCurSel() >= 0)
        combo.GetLBText(combo.GetCurSel(), text);
    return text;
}

CString TextOfPicker(const CDateTimeCtrl& picker)
{
    SYSTEMTIME moment;
    return picker.GetTime(&moment) == GDT_VALID ? DateTextOf(moment) : CString();
}

void CloseWindow(HWND window, bool byMessage)
{
    if (!::IsWindow(window))
        return;
    if (byMessage)
        ::PostMessage(window, WM_CLOSE, 0, 0);
    else
        ::DestroyWindow(window);
}

} // namespace

IMPLEMENT_DYNAMIC(CZNListCtrl, CZNSortListCtrl)

BEGIN_MESSAGE_MAP(CZNListCtrl, CZNSortListCtrl)
    ON_WM_LBUTTONDOWN()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_MOUSEWHEEL()
    ON_WM_DESTROY()
    ON_WM_PARENTNOTIFY()
    ON_BN_CLICKED(ID_BUTTON, &CZNListCtrl::OnBtn)
    ON_CBN_SELCHANGE(ID_COMBO_BOX, &CZNListCtrl::OnSelchangeCombo)
END_MESSAGE_MAP()

CZNListCtrl::CZNListCtrl()
    : m_pEditWnd(NULL), m_pEditButton(NULL), m_nLastItem(kNoLastCell), m_nLastSubItem(kNoLastCell),
      m_nEditItem(kNoCellYet), m_nEditSubItem(kNoCellYet), m_nNotifyMsg(0), m_bEnterNextEdit(true), m_nEditKind(None),
      m_dwListStyle(ZNLCS_CLICKEDIT | ZNLCS_DEFAULTEXTRA), m_keepsEditor(false)
{
    EnableSort(0);
}

CZNListCtrl::~CZNListCtrl()
{
    // Should the window still be there, the base destroys it, and the editors' objects end with their windows.
    ForgetEditor();
}

void CZNListCtrl::SetZNListCtrlStyle(unsigned long style)
{
    m_dwListStyle = style;
}

unsigned long CZNListCtrl::GetZNListCtrlStyle() const
{
    return m_dwListStyle;
}

void CZNListCtrl::SetIfEnterNextEdit(bool enter)
{
    m_bEnterNextEdit = enter;
}

bool CZNListCtrl::IsEdit(int nSubItem) const
{
    return IsEditableColumn(m_aNoEditColumns, nSubItem);
}

void CZNListCtrl::EndEdit()
{
    if (m_pEditWnd == NULL)
    {
        m_nEditKind = None;
        return;
    }
    if (IsButtonFocused())
        return;
    // Everything is taken out first: whatever follows may open the next editor, or end the list.
    CWnd* const editor = m_pEditWnd;
    const HWND list = m_hWnd;
    const HWND window = editor->m_hWnd;
    const HWND button = m_pEditButton->GetSafeHwnd();
    const EditKind kind = m_nEditKind;
    const CellPlace cell = {m_nEditItem, m_nEditSubItem};
    m_pEditWnd = NULL;
    m_pEditButton = NULL;
    m_nEditItem = kCellOfNoEdit;
    m_nEditSubItem = kCellOfNoEdit;
    m_nEditKind = None;
    const CString text = FinalText(editor, kind, cell.row, cell.column);
    CloseWindow(button, false);
    CloseWindow(window, kind == ComboBox);
    if (::IsWindow(list))
        Notify(LVN_ENDLABELEDITW, cell.row, cell.column, text);
}

BOOL CZNListCtrl::DestroyWindow()
{
    const bool isThere = m_hWnd == NULL || CloseEdit();
    return !isThere || CZNSortListCtrl::DestroyWindow();
}

BOOL CZNListCtrl::PreTranslateMessage(MSG* message)
{
    if (message->message == WM_KEYDOWN && m_hWnd != NULL && HandleKey(static_cast<UINT>(message->wParam)))
        return TRUE;
    return CZNSortListCtrl::PreTranslateMessage(message);
}

BOOL CZNListCtrl::OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo)
{
    const HWND list = m_hWnd;
    if (handlerInfo == NULL && IsFocusLost(id, code, extra))
    {
        EndEdit();
        if (!::IsWindow(list))
            return TRUE;
    }
    return CZNSortListCtrl::OnCmdMsg(id, code, extra, handlerInfo);
}

bool CZNListCtrl::PrepareSort()
{
    return CloseEdit();
}

BOOL CZNListCtrl::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    const UINT code = reinterpret_cast<NMHDR*>(lParam)->code;
    if ((code == HDN_BEGINTRACKW || code == HDN_BEGINTRACKA) && !CloseEdit())
        return TRUE;
    return CZNSortListCtrl::OnNotify(wParam, lParam, result);
}

void CZNListCtrl::OnLButtonDown(UINT flags, CPoint point)
{
    const CellPlace edited = CellAt(point);
    if (IsEdited(edited))
    {
        ClickEditedCell(flags, point, edited);
        return;
    }
    const HWND list = m_hWnd;
    SetFocus();
    if (!::IsWindow(list))
        return;
    const CellPlace cell = CellAt(point);
    if (cell.row >= 0 && !IsEdited(cell))
        EndEdit();
    if (!::IsWindow(list))
        return;
    CZNSortListCtrl::OnLButtonDown(flags, point);
    if (::IsWindow(list) && HasCell(cell.row, cell.column))
        ClickCell(cell);
}

void CZNListCtrl::OnHScroll(UINT code, UINT position, CScrollBar* scrollBar)
{
    if (CloseEdit())
        CZNSortListCtrl::OnHScroll(code, position, scrollBar);
}

void CZNListCtrl::OnVScroll(UINT code, UINT position, CScrollBar* scrollBar)
{
    if (CloseEdit())
        CZNSortListCtrl::OnVScroll(code, position, scrollBar);
}

BOOL CZNListCtrl::OnMouseWheel(UINT flags, short delta, CPoint screenPoint)
{
    return !CloseEdit() || CZNSortListCtrl::OnMouseWheel(flags, delta, screenPoint);
}

void CZNListCtrl::OnDestroy()
{
    ForgetEditor();
    CZNSortListCtrl::OnDestroy();
}

// An owner that destroys an editor itself leaves the list without one.
void CZNListCtrl::OnParentNotify(UINT message, LPARAM lParam)
{
    const HWND child = reinterpret_cast<HWND>(lParam);
    if (LOWORD(message) == WM_DESTROY && m_pEditButton != NULL && m_pEditButton->m_hWnd == child)
        m_pEditButton = NULL;
    if (LOWORD(message) == WM_DESTROY && m_pEditWnd != NULL && m_pEditWnd->m_hWnd == child)
    {
        const HWND button = m_pEditButton->GetSafeHwnd();
        ForgetEditor();
        CloseWindow(button, false);
    }
    CZNSortListCtrl::OnParentNotify(message, lParam);
}

void CZNListCtrl::OnBtn()
{
    const HWND list = m_hWnd;
    const HWND parent = ::GetParent(list);
    const CellPlace cell = {m_nEditItem, m_nEditSubItem};
    const UINT message = m_nNotifyMsg;
    if (m_pEditButton == NULL || CloseEdit())
        ::SendMessage(parent, message, cell.row, cell.column);
}

void CZNListCtrl::OnSelchangeCombo()
{
    if (m_pEditWnd == NULL || m_nEditKind != ComboBox || !IsFromEditor())
        return;
    const CComboBox& combo = *static_cast<CComboBox*>(m_pEditWnd);
    const int selected = combo.GetCurSel();
    const WPARAM data = selected < 0 ? 0 : combo.GetItemData(selected);
    ::PostMessage(::GetParent(m_hWnd), m_nNotifyMsg, data, 0);
}

bool CZNListCtrl::HasCell(int row, int column) const
{
    return row >= 0 && row < GetItemCount() && column >= 0 && column < CountColumns(*this);
}

// Ends the edit for good, also while the button has the focus: what closes the edit here is no click on it. False when
// the list is gone.
bool CZNListCtrl::CloseEdit()
{
    const HWND list = m_hWnd;
    if (IsButtonFocused())
        SetFocus();
    if (::IsWindow(list))
        EndEdit();
    return ::IsWindow(list) != FALSE;
}

bool CZNListCtrl::IsButtonFocused() const
{
    return m_pEditButton != NULL && ::GetFocus() == m_pEditButton->m_hWnd;
}

CString CZNListCtrl::FinalText(CWnd* editor, EditKind kind, int row, int column)
{
    switch (kind)
    {
    case ValidatingEdit:
        // The text of a cell may come from the owner, who must not be asked unless it is needed.
        return static_cast<CSuperEdit*>(editor)->IsValid() ? TextOfWindow(*editor) : GetItemText(row, column);
    case ComboBox:
        return TextOfComboBox(*static_cast<CComboBox*>(editor));
    case DateTime:
        return TextOfPicker(*static_cast<CDateTimeCtrl*>(editor));
    default:
        return TextOfWindow(*editor);
    }
}

// Whether it is the editor that tells the list of its lost focus, and the edit is to end with it. A combo box that is
// closing still speaks while the next editor is open.
bool CZNListCtrl::IsFocusLost(UINT id, int code, void* extra) const
{
    if (m_pEditWnd == NULL || m_keepsEditor || (m_dwListStyle & ZNLCS_KEEPEDITONKILLFOCUS) != 0)
        return false;
    if (id == ID_DATE_TIME && HIWORD(code) == WM_NOTIFY && LOWORD(code) == LOWORD(NM_KILLFOCUS))
    {
        if (extra == NULL || static_cast<AFX_NOTIFY*>(extra)->pNMHDR->hwndFrom != m_pEditWnd->m_hWnd)
            return false;
        const CWnd* const calendar = static_cast<CDateTimeCtrl*>(m_pEditWnd)->GetMonthCalCtrl();
        return calendar == NULL || ::GetFocus() != calendar->m_hWnd;
    }
    if (!(id == ID_EDIT && code == EN_KILLFOCUS) && !(id == ID_COMBO_BOX && code == CBN_KILLFOCUS))
        return false;
    return IsFromEditor();
}

// Whether the command that is being dispatched comes from the open editor.
bool CZNListCtrl::IsFromEditor() const
{
    return reinterpret_cast<HWND>(GetCurrentMessage()->lParam) == m_pEditWnd->m_hWnd;
}

void CZNListCtrl::ForgetEditor()
{
    m_pEditWnd = NULL;
    m_pEditButton = NULL;
    m_nEditItem = kCellOfNoEdit;
    m_nEditSubItem = kCellOfNoEdit;
    m_nEditKind = None;
}

CellPlace CZNListCtrl::CellAt(CPoint point)
{
    LVHITTESTINFO hit = {};
    hit.pt = point;
    hit.iItem = -1;
    hit.iSubItem = -1;
    SubItemHitTest(&hit);
    const CellPlace cell = {hit.iItem, hit.iSubItem};
    return cell;
}

bool CZNListCtrl::IsEdited(const CellPlace& cell) const
{
    return m_pEditWnd != NULL && cell.row == m_nEditItem && cell.column == m_nEditSubItem;
}

// The editor leaves a rim of some cells free. A click there takes the focus, as any click does; the editor stays open
// and gets the focus back.
void CZNListCtrl::ClickEditedCell(UINT flags, CPoint point, const CellPlace& cell)
{
    const HWND list = m_hWnd;
    m_keepsEditor = true;
    SetFocus();
    if (::IsWindow(list))
        CZNSortListCtrl::OnLButtonDown(flags, point);
    if (!::IsWindow(list))
        return;
    m_keepsEditor = false;
    m_nLastItem = cell.row;
    m_nLastSubItem = cell.column;
    if (m_pEditWnd != NULL && (m_dwListStyle & ZNLCS_KEEPEDITONKILLFOCUS) == 0)
        m_pEditWnd->SetFocus();
}

void CZNListCtrl::ClickCell(const CellPlace& cell)
{
    const bool onlySelects = cell.row != m_nLastItem && (m_dwListStyle & ZNLCS_CLICKEDIT) == 0;
    m_nLastItem = cell.row;
    m_nLastSubItem = cell.column;
    if (!onlySelects && !IsEdited(cell))
        AskForEditor(cell.row, cell.column);
}

// False: the key is not the list's. With true the list may be gone.
bool CZNListCtrl::HandleKey(UINT key)
{
    CellPlace target;
    if (m_pEditWnd == NULL)
    {
        if (!IsStartKey(key) || !FindStart(target))
            return false;
        EnterCell(target);
        return true;
    }
    const CellKey pressed = {key, ::GetKeyState(VK_SHIFT) < 0, ::GetKeyState(VK_CONTROL) < 0};
    const CellPlace edited = {m_nEditItem, m_nEditSubItem};
    if (!FindKeyTarget(pressed, m_nEditKind == ComboBox, Grid(), edited, target))
        return false;
    MoveTo(target);
    return true;
}

CellGrid CZNListCtrl::Grid() const
{
    const CellGrid grid = {GetItemCount(), CountColumns(*this), &m_aNoEditColumns};
    return grid;
}

bool CZNListCtrl::FindStart(CellPlace& start) const
{
    start.row = GetNextItem(-1, LVNI_FOCUSED);
    start.column = m_nLastSubItem < 0 ? kFirstEditColumn : m_nLastSubItem;
    return start.row >= 0 && GetItemState(start.row, kSelectedAndFocused) == kSelectedAndFocused;
}

void CZNListCtrl::MoveTo(const CellPlace& target)
{
    if (CloseEdit() && SelectOnlyRow(*this, target.row))
        EnterCell(target);
}

void CZNListCtrl::EnterCell(const CellPlace& cell)
{
    m_nLastItem = cell.row;
    m_nLastSubItem = cell.column;
    if (m_bEnterNextEdit && cell.row < GetItemCount())
        AskForEditor(cell.row, cell.column);
}

void CZNListCtrl::AskForEditor(int row, int column)
{
    const HWND list = m_hWnd;
    const CString text = GetItemText(row, column); // the owner may have to be asked for it
    if (::IsWindow(list))
        Notify(LVN_BEGINLABELEDITW, row, column, text);
}

void CZNListCtrl::Notify(UINT code, int row, int column, CString text)
{
    NMLVDISPINFOW info = {};
    info.hdr.hwndFrom = m_hWnd;
    info.hdr.idFrom = GetDlgCtrlID();
    info.hdr.code = code;
    info.item.mask = LVIF_TEXT;
    info.item.iItem = row;
    info.item.iSubItem = column;
    info.item.cchTextMax = text.GetLength();
    info.item.pszText = text.GetBuffer(); // a copy of its own, should the owner write into it
    ::SendMessage(::GetParent(m_hWnd), WM_NOTIFY, info.hdr.idFrom, reinterpret_cast<LPARAM>(&info));
}
