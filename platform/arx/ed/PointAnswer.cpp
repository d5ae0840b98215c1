#include "PointAnswer.h"

#include <cmath>
#include <cwchar>

namespace arxed
{

namespace
{

const size_t kDimensions = 3;
const wchar_t kSeparator = L',';

bool ReadCoordinate(const std::wstring& text, double& value)
{
    // Only what is written with digits: the C library also reads "inf" and "nan", and skips blanks.
    if (text.empty() || text.find_first_not_of(L"+-.0123456789eE") != std::wstring::npos)
    {
        return false;
    }
    wchar_t* end = nullptr;
    value = std::wcstod(text.c_str(), &end);
    return *end == L'\0' && std::isfinite(value);
}

} // namespace

bool ReadPointAnswer(const std::wstring& text, ads_point point)
{
    ads_point read = {};
    size_t count = 0;
    size_t start = 0;
    while (start != std::wstring::npos)
    {
        const size_t comma = text.find(kSeparator, start);
        const size_t length = comma == std::wstring::npos ? comma : comma - start;
        if (count == kDimensions || !ReadCoordinate(text.substr(start, length), read[count]))
        {
            return false;
        }
        ++count;
        start = comma == std::wstring::npos ? comma : comma + 1;
    }
    if (count < kDimensions - 1)
    {
        return false;
    }
    ads_point_set(read, point);
    return true;
}

} // namespace arxed
