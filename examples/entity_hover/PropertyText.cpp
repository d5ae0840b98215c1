#include "PropertyText.h"

#include <cmath>
#include <cwchar>

namespace entity_hover
{

namespace
{

const double kPi = 3.14159265358979323846;
const double kHalfTurn = 180;
const double kFullTurn = 360;
const double kSmallestShown = 0.00005; // rounds to the last decimal
const std::size_t kExcerptLength = 30;
const wchar_t kParagraph[] = L"\\P"; // of texts of several lines
const wchar_t* const kColorNames[] = {L"随块", L"红", L"黄", L"绿", L"青", L"蓝", L"洋红", L"白"};

std::wstring InOneLine(std::wstring text)
{
    for (std::size_t at = text.find(kParagraph); at != std::wstring::npos; at = text.find(kParagraph, at))
        text.replace(at, std::wcslen(kParagraph), L" ");
    for (wchar_t& character : text)
    {
        if (character < L' ')
            character = L' ';
    }
    return text;
}

} // namespace

std::wstring NumberText(double number)
{
    // A double has at most 309 digits before its point.
    wchar_t text[320];
    std::swprintf(text, sizeof(text) / sizeof(text[0]), L"%.4f", std::fabs(number) < kSmallestShown ? 0.0 : number);
    std::wstring result = text;
    if (result.find(L'.') != std::wstring::npos)
    {
        result.erase(result.find_last_not_of(L'0') + 1);
        if (result.back() == L'.')
            result.pop_back();
    }
    return result;
}

std::wstring PointText(const AcGePoint3d& point)
{
    const std::wstring flat = NumberText(point.x) + L", " + NumberText(point.y);
    return std::fabs(point.z) < kSmallestShown ? flat : flat + L", " + NumberText(point.z);
}

std::wstring AngleText(double radians)
{
    double degrees = std::fmod(radians * kHalfTurn / kPi, kFullTurn);
    if (degrees < -kSmallestShown)
        degrees += kFullTurn;
    const bool isWholeTurn = kFullTurn - degrees < kSmallestShown;
    return NumberText(isWholeTurn ? 0 : degrees) + L"°";
}

std::wstring ColorText(const AcCmColor& color)
{
    if (color.isByLayer())
        return L"随层";
    if (color.isByColor())
        return std::to_wstring(color.red()) + L"," + std::to_wstring(color.green()) + L"," +
               std::to_wstring(color.blue());
    const std::size_t index = color.colorIndex();
    const std::size_t named = sizeof(kColorNames) / sizeof(kColorNames[0]);
    return index < named ? kColorNames[index] : std::to_wstring(index) + L" 号";
}

std::wstring Excerpt(const std::wstring& text)
{
    const std::wstring line = InOneLine(text);
    if (line.find_first_not_of(L' ') == std::wstring::npos)
        return L"（空）";
    return line.size() > kExcerptLength ? line.substr(0, kExcerptLength) + L"…" : line;
}

} // namespace entity_hover
