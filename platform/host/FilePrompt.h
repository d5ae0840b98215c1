// The name of a file for a command: the first word behind the command's name, else what the user chooses.
#pragma once

#include "host/HostCommands.h"

namespace arxhost
{

enum class FilePrompt
{
    Open,
    Save
};

// Empty when the user cancels. Unattended, a missing word is a failure that tells the usage.
std::wstring AskForFile(MainFrame& frame, const Words& words, FilePrompt kind, const wchar_t* extension,
                        const wchar_t* filter, const wchar_t* usage);

} // namespace arxhost
