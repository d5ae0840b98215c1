#include "afx/dialog/DataExchange.h"

#include "afx/core/Exceptions.h"
#include "afx/wnd/Wnd.h"

CDataExchange::CDataExchange(CWnd* dialog, BOOL saveAndValidate)
    : m_bSaveAndValidate(saveAndValidate), m_pDlgWnd(dialog)
{
}

HWND CDataExchange::PrepareCtrl(int controlId)
{
    const HWND control = ::GetDlgItem(m_pDlgWnd->m_hWnd, controlId);
    if (control == nullptr)
        AfxThrowNotSupportedException();
    m_idLastControl = static_cast<UINT>(controlId);
    m_bEditLastControl = FALSE;
    return control;
}

HWND CDataExchange::PrepareEditCtrl(int controlId)
{
    const HWND control = PrepareCtrl(controlId);
    m_bEditLastControl = TRUE;
    return control;
}

void CDataExchange::Fail()
{
    const HWND control = ::GetDlgItem(m_pDlgWnd->m_hWnd, static_cast<int>(m_idLastControl));
    if (m_bSaveAndValidate && m_idLastControl != 0 && control != nullptr)
    {
        ::SetFocus(control);
        if (m_bEditLastControl)
            ::SendMessage(control, EM_SETSEL, 0, -1);
    }
    AfxThrowUserException();
}

void AFXAPI DDX_Control(CDataExchange* exchange, int controlId, CWnd& control)
{
    if (control.m_hWnd != nullptr || exchange->m_bSaveAndValidate)
        return;
    const HWND window = exchange->PrepareCtrl(controlId);
    if (!control.SubclassWindow(window))
        AfxThrowNotSupportedException();
}
