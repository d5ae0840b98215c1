// The commands of the host itself, and how a line typed or read from a script finds its command.
#pragma once

#include <string>
#include <vector>

namespace arxhost
{

class MainFrame;

// The words behind the command's name.
typedef std::vector<std::wstring> Words;

// Thrown by a command that can't do what it was asked for; the message is shown to the user.
struct CommandFailure
{
    std::wstring message;
};

struct HostCommand
{
    // All names, the first one in English, separated by commas: "ZOOM,Z,缩放".
    const wchar_t* names;
    const wchar_t* usage;
    void (*run)(MainFrame& frame, const Words& words);
};

// The families of commands.
std::vector<HostCommand> DrawingCommands();
std::vector<HostCommand> PaletteCommands();
std::vector<HostCommand> ProgramCommands();

// Runs a line: a command of the host, else one that a module registered. Throws CommandFailure.
void RunCommandLine(MainFrame& frame, const std::wstring& line);

// Every command with its usage, one a line.
std::wstring CommandHelp();

// Whether `names` (separated by commas) holds `name`, in any letter case.
bool HasName(const wchar_t* names, const std::wstring& name);
// The word at `index`; throws with `usage` when there are fewer.
const std::wstring& NeedWord(const Words& words, std::size_t index, const wchar_t* usage);
// The whole number that a word holds; throws when it holds none.
int NeedNumber(const std::wstring& word);

} // namespace arxhost
