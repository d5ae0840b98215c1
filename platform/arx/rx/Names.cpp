#include "Names.h"

#include "arx/WindowsTypes.h"

namespace arxrx
{

std::wstring Folded(const ACHAR* name)
{
    std::wstring text(name == nullptr ? L"" : name);
    CharLowerBuffW(text.data(), static_cast<DWORD>(text.size()));
    return text;
}

bool SameName(const ACHAR* left, const ACHAR* right)
{
    return Folded(left) == Folded(right);
}

} // namespace arxrx
