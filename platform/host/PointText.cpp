#include "host/PointText.h"

#include <cmath>
#include <cwchar>

namespace arxhost
{

bool ReadNumber(const std::wstring& text, double& number)
{
    // Only what is written with digits: the C runtime also reads "inf" and "nan".
    if (text.empty() || text.find_first_not_of(L"+-.0123456789eE") != std::wstring::npos)
        return false;
    wchar_t* end = nullptr;
    const double read = std::wcstod(text.c_str(), &end);
    if (*end != L'\0' || !std::isfinite(read))
        return false;
    number = read;
    return true;
}

bool ReadPoint(const std::wstring& text, WorldPoint& point)
{
    const std::size_t comma = text.find(L',');
    WorldPoint read;
    if (comma == std::wstring::npos || !ReadNumber(text.substr(0, comma), read.x) ||
        !ReadNumber(text.substr(comma + 1), read.y))
        return false;
    point = read;
    return true;
}

std::wstring PointToText(WorldPoint point)
{
    wchar_t text[80];
    std::swprintf(text, sizeof(text) / sizeof(text[0]), L"%.4f, %.4f", point.x, point.y);
    return text;
}

} // namespace arxhost
