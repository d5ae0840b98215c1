// Reading of scripts and command lines, without a window: file bytes to text, text to lines, a line to its words.
#pragma once

#include <string>
#include <vector>

namespace arxhost
{

// UTF-8 (with or without its mark) or UTF-16 with its mark; bytes that are no UTF-8 are read as the Chinese code page
// 936.
std::wstring DecodeText(const std::string& bytes);

struct ScriptLine
{
    int number = 0; // from 1
    std::wstring text;
};

// The lines that hold a command: blank lines and comments (first character ';') are left out, outer blanks cut.
std::vector<ScriptLine> ScriptLines(const std::wstring& text);

// Splits a command line into words at blanks. A word in double quotes keeps its blanks; two quotes inside stand for
// one. False when a quote is not closed.
bool SplitWords(const std::wstring& line, std::vector<std::wstring>& words);

} // namespace arxhost
