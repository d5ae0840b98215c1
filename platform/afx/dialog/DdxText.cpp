#include "afx/dialog/ExchangeFailure.h"

#include "afx/wnd/Wnd.h"

#include <errno.h>
#include <float.h>
#include <limits>

// Numbers in text fields. A number is read with blanks around it; anything else behind it refuses the value.
namespace
{
using afx::Refusal;

CString TextIn(HWND control)
{
    CString text;
    const int length = ::GetWindowTextLength(control);
    const int copied = ::GetWindowText(control, text.GetBufferSetLength(length), length + 1);
    text.ReleaseBuffer(copied);
    return text;
}

// An unchanged text isn't set again: it would flicker, and take the selection away.
void ShowText(HWND control, LPCTSTR text)
{
    if (TextIn(control) != text)
        ::SetWindowText(control, text);
}

// The text between its blanks; empty texts have no number.
CString Trimmed(CString text)
{
    text.TrimLeft();
    text.TrimRight();
    return text;
}

bool ParseSigned(const CString& text, LONGLONG& value)
{
    LPTSTR end = nullptr;
    errno = 0;
    value = _tcstoi64(text, &end, 10);
    return !text.IsEmpty() && *end == 0 && errno == 0;
}

bool ParseUnsigned(const CString& text, ULONGLONG& value)
{
    LPTSTR end = nullptr;
    errno = 0;
    value = _tcstoui64(text, &end, 10);
    return !text.IsEmpty() && text[0] != '-' && *end == 0 && errno == 0;
}

template<class INTEGER>
void ExchangeSigned(CDataExchange* exchange, int controlId, INTEGER& value)
{
    const HWND control = exchange->PrepareEditCtrl(controlId);
    if (!exchange->m_bSaveAndValidate)
    {
        CString text;
        text.Format(_T("%I64d"), static_cast<LONGLONG>(value));
        ShowText(control, text);
        return;
    }
    LONGLONG read = 0;
    typedef std::numeric_limits<INTEGER> Limits;
    if (!ParseSigned(Trimmed(TextIn(control)), read) || read < Limits::min() || read > Limits::max())
        afx::RefuseValue(exchange, Refusal::NoInteger);
    value = static_cast<INTEGER>(read);
}

template<class INTEGER>
void ExchangeUnsigned(CDataExchange* exchange, int controlId, INTEGER& value, Refusal refusal = Refusal::NoUnsigned)
{
    const HWND control = exchange->PrepareEditCtrl(controlId);
    if (!exchange->m_bSaveAndValidate)
    {
        CString text;
        text.Format(_T("%I64u"), static_cast<ULONGLONG>(value));
        ShowText(control, text);
        return;
    }
    ULONGLONG read = 0;
    if (!ParseUnsigned(Trimmed(TextIn(control)), read) || read > std::numeric_limits<INTEGER>::max())
        afx::RefuseValue(exchange, refusal);
    value = static_cast<INTEGER>(read);
}

template<class REAL>
void ExchangeReal(CDataExchange* exchange, int controlId, REAL& value, int digits)
{
    const HWND control = exchange->PrepareEditCtrl(controlId);
    if (!exchange->m_bSaveAndValidate)
    {
        CString text;
        text.Format(_T("%.*g"), digits, static_cast<double>(value));
        ShowText(control, text);
        return;
    }
    const CString text = Trimmed(TextIn(control));
    LPTSTR end = nullptr;
    const double read = _tcstod(text, &end);
    if (text.IsEmpty() || *end != 0)
        afx::RefuseValue(exchange, Refusal::NoNumber);
    value = static_cast<REAL>(read);
}
} // namespace

void AFXAPI DDX_Text(CDataExchange* exchange, int controlId, BYTE& value)
{
    ExchangeUnsigned(exchange, controlId, value, Refusal::NoByte);
}

void AFXAPI DDX_Text(CDataExchange* exchange, int controlId, short& value)
{
    ExchangeSigned(exchange, controlId, value);
}

void AFXAPI DDX_Text(CDataExchange* exchange, int controlId, int& value)
{
    ExchangeSigned(exchange, controlId, value);
}

void AFXAPI DDX_Text(CDataExchange* exchange, int controlId, UINT& value)
{
    ExchangeUnsigned(exchange, controlId, value);
}

void AFXAPI DDX_Text(CDataExchange* exchange, int controlId, long& value)
{
    ExchangeSigned(exchange, controlId, value);
}

void AFXAPI DDX_Text(CDataExchange* exchange, int controlId, DWORD& value)
{
    ExchangeUnsigned(exchange, controlId, value);
}

void AFXAPI DDX_Text(CDataExchange* exchange, int controlId, LONGLONG& value)
{
    ExchangeSigned(exchange, controlId, value);
}

void AFXAPI DDX_Text(CDataExchange* exchange, int controlId, ULONGLONG& value)
{
    ExchangeUnsigned(exchange, controlId, value);
}

void AFXAPI DDX_Text(CDataExchange* exchange, int controlId, float& value)
{
    ExchangeReal(exchange, controlId, value, FLT_DIG);
}

void AFXAPI DDX_Text(CDataExchange* exchange, int controlId, double& value)
{
    ExchangeReal(exchange, controlId, value, DBL_DIG);
}

void AFXAPI DDX_Text(CDataExchange* exchange, int controlId, CString& value)
{
    const HWND control = exchange->PrepareEditCtrl(controlId);
    if (exchange->m_bSaveAndValidate)
        value = TextIn(control);
    else
        ShowText(control, value);
}

void AFXAPI DDX_Text(CDataExchange* exchange, int controlId, LPTSTR value, int maxLength)
{
    const HWND control = exchange->PrepareEditCtrl(controlId);
    if (exchange->m_bSaveAndValidate)
        ::lstrcpyn(value, TextIn(control), maxLength);
    else
        ShowText(control, value);
}
