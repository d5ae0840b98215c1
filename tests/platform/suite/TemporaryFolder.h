// An empty folder that goes with the test, with the files in it.
#pragma once

#include <afx.h>

class TemporaryFolder
{
public:
    TemporaryFolder()
    {
        wchar_t base[MAX_PATH] = {};
        ::GetTempPathW(MAX_PATH, base);
        m_path.Format(L"%sznkt_suite_%u", base, ::GetCurrentProcessId());
        ::CreateDirectoryW(m_path, nullptr);
    }

    ~TemporaryFolder()
    {
        WIN32_FIND_DATAW found = {};
        const HANDLE search = ::FindFirstFileW(m_path + L"\\*", &found);
        if (search != INVALID_HANDLE_VALUE)
        {
            do
                ::DeleteFileW(m_path + L"\\" + found.cFileName);
            while (::FindNextFileW(search, &found));
            ::FindClose(search);
        }
        ::RemoveDirectoryW(m_path);
    }

    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    CString Path() const { return m_path; }
    CString File(const wchar_t* name) const { return m_path + L"\\" + name; }

private:
    CString m_path;
};
