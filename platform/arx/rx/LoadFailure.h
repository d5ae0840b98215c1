// Why the system refuses a module's file, in words for the user.
#pragma once

#include <string>

namespace arxrx
{

// `error` is the system's code of the load that failed. The reason has no full stop: "它是 32 位模块……".
std::wstring LoadFailure(const std::wstring& path, unsigned long error);

} // namespace arxrx
