// acutPrintf and its kin.
#include "HostState.h"
#include "acedads.h"
#include "acutads.h"

#include <cstdarg>
#include <cwchar>
#include <vector>

namespace
{

const size_t kFirstSize = 512;
// A text that does not fit here has an unusable format.
const size_t kLargestSize = 1024 * 1024;

// Formats into the buffer; negative when it is too small or the format is unusable. By the function of Microsoft's C
// library, where %s is a wide string; the standard's vswprintf takes it for a narrow one. It leaves a full buffer
// without an end mark, hence one character less.
int FormatInto(std::vector<wchar_t>& buffer, const ACHAR* format, va_list arguments)
{
    va_list copy;
    va_copy(copy, arguments);
    const int length = _vsnwprintf(buffer.data(), buffer.size() - 1, format, copy);
    va_end(copy);
    return length;
}

} // namespace

int acutPrintf(const ACHAR* format, ...)
{
    if (format == nullptr)
    {
        return RTERROR;
    }
    std::vector<wchar_t> buffer;
    va_list arguments;
    va_start(arguments, format);
    int length = -1;
    for (size_t size = kFirstSize; length < 0 && size <= kLargestSize; size *= 2)
    {
        buffer.assign(size, L'\0');
        length = FormatInto(buffer, format, arguments);
    }
    va_end(arguments);
    if (length < 0)
    {
        return RTERROR;
    }
    arxed::HostState::Instance().Print(buffer.data());
    return RTNORM;
}

int acedPrompt(const ACHAR* text)
{
    if (text == nullptr)
    {
        return RTERROR;
    }
    arxed::HostState::Instance().Print(text);
    return RTNORM;
}
