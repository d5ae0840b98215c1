#include "afx/core/Time.h"
#include "afx/dialog/ExchangeFailure.h"
#include "afx/wnd/Wnd.h"

#include <commctrl.h>

// Buttons, lists and bars.
namespace
{
const int NothingChosen = -1;

int Ask(HWND control, UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
{
    return static_cast<int>(::SendMessage(control, message, wParam, lParam));
}

bool IsRadioButton(HWND control)
{
    return (::SendMessage(control, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON) != 0;
}

// The buttons of the group that starts with this one.
HWND NextInGroup(HWND control)
{
    const HWND next = ::GetWindow(control, GW_HWNDNEXT);
    const bool ends = next == nullptr || (::GetWindowLongPtr(next, GWL_STYLE) & WS_GROUP) != 0;
    return ends ? nullptr : next;
}

// Messages by which list boxes and combo boxes do the same.
struct ListMessages
{
    UINT getSelection;
    UINT setSelection;
    UINT textLength;
    UINT text;
    UINT findExact;
};

const ListMessages ListBoxMessages = {LB_GETCURSEL, LB_SETCURSEL, LB_GETTEXTLEN, LB_GETTEXT, LB_FINDSTRINGEXACT};
const ListMessages ComboBoxMessages = {CB_GETCURSEL, CB_SETCURSEL, CB_GETLBTEXTLEN, CB_GETLBTEXT, CB_FINDSTRINGEXACT};

CString SelectedText(HWND control, const ListMessages& messages)
{
    CString text;
    const int index = Ask(control, messages.getSelection);
    if (index < 0)
        return text;
    const int length = Ask(control, messages.textLength, index);
    ::SendMessage(control, messages.text, index, LPARAM(text.GetBufferSetLength(length)));
    text.ReleaseBuffer(length);
    return text;
}

CString WindowText(HWND control)
{
    CString text;
    const int length = ::GetWindowTextLength(control);
    const int copied = ::GetWindowText(control, text.GetBufferSetLength(length), length + 1);
    text.ReleaseBuffer(copied);
    return text;
}

void ExchangeIndex(CDataExchange* exchange, int controlId, int& index, const ListMessages& messages)
{
    const HWND control = exchange->PrepareCtrl(controlId);
    if (exchange->m_bSaveAndValidate)
        index = Ask(control, messages.getSelection);
    else
        Ask(control, messages.setSelection, static_cast<WPARAM>(index));
}

void SelectExactly(HWND control, const CString& value, const ListMessages& messages)
{
    const int index = Ask(control, messages.findExact, static_cast<WPARAM>(-1), LPARAM(LPCTSTR(value)));
    Ask(control, messages.setSelection, static_cast<WPARAM>(index));
}

bool HasTextField(HWND comboBox)
{
    return (::GetWindowLongPtr(comboBox, GWL_STYLE) & CBS_DROPDOWNLIST) != CBS_DROPDOWNLIST;
}
} // namespace

void AFXAPI DDX_Check(CDataExchange* exchange, int controlId, int& value)
{
    const HWND control = exchange->PrepareCtrl(controlId);
    if (exchange->m_bSaveAndValidate)
        value = Ask(control, BM_GETCHECK);
    else
        Ask(control, BM_SETCHECK, value < BST_UNCHECKED || value > BST_INDETERMINATE ? BST_UNCHECKED : value);
}

void AFXAPI DDX_Radio(CDataExchange* exchange, int controlId, int& value)
{
    HWND control = exchange->PrepareCtrl(controlId);
    if (exchange->m_bSaveAndValidate)
        value = NothingChosen;
    for (int index = 0; control != nullptr; control = NextInGroup(control))
    {
        if (!IsRadioButton(control))
            continue;
        if (!exchange->m_bSaveAndValidate)
            Ask(control, BM_SETCHECK, index == value ? BST_CHECKED : BST_UNCHECKED);
        else if (Ask(control, BM_GETCHECK) == BST_CHECKED)
            value = index;
        ++index;
    }
}

void AFXAPI DDX_LBString(CDataExchange* exchange, int controlId, CString& value)
{
    const HWND control = exchange->PrepareCtrl(controlId);
    if (exchange->m_bSaveAndValidate)
        value = SelectedText(control, ListBoxMessages);
    else if (Ask(control, LB_SELECTSTRING, static_cast<WPARAM>(-1), LPARAM(LPCTSTR(value))) == LB_ERR)
        Ask(control, LB_SETCURSEL, static_cast<WPARAM>(-1));
}

void AFXAPI DDX_LBStringExact(CDataExchange* exchange, int controlId, CString& value)
{
    const HWND control = exchange->PrepareCtrl(controlId);
    if (exchange->m_bSaveAndValidate)
        value = SelectedText(control, ListBoxMessages);
    else
        SelectExactly(control, value, ListBoxMessages);
}

void AFXAPI DDX_LBIndex(CDataExchange* exchange, int controlId, int& index)
{
    ExchangeIndex(exchange, controlId, index, ListBoxMessages);
}

void AFXAPI DDX_CBString(CDataExchange* exchange, int controlId, CString& value)
{
    const HWND control = exchange->PrepareCtrl(controlId);
    if (exchange->m_bSaveAndValidate)
    {
        value = WindowText(control);
        return;
    }
    // A text that isn't in the list still belongs into the text field.
    if (Ask(control, CB_SELECTSTRING, static_cast<WPARAM>(-1), LPARAM(LPCTSTR(value))) == CB_ERR)
        ::SetWindowText(control, value);
}

void AFXAPI DDX_CBStringExact(CDataExchange* exchange, int controlId, CString& value)
{
    const HWND control = exchange->PrepareCtrl(controlId);
    if (exchange->m_bSaveAndValidate)
    {
        value = WindowText(control);
        return;
    }
    SelectExactly(control, value, ComboBoxMessages);
    if (Ask(control, CB_GETCURSEL) == CB_ERR && HasTextField(control))
        ::SetWindowText(control, value);
}

void AFXAPI DDX_CBIndex(CDataExchange* exchange, int controlId, int& index)
{
    ExchangeIndex(exchange, controlId, index, ComboBoxMessages);
}

void AFXAPI DDX_Scroll(CDataExchange* exchange, int controlId, int& value)
{
    const HWND control = exchange->PrepareCtrl(controlId);
    if (exchange->m_bSaveAndValidate)
        value = ::GetScrollPos(control, SB_CTL);
    else
        ::SetScrollPos(control, SB_CTL, value, TRUE);
}

void AFXAPI DDX_Slider(CDataExchange* exchange, int controlId, int& value)
{
    const HWND control = exchange->PrepareCtrl(controlId);
    if (exchange->m_bSaveAndValidate)
        value = Ask(control, TBM_GETPOS);
    else
        Ask(control, TBM_SETPOS, TRUE, value);
}

void AFXAPI DDX_DateTimeCtrl(CDataExchange* exchange, int controlId, CTime& value)
{
    const HWND control = exchange->PrepareCtrl(controlId);
    SYSTEMTIME time = {};
    if (!exchange->m_bSaveAndValidate)
    {
        if (value.GetAsSystemTime(time))
            ::SendMessage(control, DTM_SETSYSTEMTIME, GDT_VALID, LPARAM(&time));
        return;
    }
    if (::SendMessage(control, DTM_GETSYSTEMTIME, 0, LPARAM(&time)) == GDT_VALID)
        value = CTime(time);
}
