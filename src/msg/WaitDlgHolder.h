// A wait dialog with its stack of progress lines: the last line is the top one. The dialog shows all of them, the
// oldest first.
#pragma once

#include <afxwin.h>
#include <afxcoll.h>

class CShowWaitDlg;

class CWaitDlgHolder
{
public:
    // Opens the dialog, without lines.
    CWaitDlgHolder();
    // Closes it.
    ~CWaitDlgHolder();

    CShowWaitDlg& GetDialog();
    const CShowWaitDlg& GetDialog() const;

    bool IsEmpty() const;
    void Push(const wchar_t* text);

    // For these there must be a line; the framework's invalid-argument exception otherwise.
    CString Pop();
    CString GetLast() const;
    void SetLast(const wchar_t* text);

private:
    CWaitDlgHolder(const CWaitDlgHolder&);
    CWaitDlgHolder& operator=(const CWaitDlgHolder&);

    void Append(const wchar_t* text);
    void CutLast();
    void Refresh();

    CShowWaitDlg* m_dialog; // owned
    CStringArray m_lines;
    CString m_text; // the lines joined, kept so that a change costs its own length
};
