// CDataExchange and the DDX_/DDV_ routines: values between a dialog's controls and its members.
//
// CWnd::UpdateData makes a CDataExchange and calls DoDataExchange; each DDX_ routine moves one value in the direction
// of m_bSaveAndValidate (TRUE: control to variable). A value that can't be read shows a message, puts the focus into
// the control and ends the exchange through Fail, which throws a CUserException that UpdateData catches.
#pragma once

#include <afx.h>

class CTime;
class CWnd;

class AFX_API CDataExchange
{
public:
    CDataExchange(CWnd* dialog, BOOL saveAndValidate);

    BOOL m_bSaveAndValidate;
    CWnd* m_pDlgWnd;

    // Both remember the control for Fail and return its handle; a missing control ends the exchange by
    // CNotSupportedException.
    HWND PrepareCtrl(int controlId);
    HWND PrepareEditCtrl(int controlId);

    // Puts the focus into the control prepared last and ends the exchange by throwing CUserException.
    void Fail();

    UINT m_idLastControl = 0;
    BOOL m_bEditLastControl = FALSE;
};

// Subclasses the control on the first exchange; throws CNotSupportedException where it can't.
AFX_API void AFXAPI DDX_Control(CDataExchange* exchange, int controlId, CWnd& control);

AFX_API void AFXAPI DDX_Text(CDataExchange* exchange, int controlId, BYTE& value);
AFX_API void AFXAPI DDX_Text(CDataExchange* exchange, int controlId, short& value);
AFX_API void AFXAPI DDX_Text(CDataExchange* exchange, int controlId, int& value);
AFX_API void AFXAPI DDX_Text(CDataExchange* exchange, int controlId, UINT& value);
AFX_API void AFXAPI DDX_Text(CDataExchange* exchange, int controlId, long& value);
AFX_API void AFXAPI DDX_Text(CDataExchange* exchange, int controlId, DWORD& value);
AFX_API void AFXAPI DDX_Text(CDataExchange* exchange, int controlId, LONGLONG& value);
AFX_API void AFXAPI DDX_Text(CDataExchange* exchange, int controlId, ULONGLONG& value);
AFX_API void AFXAPI DDX_Text(CDataExchange* exchange, int controlId, float& value);
AFX_API void AFXAPI DDX_Text(CDataExchange* exchange, int controlId, double& value);
AFX_API void AFXAPI DDX_Text(CDataExchange* exchange, int controlId, CString& value);
AFX_API void AFXAPI DDX_Text(CDataExchange* exchange, int controlId, LPTSTR value, int maxLength);

AFX_API void AFXAPI DDX_Check(CDataExchange* exchange, int controlId, int& value);
// Index of the checked button in the group that starts at controlId, -1 for none.
AFX_API void AFXAPI DDX_Radio(CDataExchange* exchange, int controlId, int& value);
AFX_API void AFXAPI DDX_LBString(CDataExchange* exchange, int controlId, CString& value);
AFX_API void AFXAPI DDX_LBStringExact(CDataExchange* exchange, int controlId, CString& value);
AFX_API void AFXAPI DDX_LBIndex(CDataExchange* exchange, int controlId, int& index);
AFX_API void AFXAPI DDX_CBString(CDataExchange* exchange, int controlId, CString& value);
AFX_API void AFXAPI DDX_CBStringExact(CDataExchange* exchange, int controlId, CString& value);
AFX_API void AFXAPI DDX_CBIndex(CDataExchange* exchange, int controlId, int& index);
AFX_API void AFXAPI DDX_Scroll(CDataExchange* exchange, int controlId, int& value);
AFX_API void AFXAPI DDX_Slider(CDataExchange* exchange, int controlId, int& value);
AFX_API void AFXAPI DDX_DateTimeCtrl(CDataExchange* exchange, int controlId, CTime& value);

// The validations follow the DDX_Text of the same value: they refer to the control prepared last.
AFX_API void AFXAPI DDV_MinMaxByte(CDataExchange* exchange, BYTE value, BYTE least, BYTE most);
AFX_API void AFXAPI DDV_MinMaxShort(CDataExchange* exchange, short value, short least, short most);
AFX_API void AFXAPI DDV_MinMaxInt(CDataExchange* exchange, int value, int least, int most);
AFX_API void AFXAPI DDV_MinMaxLong(CDataExchange* exchange, long value, long least, long most);
AFX_API void AFXAPI DDV_MinMaxUInt(CDataExchange* exchange, UINT value, UINT least, UINT most);
AFX_API void AFXAPI DDV_MinMaxDWord(CDataExchange* exchange, DWORD value, DWORD least, DWORD most);
AFX_API void AFXAPI DDV_MinMaxLongLong(CDataExchange* exchange, LONGLONG value, LONGLONG least, LONGLONG most);
AFX_API void AFXAPI DDV_MinMaxFloat(CDataExchange* exchange, const float& value, float least, float most);
AFX_API void AFXAPI DDV_MinMaxDouble(CDataExchange* exchange, const double& value, double least, double most);
// Limits the edit's typing as well, when the control is filled.
AFX_API void AFXAPI DDV_MaxChars(CDataExchange* exchange, const CString& value, int maxChars);
