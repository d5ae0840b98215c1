#include "FileTrouble.h"

#include "arx/WindowsTypes.h"
#include "arx/rx/ModuleFile.h"

namespace arxhost
{

namespace
{

std::wstring SystemText(DWORD error, const wchar_t* denied)
{
    switch (error)
    {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
        return L"找不到文件";
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
        return L"文件正由另一个程序使用，请在那里关闭后再试";
    case ERROR_ACCESS_DENIED:
        return denied;
    case ERROR_DISK_FULL:
        return L"磁盘已满";
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
        return L"文件名无效";
    default:
        return L"系统错误 " + std::to_wstring(error);
    }
}

bool HasAttribute(const std::wstring& path, DWORD attribute)
{
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & attribute) != 0;
}

bool IsFolder(const std::wstring& path)
{
    return HasAttribute(path, FILE_ATTRIBUTE_DIRECTORY);
}

// Opens and closes the file; answers the system's error, 0 for none.
DWORD TryToOpen(const std::wstring& path, DWORD access, DWORD share, DWORD how, DWORD flags)
{
    const HANDLE file = CreateFileW(path.c_str(), access, share, nullptr, how, flags, nullptr);
    if (file == INVALID_HANDLE_VALUE)
    {
        return GetLastError();
    }
    CloseHandle(file);
    return 0;
}

} // namespace

std::wstring ReadTrouble(const std::wstring& path)
{
    if (IsFolder(path))
    {
        return L"它是文件夹，不是文件";
    }
    const DWORD error = TryToOpen(path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, OPEN_EXISTING, 0);
    return error == 0 ? L"文件太大或者读取时出错" : SystemText(error, L"没有读取该文件的权限");
}

std::wstring WriteTrouble(const std::wstring& path)
{
    const std::wstring folder = arxrx::FolderOf(arxrx::FullPath(path));
    if (IsFolder(path))
    {
        return L"它是文件夹，请给出文件名";
    }
    if (!IsFolder(folder))
    {
        return L"文件夹“" + folder + L"”不存在，请先创建";
    }
    if (HasAttribute(path, FILE_ATTRIBUTE_READONLY))
    {
        return L"文件是只读的";
    }
    DWORD error = TryToOpen(path, GENERIC_WRITE, 0, OPEN_EXISTING, 0);
    if (error == ERROR_FILE_NOT_FOUND)
    {
        error = TryToOpen(path, GENERIC_WRITE | DELETE, 0, CREATE_NEW, FILE_FLAG_DELETE_ON_CLOSE);
    }
    return error == 0 ? L"写入时出错，磁盘可能已满" : SystemText(error, L"没有写入该文件或文件夹的权限");
}

} // namespace arxhost
