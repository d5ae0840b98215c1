#include "ZnQFCBaseU.h"

#include <wchar.h>

namespace Tevrin
{
void SplitString(const wchar_t* text, wchar_t separator, CStringArray& parts)
{
    parts.RemoveAll();
    if (text == nullptr || *text == L'\0')
        return;
    // The end of the text as separator means: one part.
    const wchar_t* end = separator == L'\0' ? nullptr : wcschr(text, separator);
    while (end != nullptr)
    {
        parts.Add(CString(text, static_cast<int>(end - text)));
        text = end + 1;
        end = wcschr(text, separator);
    }
    parts.Add(text);
}
} // namespace Tevrin
