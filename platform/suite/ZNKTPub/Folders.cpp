#include "ZNKTPub.h"

#include <shlobj.h>
#include <vector>

namespace
{
const wchar_t kSuiteKey[] = L"Software\\Tevrin\\Wayfarer";
const wchar_t kInstallPathValue[] = L"InstallPath";
const wchar_t* const kUserFolders[] = {L"\\Tevrin", L"\\Wayfarer"};

bool IsFolder(const CString& path)
{
    const DWORD attributes = GetFileAttributesW(path);
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

// The root of a drive loses its separator as well: callers append one.
CString WithoutTrailingSeparator(CString path)
{
    path.TrimRight(L"\\/");
    return path;
}

// Empty when the value isn't there or is no text.
CString ReadRegistryText(HKEY root, const wchar_t* key, const wchar_t* value)
{
    DWORD bytes = 0;
    if (RegGetValueW(root, key, value, RRF_RT_REG_SZ, nullptr, nullptr, &bytes) != ERROR_SUCCESS)
        return CString();
    std::vector<wchar_t> text(bytes / sizeof(wchar_t) + 1, L'\0');
    if (RegGetValueW(root, key, value, RRF_RT_REG_SZ, nullptr, text.data(), &bytes) != ERROR_SUCCESS)
        return CString();
    return CString(text.data());
}

CString GetProgramFolder()
{
    std::vector<wchar_t> path(MAX_PATH);
    DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    while (length == path.size())
    {
        path.resize(path.size() * 2);
        length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    }
    const CString program(path.data(), static_cast<int>(length));
    return program.Left(program.ReverseFind(L'\\'));
}
} // namespace

namespace ZNKTPub
{
CString GetInstallPath()
{
    for (HKEY root : {HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE})
    {
        const CString path = WithoutTrailingSeparator(ReadRegistryText(root, kSuiteKey, kInstallPathValue));
        if (!path.IsEmpty() && IsFolder(path + L"\\"))
            return path;
    }
    return GetProgramFolder();
}

CString GetCurUserWayfarerPath()
{
    wchar_t applicationData[MAX_PATH] = {};
    if (FAILED(SHGetFolderPathW(nullptr, CSIDL_APPDATA, nullptr, SHGFP_TYPE_CURRENT, applicationData)))
        return CString();
    CString path = WithoutTrailingSeparator(applicationData);
    for (const wchar_t* folder : kUserFolders)
    {
        path += folder;
        CreateDirectoryW(path, nullptr);
    }
    return path;
}
} // namespace ZNKTPub
