#include "GalleryCode.h"

#include <algorithm>
#include <vector>

namespace
{

const wchar_t kShow[] = L"// [show]";
const wchar_t kEnd[] = L"// [end]";

std::vector<CString> LinesOf(const CString& text)
{
    std::vector<CString> lines;
    int start = 0;
    while (start < text.GetLength())
    {
        const int found = text.Find(L'\n', start);
        const int end = found < 0 ? text.GetLength() : found;
        lines.push_back(text.Mid(start, end - start).TrimRight());
        start = end + 1;
    }
    return lines;
}

int IndentOf(const CString& line)
{
    return line.GetLength() - CString(line).TrimLeft().GetLength();
}

// The lines of one part without the indent that all of them have.
CString WithoutIndent(const std::vector<CString>& lines)
{
    int indent = INT_MAX;
    for (const CString& line : lines)
    {
        if (!line.IsEmpty())
            indent = std::min(indent, IndentOf(line));
    }
    CString text;
    for (const CString& line : lines)
        text += line.Mid(std::min(indent, line.GetLength())) + L"\n";
    return text;
}

} // namespace

CString ShownLines(const CString& source)
{
    CString shown;
    std::vector<CString> part;
    bool isShown = false;
    for (const CString& line : LinesOf(source))
    {
        const CString mark = CString(line).TrimLeft();
        if (mark == kShow)
        {
            isShown = true;
        }
        else if (mark == kEnd)
        {
            shown += (shown.IsEmpty() ? L"" : L"\n") + WithoutIndent(part);
            part.clear();
            isShown = false;
        }
        else if (isShown)
        {
            part.push_back(line);
        }
    }
    return shown;
}
