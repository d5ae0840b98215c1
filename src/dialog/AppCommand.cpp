#include "dialog/AppCommand.h"

#include <wchar.h>

namespace
{
const wchar_t kPrefix[] = L"app:";
const size_t kPrefixLength = 4;
} // namespace

const wchar_t* CommandOfAddress(const wchar_t* address)
{
    if (address == 0 || _wcsnicmp(address, kPrefix, kPrefixLength) != 0)
        return 0;
    return address + kPrefixLength;
}
