// The suite's folder as the tests want it: with the icons, as built, or somewhere else.
#pragma once

#include <afxwin.h>

// Registers a folder as the one of the suite while it lives.
class RegisteredSuiteFolder
{
public:
    explicit RegisteredSuiteFolder(const CString& folder)
    {
        const DWORD bytes = (folder.GetLength() + 1) * sizeof(wchar_t);
        ::RegSetKeyValueW(HKEY_CURRENT_USER, Key(), Value(), REG_SZ, static_cast<LPCWSTR>(folder), bytes);
    }

    ~RegisteredSuiteFolder() { ::RegDeleteKeyValueW(HKEY_CURRENT_USER, Key(), Value()); }

    RegisteredSuiteFolder(const RegisteredSuiteFolder&) = delete;
    RegisteredSuiteFolder& operator=(const RegisteredSuiteFolder&) = delete;

private:
    static const wchar_t* Key() { return L"Software\\Tevrin\\Wayfarer"; }
    static const wchar_t* Value() { return L"InstallPath"; }
};

// An existing folder without the icons.
inline CString FolderWithoutIcons()
{
    wchar_t path[MAX_PATH] = {};
    ::GetSystemDirectoryW(path, MAX_PATH);
    return path;
}

// Width of an icon; 0 where it is none.
inline int IconWidth(HICON icon)
{
    ICONINFO info = {};
    if (icon == NULL || !::GetIconInfo(icon, &info))
        return 0;
    BITMAP bitmap = {};
    ::GetObject(info.hbmColor != NULL ? info.hbmColor : info.hbmMask, sizeof(bitmap), &bitmap);
    if (info.hbmColor != NULL)
        ::DeleteObject(info.hbmColor);
    ::DeleteObject(info.hbmMask);
    return bitmap.bmWidth;
}
