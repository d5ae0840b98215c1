#include "host/FileBytes.h"

#include <windows.h>

namespace arxhost
{
namespace
{

const LONGLONG largestFile = 16 * 1024 * 1024;

class FileHandle
{
public:
    explicit FileHandle(HANDLE handle) : m_handle(handle) {}
    ~FileHandle()
    {
        if (IsOpen())
            CloseHandle(m_handle);
    }
    FileHandle(const FileHandle&) = delete;
    FileHandle& operator=(const FileHandle&) = delete;

    bool IsOpen() const { return m_handle != INVALID_HANDLE_VALUE; }
    HANDLE Get() const { return m_handle; }

private:
    HANDLE m_handle;
};

} // namespace

bool ReadFileBytes(const std::wstring& path, std::string& bytes)
{
    const FileHandle file(CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
    LARGE_INTEGER size{};
    if (!file.IsOpen() || !GetFileSizeEx(file.Get(), &size) || size.QuadPart > largestFile)
        return false;
    std::string read(static_cast<std::size_t>(size.QuadPart), '\0');
    DWORD count = 0;
    if (!read.empty() &&
        (!ReadFile(file.Get(), &read[0], static_cast<DWORD>(read.size()), &count, nullptr) || count != read.size()))
        return false;
    bytes.swap(read);
    return true;
}

} // namespace arxhost
