#include "dbhandl.h"

#include <cwchar>
#include <cwctype>

namespace
{

const size_t kMaxDigits = 16;
const int kHexadecimal = 16;

} // namespace

AcDbHandle::AcDbHandle(const ACHAR* text) : m_value(0)
{
    const size_t length = text == NULL ? 0 : wcslen(text);
    if (length > kMaxDigits)
    {
        return;
    }
    for (size_t i = 0; i < length; ++i)
    {
        if (!iswxdigit(text[i]))
        {
            return;
        }
    }
    m_value = length == 0 ? 0 : wcstoull(text, NULL, kHexadecimal);
}

bool AcDbHandle::getIntoAsciiBuffer(ACHAR* buffer, size_t size) const
{
    ACHAR digits[kStrSiz];
    const int length = swprintf(digits, kStrSiz, L"%llX", static_cast<unsigned long long>(m_value));
    if (buffer == NULL || length < 0 || static_cast<size_t>(length) >= size)
    {
        return false;
    }
    wmemcpy(buffer, digits, static_cast<size_t>(length) + 1);
    return true;
}
