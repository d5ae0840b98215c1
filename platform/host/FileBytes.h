// Whole files as bytes.
#pragma once

#include <string>

namespace arxhost
{

// False when the file can't be read, or is larger than a script or an argument file can sensibly be (16 MB).
bool ReadFileBytes(const std::wstring& path, std::string& bytes);

} // namespace arxhost
