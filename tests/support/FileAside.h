// Puts a file of the user aside while it lives: a test begins without it and leaves it as it was.
#pragma once

#include <afxwin.h>

class FileAside
{
public:
    explicit FileAside(const CString& path) : m_path(path), m_aside(path + L".aside")
    {
        ::MoveFileExW(m_path, m_aside, MOVEFILE_REPLACE_EXISTING);
    }

    ~FileAside()
    {
        ::DeleteFileW(m_path);
        ::MoveFileExW(m_aside, m_path, MOVEFILE_REPLACE_EXISTING);
    }

    FileAside(const FileAside&) = delete;
    FileAside& operator=(const FileAside&) = delete;

private:
    CString m_path;
    CString m_aside;
};
