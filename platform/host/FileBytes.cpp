#include "host/FileBytes.h"

#include <cstdint>
#include <filesystem>
#include <fstream>

namespace arxhost
{
namespace
{
constexpr std::uintmax_t kLargestFile = 16 * 1024 * 1024;
}

bool ReadFileBytes(const std::wstring& path, std::string& bytes)
{
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(path, error);
    if (error || size > kLargestFile)
        return false;
    std::ifstream file(std::filesystem::path(path), std::ios::binary);
    std::string read(static_cast<std::size_t>(size), '\0');
    if (!file.read(&read[0], static_cast<std::streamsize>(size)))
        return false;
    bytes.swap(read);
    return true;
}

} // namespace arxhost
