#include "afx/dialog/FileDialog.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CFileDialog, CCommonDialog)

namespace
{
const size_t SingleNameSize = MAX_PATH;
const size_t MultipleNamesSize = 32 * 1024;

// The system wants zeros between the parts of the filter and two at the end.
std::vector<TCHAR> SystemFilter(LPCTSTR filter)
{
    std::vector<TCHAR> parts;
    if (filter == nullptr)
        return parts;
    parts.assign(filter, filter + ::lstrlen(filter));
    std::replace(parts.begin(), parts.end(), TCHAR('|'), TCHAR(0));
    parts.push_back(0);
    parts.push_back(0);
    return parts;
}

LPCTSTR NameOf(LPCTSTR path)
{
    LPCTSTR name = path;
    for (LPCTSTR at = path; *at != 0; ++at)
        if (*at == '\\' || *at == '/' || *at == ':')
            name = at + 1;
    return name;
}

LPCTSTR ExtensionOf(LPCTSTR name)
{
    LPCTSTR dot = nullptr;
    for (LPCTSTR at = name; *at != 0; ++at)
        if (*at == '.')
            dot = at;
    return dot;
}
} // namespace

CFileDialog::CFileDialog(BOOL openFileDialog, LPCTSTR defaultExtension, LPCTSTR fileName, DWORD flags, LPCTSTR filter,
                         CWnd* parent)
    : CCommonDialog(parent), m_ofn(), m_open(openFileDialog), m_defaultExtension(defaultExtension),
      m_filter(SystemFilter(filter)), m_fileName((flags & OFN_ALLOWMULTISELECT) ? MultipleNamesSize : SingleNameSize)
{
    if (fileName != nullptr)
        ::lstrcpyn(m_fileName.data(), fileName, static_cast<int>(m_fileName.size()));
    m_ofn.lStructSize = sizeof(m_ofn);
    m_ofn.Flags = flags | OFN_EXPLORER;
    m_ofn.lpstrDefExt = defaultExtension == nullptr ? nullptr : LPCTSTR(m_defaultExtension);
    m_ofn.lpstrFilter = m_filter.empty() ? nullptr : m_filter.data();
    m_ofn.lpstrFile = m_fileName.data();
    m_ofn.nMaxFile = static_cast<DWORD>(m_fileName.size());
}

INT_PTR CFileDialog::DoModal()
{
    m_ofn.hwndOwner = SafeOwner();
    const BOOL chosen = m_open ? ::GetOpenFileName(&m_ofn) : ::GetSaveFileName(&m_ofn);
    return chosen ? IDOK : IDCANCEL;
}

CString CFileDialog::GetPathName() const
{
    POSITION position = GetStartPosition();
    return position == nullptr ? CString() : GetNextPathName(position);
}

CString CFileDialog::GetFileName() const
{
    return NameOf(GetPathName());
}

CString CFileDialog::GetFileExt() const
{
    const CString name = GetFileName();
    const LPCTSTR dot = ExtensionOf(name);
    return dot == nullptr ? CString() : CString(dot + 1);
}

CString CFileDialog::GetFileTitle() const
{
    const CString name = GetFileName();
    const LPCTSTR dot = ExtensionOf(name);
    return dot == nullptr ? name : name.Left(static_cast<int>(dot - LPCTSTR(name)));
}

CString CFileDialog::GetFolderPath() const
{
    const CString path = GetPathName();
    const int length = static_cast<int>(NameOf(path) - LPCTSTR(path));
    return length == 0 ? CString() : path.Left(length - 1);
}

BOOL CFileDialog::GetReadOnlyPref() const
{
    return (m_ofn.Flags & OFN_READONLY) != 0;
}

// A position is the place of the next name in the buffer: one path, or a folder followed by names.
POSITION CFileDialog::GetStartPosition() const
{
    return *m_ofn.lpstrFile == 0 ? nullptr : reinterpret_cast<POSITION>(m_ofn.lpstrFile);
}

CString CFileDialog::GetNextPathName(POSITION& position) const
{
    const LPCTSTR folder = m_ofn.lpstrFile;
    LPCTSTR name = reinterpret_cast<LPCTSTR>(position);
    CString path(name);
    if (name == folder)
    {
        const LPCTSTR first = folder + ::lstrlen(folder) + 1;
        if (!(m_ofn.Flags & OFN_ALLOWMULTISELECT) || *first == 0)
        {
            position = nullptr;
            return path;
        }
        name = first;
    }
    path = CString(folder) + (folder[::lstrlen(folder) - 1] == '\\' ? _T("") : _T("\\")) + name;
    const LPCTSTR next = name + ::lstrlen(name) + 1;
    position = *next == 0 ? nullptr : reinterpret_cast<POSITION>(const_cast<LPTSTR>(next));
    return path;
}
