#include "DxfDrawing.h"

#include <windows.h>

namespace arxdxf
{

namespace
{

std::wstring UpperCase(std::wstring name)
{
    CharUpperBuffW(name.data(), static_cast<DWORD>(name.size()));
    return name;
}

} // namespace

size_t DxfNames::NumberOf(const std::wstring& name)
{
    const auto [entry, isNew] = m_numbers.emplace(UpperCase(name), m_names.size());
    if (isNew)
    {
        m_names.push_back(name);
    }
    return entry->second;
}

size_t DxfNames::Find(const std::wstring& name) const
{
    const auto entry = m_numbers.find(UpperCase(name));
    return entry == m_numbers.end() ? npos : entry->second;
}

} // namespace arxdxf
