#include "afx/core/File.h"

#include <string.h>

IMPLEMENT_DYNAMIC(CFileFind, CObject)

CFileFind::CFileFind() : m_search(INVALID_HANDLE_VALUE), m_found(), m_next() {}

CFileFind::~CFileFind()
{
    Close();
}

BOOL CFileFind::FindFile(LPCWSTR pattern, DWORD)
{
    Close();
    const CString name(pattern == NULL ? L"*.*" : pattern);
    m_search = ::FindFirstFileW(name, &m_next);
    if (m_search == INVALID_HANDLE_VALUE)
        return FALSE;
    CString full;
    LPWSTR filePart = NULL;
    const DWORD room = ::GetFullPathNameW(name, 0, NULL, NULL);
    const LPWSTR buffer = full.GetBuffer(static_cast<int>(room));
    ::GetFullPathNameW(name, room, buffer, &filePart);
    full.ReleaseBuffer(filePart == NULL ? -1 : static_cast<int>(filePart - buffer));
    m_folder = full.TrimRight(L'\\');
    return TRUE;
}

BOOL CFileFind::FindNextFile()
{
    if (m_search == INVALID_HANDLE_VALUE)
        return FALSE;
    m_found = m_next;
    return ::FindNextFileW(m_search, &m_next);
}

void CFileFind::Close()
{
    if (m_search != INVALID_HANDLE_VALUE)
        ::FindClose(m_search);
    m_search = INVALID_HANDLE_VALUE;
}

CString CFileFind::GetFileName() const
{
    return m_found.cFileName;
}

CString CFileFind::GetFilePath() const
{
    return m_folder + L"\\" + m_found.cFileName;
}

CString CFileFind::GetFileTitle() const
{
    const CString name = GetFileName();
    const int dot = name.ReverseFind(L'.');
    return dot < 0 ? name : name.Left(dot);
}

ULONGLONG CFileFind::GetLength() const
{
    return ULARGE_INTEGER{{m_found.nFileSizeLow, m_found.nFileSizeHigh}}.QuadPart;
}

BOOL CFileFind::GetLastWriteTime(CTime& time) const
{
    if (m_search == INVALID_HANDLE_VALUE)
        return FALSE;
    time = CTime(m_found.ftLastWriteTime);
    return TRUE;
}

BOOL CFileFind::IsDots() const
{
    return IsDirectory() && (wcscmp(m_found.cFileName, L".") == 0 || wcscmp(m_found.cFileName, L"..") == 0);
}
