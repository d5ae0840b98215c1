// What the wait dialog writes: the part of a text that fits, and the time. No window.
#pragma once

#include <string>

namespace wait
{
// A dialog higher than this would hide the drawing.
const int kMostLines = 10;
// Longer than any line that fits: what lies behind is cut by the ellipsis anyway.
const int kLongestLine = 512;

// The last lines of a text, each up to kLongestLine characters, separated by "\n". "\r" before a line's end is dropped.
// Null gives "".
std::wstring LastLines(const wchar_t* text);

// 0 for an empty text.
int CountLines(const std::wstring& text);

// "已用时间 0:07", from an hour on "已用时间 1:02:03".
std::wstring ElapsedText(unsigned long long milliseconds);
} // namespace wait
