// Why a file can't be read or written, in words for the user: "找不到文件", "文件正由另一个程序使用……". No full stop.
#pragma once

#include "arx/Api.h"

#include <string>

namespace arxhost
{

// Both look at the file as it is now, after something has failed with it.
ARX_API std::wstring ReadTrouble(const std::wstring& path);
ARX_API std::wstring WriteTrouble(const std::wstring& path);

} // namespace arxhost
