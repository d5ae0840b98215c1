#include "ModuleFile.h"

#include "ApiVersion.h"
#include "LoadFailure.h"

namespace arxrx
{

namespace
{

const wchar_t* const kSeparators = L"\\/";

// Keeps the system from showing boxes of its own about files that can't be loaded.
class QuietErrors
{
public:
    QuietErrors() : m_previous(SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX)) {}
    ~QuietErrors() { SetErrorMode(m_previous); }
    QuietErrors(const QuietErrors&) = delete;
    QuietErrors& operator=(const QuietErrors&) = delete;

private:
    UINT m_previous;
};

// Lets the modules of every folder find the libraries of the program's own. The load with the module's folder in place
// of the program's leaves them out where they are not in memory yet.
class ProgramLibraries
{
public:
    ProgramLibraries() { SetDllDirectoryW(ProgramFolder().c_str()); }
    ~ProgramLibraries() { SetDllDirectoryW(nullptr); }
    ProgramLibraries(const ProgramLibraries&) = delete;
    ProgramLibraries& operator=(const ProgramLibraries&) = delete;
};

template<class Function>
Function AddressOf(HMODULE library, const char* name)
{
    return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(library, name)));
}

} // namespace

std::wstring WithExtension(const std::wstring& name)
{
    return name.empty() || FileNameOf(name).find(L'.') != std::wstring::npos ? name : name + L".arx";
}

std::wstring FileNameOf(const std::wstring& path)
{
    return path.substr(FolderOf(path).size());
}

std::wstring FolderOf(const std::wstring& path)
{
    const size_t separator = path.find_last_of(kSeparators);
    return separator == std::wstring::npos ? std::wstring() : path.substr(0, separator + 1);
}

std::wstring ProgramFolder()
{
    std::wstring path(MAX_PATH, L'\0');
    DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    while (length == path.size())
    {
        path.resize(path.size() * 2);
        length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    }
    path.resize(length);
    return FolderOf(path);
}

bool IsFile(const std::wstring& path)
{
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

std::wstring FullPath(const std::wstring& path)
{
    const DWORD size = GetFullPathNameW(path.c_str(), 0, nullptr, nullptr);
    std::wstring full(size, L'\0');
    full.resize(size == 0 ? 0 : GetFullPathNameW(path.c_str(), size, full.data(), nullptr));
    return full;
}

std::wstring FindModuleFile(const std::wstring& name, const std::vector<std::wstring>& folders)
{
    if (!FolderOf(name).empty())
    {
        return IsFile(name) ? FullPath(name) : std::wstring();
    }
    for (const std::wstring& folder : folders)
    {
        const std::wstring path = folder + name;
        if (!name.empty() && IsFile(path))
        {
            return FullPath(path);
        }
    }
    return std::wstring();
}

ModuleFile::~ModuleFile()
{
    if (m_library != nullptr)
    {
        FreeLibrary(m_library);
    }
}

bool ModuleFile::Open(const std::wstring& path, std::wstring& reason)
{
    if (!LoadFile(path, reason))
    {
        return false;
    }
    const auto version = AddressOf<AcRxApiVersionQuery>(m_library, "acrxGetApiVersion");
    if (version == nullptr)
    {
        reason = L"它没有版本查询函数 acrxGetApiVersion，不是为本主机编译的模块";
        return false;
    }
    if (version() != kApiVersion)
    {
        reason = L"它为接口版本 " + std::to_wstring(version()) + L" 编译，本程序的接口版本是 " +
                 std::to_wstring(kApiVersion) + L"，请用本程序的开发包重新编译";
        return false;
    }
    m_entry = AddressOf<AcRxAppEntryPoint>(m_library, "acrxEntryPoint");
    if (m_entry == nullptr)
    {
        reason = L"它没有入口点 acrxEntryPoint，源文件中可能缺少 IMPLEMENT_ARX_ENTRYPOINT";
        return false;
    }
    return true;
}

bool ModuleFile::LoadFile(const std::wstring& path, std::wstring& reason)
{
    const QuietErrors quiet;
    const ProgramLibraries libraries;
    m_library = LoadLibraryExW(path.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
    if (m_library == nullptr)
    {
        reason = LoadFailure(path, GetLastError());
        return false;
    }
    return true;
}

bool ModuleFile::Holds(const void* address) const
{
    HMODULE library = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       static_cast<LPCWSTR>(address), &library);
    return library != nullptr && library == m_library;
}

} // namespace arxrx
