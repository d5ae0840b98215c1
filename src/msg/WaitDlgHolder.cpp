#include "msg/WaitDlgHolder.h"

#include <ZNWaitDlgDll.h>

namespace
{

const wchar_t kSeparator = L'\n';

} // namespace

CWaitDlgHolder::CWaitDlgHolder() : m_dialog(new CShowWaitDlg) {}

CWaitDlgHolder::~CWaitDlgHolder()
{
    delete m_dialog;
}

CShowWaitDlg& CWaitDlgHolder::GetDialog()
{
    return *m_dialog;
}

const CShowWaitDlg& CWaitDlgHolder::GetDialog() const
{
    return *m_dialog;
}

bool CWaitDlgHolder::IsEmpty() const
{
    return m_lines.GetSize() == 0;
}

void CWaitDlgHolder::Push(const wchar_t* text)
{
    Append(text);
    Refresh();
}

CString CWaitDlgHolder::Pop()
{
    const CString last = GetLast();
    CutLast();
    Refresh();
    return last;
}

CString CWaitDlgHolder::GetLast() const
{
    return m_lines.GetAt(m_lines.GetUpperBound());
}

void CWaitDlgHolder::SetLast(const wchar_t* text)
{
    CutLast();
    Append(text);
    Refresh();
}

void CWaitDlgHolder::Append(const wchar_t* text)
{
    m_lines.Add(CString(text));
    if (m_lines.GetSize() > 1)
        m_text += kSeparator;
    m_text += m_lines.GetAt(m_lines.GetUpperBound());
}

void CWaitDlgHolder::CutLast()
{
    const bool isOnly = m_lines.GetSize() == 1;
    m_text.Truncate(m_text.GetLength() - GetLast().GetLength() - (isOnly ? 0 : 1));
    m_lines.RemoveAt(m_lines.GetUpperBound());
}

void CWaitDlgHolder::Refresh()
{
    m_dialog->SetMsg(m_text);
}
