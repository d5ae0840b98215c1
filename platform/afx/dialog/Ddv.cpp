#include "afx/dialog/ExchangeFailure.h"

#include "afx/wnd/Wnd.h"

// Validations refer to the control that the exchange of the value prepared.
namespace
{
CString Shown(LONGLONG value)
{
    CString text;
    text.Format(_T("%I64d"), value);
    return text;
}

CString ShownUnsigned(ULONGLONG value)
{
    CString text;
    text.Format(_T("%I64u"), value);
    return text;
}

CString ShownReal(double value)
{
    CString text;
    text.Format(_T("%g"), value);
    return text;
}

// A program may start with a value outside; only what the user leaves there is refused.
template<class VALUE, class SHOW>
void CheckRange(CDataExchange* exchange, VALUE value, VALUE least, VALUE most, SHOW show)
{
    if (exchange->m_bSaveAndValidate && (value < least || value > most))
        afx::RefuseRange(exchange, show(least), show(most));
}
} // namespace

void AFXAPI DDV_MinMaxByte(CDataExchange* exchange, BYTE value, BYTE least, BYTE most)
{
    CheckRange(exchange, value, least, most, &Shown);
}

void AFXAPI DDV_MinMaxShort(CDataExchange* exchange, short value, short least, short most)
{
    CheckRange(exchange, value, least, most, &Shown);
}

void AFXAPI DDV_MinMaxInt(CDataExchange* exchange, int value, int least, int most)
{
    CheckRange(exchange, value, least, most, &Shown);
}

void AFXAPI DDV_MinMaxLong(CDataExchange* exchange, long value, long least, long most)
{
    CheckRange(exchange, value, least, most, &Shown);
}

void AFXAPI DDV_MinMaxUInt(CDataExchange* exchange, UINT value, UINT least, UINT most)
{
    CheckRange(exchange, value, least, most, &ShownUnsigned);
}

void AFXAPI DDV_MinMaxDWord(CDataExchange* exchange, DWORD value, DWORD least, DWORD most)
{
    CheckRange(exchange, value, least, most, &ShownUnsigned);
}

void AFXAPI DDV_MinMaxLongLong(CDataExchange* exchange, LONGLONG value, LONGLONG least, LONGLONG most)
{
    CheckRange(exchange, value, least, most, &Shown);
}

void AFXAPI DDV_MinMaxFloat(CDataExchange* exchange, const float& value, float least, float most)
{
    CheckRange(exchange, value, least, most, &ShownReal);
}

void AFXAPI DDV_MinMaxDouble(CDataExchange* exchange, const double& value, double least, double most)
{
    CheckRange(exchange, value, least, most, &ShownReal);
}

void AFXAPI DDV_MaxChars(CDataExchange* exchange, const CString& value, int maxChars)
{
    if (exchange->m_bSaveAndValidate)
    {
        if (value.GetLength() > maxChars)
            afx::RefuseLength(exchange, maxChars);
        return;
    }
    const HWND control = ::GetDlgItem(exchange->m_pDlgWnd->m_hWnd, static_cast<int>(exchange->m_idLastControl));
    // A combo box limits its text field by a message of its own; the foreign one is ignored.
    ::SendMessage(control, EM_LIMITTEXT, maxChars, 0);
    ::SendMessage(control, CB_LIMITTEXT, maxChars, 0);
}
