// CZNListCtrl: opening the editors of a cell.
#include "list/ZNListCtrl.h"

#include "edit/SuperEdit.h"
#include "list/DateText.h"
#include "list/EditorPlace.h"
#include "list/InPlaceControl.h"

namespace
{

const DWORD kEditStyle = WS_CHILD | WS_VISIBLE | WS_BORDER | WS_TABSTOP | ES_AUTOHSCROLL;
const DWORD kButtonStyle = WS_CHILD | WS_VISIBLE;
const DWORD kComboBoxStyle = WS_CHILD | WS_VISIBLE | WS_VSCROLL | CBS_AUTOHSCROLL;
const DWORD kDateTimeStyle = WS_CHILD | WS_VISIBLE;
const wchar_t kButtonText[] = L"\x2026"; // an ellipsis

} // namespace

CSuperEdit* CZNListCtrl::ShowInPlaceEdit(int nItem, int nSubItem, const wchar_t* text)
{
    CRect cell;
    if (!PrepareCell(nItem, nSubItem, cell))
        return NULL;
    CSuperEdit* const edit = new CInPlaceControl<CSuperEdit>;
    if (!edit->Create(kEditStyle, cell, this, ID_EDIT))
        return NULL;
    Open(edit, ValidatingEdit, nItem, nSubItem);
    return ShowText(edit, text) ? edit : NULL;
}

CEdit* CZNListCtrl::ShowInPlaceEditBtn(int nItem, int nSubItem, int nMsg, const wchar_t* text)
{
    CRect cell;
    if (!PrepareCell(nItem, nSubItem, cell))
        return NULL;
    CEdit* const edit = new CInPlaceControl<CEdit>;
    if (!edit->Create(kEditStyle, EditBesideButton(cell), this, ID_EDIT))
        return NULL;
    CButton* const button = new CInPlaceControl<CButton>;
    if (!button->Create(kButtonText, kButtonStyle, ButtonPlace(cell), this, ID_BUTTON))
    {
        edit->DestroyWindow();
        return NULL;
    }
    m_pEditButton = button;
    m_nNotifyMsg = nMsg;
    TakeFont(button);
    Open(edit, EditWithButton, nItem, nSubItem);
    return ShowText(edit, text) ? edit : NULL;
}

CComboBox* CZNListCtrl::ShowInPlaceComboBox(int nItem, int nSubItem, unsigned long dwStyle, int nMsg)
{
    CRect cell;
    if (!PrepareCell(nItem, nSubItem, cell))
        return NULL;
    CComboBox* const combo = new CInPlaceControl<CComboBox>;
    if (!combo->Create(dwStyle | kComboBoxStyle, ComboBoxPlace(cell), this, ID_COMBO_BOX))
        return NULL;
    m_nNotifyMsg = nMsg;
    Open(combo, ComboBox, nItem, nSubItem);
    return GiveFocus(combo) ? combo : NULL;
}

CDateTimeCtrl* CZNListCtrl::ShowInPlaceDateTimeCtrl(int nItem, int nSubItem, unsigned long dwStyle, const CTime* pTime)
{
    SYSTEMTIME moment;
    const bool isGiven = pTime != NULL && pTime->GetAsSystemTime(moment);
    return OpenPicker(nItem, nSubItem, dwStyle, isGiven ? &moment : NULL);
}

// Not by way of a CTime, which knows fewer years than the picker.
CDateTimeCtrl* CZNListCtrl::ShowInPlaceDateTimeCtrl(int nItem, int nSubItem, unsigned long dwStyle, const wchar_t* text)
{
    SYSTEMTIME moment;
    const bool isGiven = text != NULL && *text != L'\0' && NearestMoment(ReadDateText(text), moment);
    return OpenPicker(nItem, nSubItem, dwStyle, isGiven ? &moment : NULL);
}

bool CZNListCtrl::PrepareCell(int row, int column, CRect& cell)
{
    if (!::IsWindow(m_hWnd) || !HasCell(row, column) || !CloseEdit() || !HasCell(row, column))
        return false;
    // An owner who opened another editor when the last one ended keeps that one.
    if (m_pEditWnd != NULL)
        return false;
    // The bounds of column 0 are those of the whole row.
    return GetSubItemRect(row, column, column == 0 ? LVIR_LABEL : LVIR_BOUNDS, cell) != FALSE;
}

// Recorded before it gets the focus, because an owner who hears of the focus may open the next one.
void CZNListCtrl::Open(CWnd* editor, EditKind kind, int row, int column)
{
    m_pEditWnd = editor;
    m_nEditKind = kind;
    m_nEditItem = row;
    m_nEditSubItem = column;
    TakeFont(editor);
}

void CZNListCtrl::TakeFont(CWnd* editor)
{
    const WPARAM font = ::SendMessage(m_hWnd, WM_GETFONT, 0, 0);
    ::SendMessage(editor->m_hWnd, WM_SETFONT, font, TRUE);
}

// False when the editor was closed on the way; the list may be gone as well then.
bool CZNListCtrl::GiveFocus(CWnd* editor)
{
    const HWND list = m_hWnd;
    const HWND window = editor->m_hWnd;
    ::SetFocus(window);
    return ::IsWindow(list) && m_pEditWnd == editor && ::IsWindow(window);
}

bool CZNListCtrl::ShowText(CEdit* edit, const wchar_t* text)
{
    edit->SetWindowText(text == NULL ? L"" : text);
    if (!GiveFocus(edit))
        return false;
    ::SendMessage(edit->m_hWnd, EM_SETSEL, 0, -1);
    ::SendMessage(edit->m_hWnd, EM_SCROLLCARET, 0, 0);
    return true;
}

CDateTimeCtrl* CZNListCtrl::OpenPicker(int row, int column, unsigned long style, SYSTEMTIME* moment)
{
    CRect cell;
    if (!PrepareCell(row, column, cell))
        return NULL;
    CDateTimeCtrl* const picker = new CInPlaceControl<CDateTimeCtrl>;
    if (!picker->Create(style | kDateTimeStyle, DatePickerPlace(cell), this, ID_DATE_TIME))
        return NULL;
    Open(picker, DateTime, row, column);
    if (!GiveFocus(picker))
        return NULL;
    if (moment != NULL)
        picker->SetTime(moment);
    return picker;
}
