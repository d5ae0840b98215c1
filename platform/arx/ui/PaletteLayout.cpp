#include "arx/ui/PaletteLayout.h"

#include <climits>
#include <cwchar>
#include <map>
#include <vector>

namespace arxui
{
namespace
{

using Fields = std::map<std::wstring, std::wstring>;

struct SideName
{
    DockSide side;
    const wchar_t* name;
};

const SideName sideNames[] = {
    {DockSide::Left, L"left"},     {DockSide::Top, L"top"},        {DockSide::Right, L"right"},
    {DockSide::Bottom, L"bottom"}, {DockSide::Floating, L"float"},
};

// More than this is no screen coordinate but a damaged text.
const long coordinateLimit = 100000;

std::vector<std::wstring> Split(const std::wstring& text, wchar_t separator)
{
    std::vector<std::wstring> parts;
    std::size_t begin = 0;
    for (;;)
    {
        const std::size_t end = text.find(separator, begin);
        parts.push_back(text.substr(begin, end == std::wstring::npos ? end : end - begin));
        if (end == std::wstring::npos)
            return parts;
        begin = end + 1;
    }
}

Fields FieldsOf(const std::wstring& text)
{
    Fields fields;
    for (const std::wstring& part : Split(text, L';'))
    {
        const std::size_t equals = part.find(L'=');
        if (equals != std::wstring::npos)
            fields[part.substr(0, equals)] = part.substr(equals + 1);
    }
    return fields;
}

bool ReadNumber(const std::wstring& text, long& number)
{
    wchar_t* end = nullptr;
    number = std::wcstol(text.c_str(), &end, 10);
    return !text.empty() && *end == L'\0' && number >= -coordinateLimit && number <= coordinateLimit;
}

bool ReadCount(const Fields& fields, const wchar_t* name, int& value)
{
    const auto field = fields.find(name);
    long number = 0;
    if (field == fields.end() || !ReadNumber(field->second, number) || number < 0)
        return false;
    value = static_cast<int>(number);
    return true;
}

bool ReadFlag(const Fields& fields, const wchar_t* name, bool& value)
{
    int number = 0;
    if (!ReadCount(fields, name, number) || number > 1)
        return false;
    value = number == 1;
    return true;
}

bool ReadSide(const Fields& fields, DockSide& side)
{
    const auto field = fields.find(L"side");
    for (const SideName& row : sideNames)
    {
        if (field != fields.end() && field->second == row.name)
        {
            side = row.side;
            return true;
        }
    }
    return false;
}

bool ReadRect(const Fields& fields, RECT& rect)
{
    const auto field = fields.find(L"float");
    if (field == fields.end())
        return false;
    const std::vector<std::wstring> parts = Split(field->second, L',');
    long numbers[4] = {};
    if (parts.size() != 4)
        return false;
    for (std::size_t i = 0; i < parts.size(); ++i)
    {
        if (!ReadNumber(parts[i], numbers[i]))
            return false;
    }
    rect = RECT{numbers[0], numbers[1], numbers[2], numbers[3]};
    return rect.right > rect.left && rect.bottom > rect.top;
}

std::wstring NameOf(DockSide side)
{
    for (const SideName& row : sideNames)
    {
        if (row.side == side)
            return row.name;
    }
    return std::wstring();
}

} // namespace

int PaletteLayout::ThicknessAt(DockSide at) const
{
    return IsUpright(at) ? width : height;
}

void PaletteLayout::SetThickness(DockSide at, int thickness)
{
    (IsUpright(at) ? width : height) = thickness;
}

std::wstring LayoutToText(const PaletteLayout& layout)
{
    const RECT& rect = layout.floating;
    return L"side=" + NameOf(layout.side) + L";width=" + std::to_wstring(layout.width) + L";height=" +
           std::to_wstring(layout.height) + L";float=" + std::to_wstring(rect.left) + L"," + std::to_wstring(rect.top) +
           L"," + std::to_wstring(rect.right) + L"," + std::to_wstring(rect.bottom) + L";visible=" +
           std::to_wstring(layout.visible ? 1 : 0) + L";rolled=" + std::to_wstring(layout.rolledUp ? 1 : 0) +
           L";auto=" + std::to_wstring(layout.autoRollUp ? 1 : 0) + L";tab=" + std::to_wstring(layout.activeTab);
}

bool LayoutFromText(const std::wstring& text, PaletteLayout& layout)
{
    const Fields fields = FieldsOf(text);
    PaletteLayout read;
    const bool complete = ReadSide(fields, read.side) && ReadCount(fields, L"width", read.width) &&
                          ReadCount(fields, L"height", read.height) && ReadRect(fields, read.floating) &&
                          ReadFlag(fields, L"visible", read.visible) && ReadFlag(fields, L"rolled", read.rolledUp) &&
                          ReadFlag(fields, L"auto", read.autoRollUp) && ReadCount(fields, L"tab", read.activeTab);
    if (complete)
        layout = read;
    return complete;
}

} // namespace arxui
