#include "afx/dialog/ExchangeFailure.h"

#include "afx/app/WinApp.h"

namespace
{
LPCTSTR TextOf(afx::Refusal why)
{
    switch (why)
    {
    case afx::Refusal::NoInteger:
        return _T("请输入一个整数。");
    case afx::Refusal::NoUnsigned:
        return _T("请输入一个正整数。");
    case afx::Refusal::NoByte:
        return _T("请输入一个 0 到 255 之间的整数。");
    case afx::Refusal::NoNumber:
        return _T("请输入一个数。");
    default:
        return _T("请选择一个按钮。");
    }
}

void TellAndFail(CDataExchange* exchange, LPCTSTR text)
{
    AfxMessageBox(text, MB_OK | MB_ICONEXCLAMATION);
    exchange->Fail();
}
} // namespace

namespace afx
{
void RefuseValue(CDataExchange* exchange, Refusal why)
{
    TellAndFail(exchange, TextOf(why));
}

void RefuseRange(CDataExchange* exchange, const CString& least, const CString& most)
{
    CString text;
    text.Format(_T("请输入一个 %s 到 %s 之间的数。"), LPCTSTR(least), LPCTSTR(most));
    TellAndFail(exchange, text);
}

void RefuseLength(CDataExchange* exchange, int maxChars)
{
    CString text;
    text.Format(_T("请输入不超过 %d 个字符的文字。"), maxChars);
    TellAndFail(exchange, text);
}
} // namespace afx
