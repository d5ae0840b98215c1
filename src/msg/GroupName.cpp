#include "msg/GroupName.h"

#include <afxwin.h>

namespace
{

const wchar_t kFirstBeyondAscii = 0x80;

// The system takes a single character in place of a pointer, and gives it back as a capital. What needs no table is not
// asked for, because names are compared for every message that is added, counted and removed.
wchar_t Capital(wchar_t letter)
{
    if (letter < kFirstBeyondAscii)
        return letter >= L'a' && letter <= L'z' ? static_cast<wchar_t>(letter - L'a' + L'A') : letter;
    const LPWSTR alone = reinterpret_cast<LPWSTR>(static_cast<ULONG_PTR>(letter));
    return static_cast<wchar_t>(reinterpret_cast<ULONG_PTR>(::CharUpperW(alone)));
}

} // namespace

int CompareGroupNames(const wchar_t* left, const wchar_t* right)
{
    for (; *left != L'\0' && (*left == *right || Capital(*left) == Capital(*right)); ++left)
        ++right;
    return *left == *right ? 0 : static_cast<int>(Capital(*left)) - static_cast<int>(Capital(*right));
}
