// The program's standard output, where it has one: a shell that started a script reads there what the command line
// says.
#pragma once

#include <string>

namespace arxhost
{

// Writes the text as UTF-8. False when there is no standard output.
bool WriteStandardOutput(const std::wstring& text);

} // namespace arxhost
