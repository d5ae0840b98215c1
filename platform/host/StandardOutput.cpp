#include "host/StandardOutput.h"

#include <windows.h>

namespace arxhost
{
namespace
{

std::string ToUtf8(const std::wstring& text)
{
    const int length = static_cast<int>(text.size());
    std::string bytes(WideCharToMultiByte(CP_UTF8, 0, text.c_str(), length, nullptr, 0, nullptr, nullptr), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.c_str(), length, &bytes[0], static_cast<int>(bytes.size()), nullptr, nullptr);
    return bytes;
}

} // namespace

bool WriteStandardOutput(const std::wstring& text)
{
    const HANDLE output = GetStdHandle(STD_OUTPUT_HANDLE);
    if (output == nullptr || output == INVALID_HANDLE_VALUE || text.empty())
        return false;
    const std::string bytes = ToUtf8(text);
    DWORD written = 0;
    return WriteFile(output, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) != FALSE;
}

} // namespace arxhost
