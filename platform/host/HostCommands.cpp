#include "host/HostCommands.h"

#include "arx/ed/HostServices.h"
#include "host/ScriptText.h"

#include <climits>
#include <cwchar>
#include <cwctype>

namespace arxhost
{
namespace
{

std::vector<HostCommand> CollectCommands()
{
    std::vector<HostCommand> all;
    for (const std::vector<HostCommand>& family : {DrawingCommands(), PaletteCommands(), ProgramCommands()})
        all.insert(all.end(), family.begin(), family.end());
    return all;
}

const std::vector<HostCommand>& AllCommands()
{
    static const std::vector<HostCommand> commands = CollectCommands();
    return commands;
}

const HostCommand* FindCommand(const std::wstring& name)
{
    for (const HostCommand& command : AllCommands())
    {
        if (HasName(command.names, name))
            return &command;
    }
    return nullptr;
}

std::wstring Upper(std::wstring text)
{
    for (wchar_t& character : text)
        character = static_cast<wchar_t>(std::towupper(character));
    return text;
}

// "_ZOOM" and ".ZOOM" mean the command by its global name.
std::wstring PlainName(const std::wstring& word)
{
    const std::size_t start = word.find_first_not_of(L"_.'");
    return start == std::wstring::npos ? word : word.substr(start);
}

} // namespace

void RunCommandLine(MainFrame& frame, const std::wstring& line)
{
    Words words;
    if (!SplitWords(line, words))
        throw CommandFailure{L"引号没有配对：" + line};
    if (words.empty())
        return;
    const std::wstring name = PlainName(words.front());
    if (const HostCommand* command = FindCommand(name))
    {
        words.erase(words.begin());
        command->run(frame, words);
    }
    else if (!ExecuteLine(line.c_str()))
        // The reason was printed already: no such command, no open drawing.
        throw CommandFailure{L"命令“" + name + L"”没有执行。输入 HELP 查看命令列表。"};
}

std::wstring CommandHelp()
{
    std::wstring text = L"\n命令列表：\n";
    for (const HostCommand& command : AllCommands())
        text += std::wstring(L"  ") + command.usage + L"\n";
    for (const std::wstring& name : CommandNames())
        text += L"  " + name + L"（模块命令）\n";
    return text;
}

bool HasName(const wchar_t* names, const std::wstring& name)
{
    const std::wstring list = L"," + std::wstring(names) + L",";
    return !name.empty() && name.find(L',') == std::wstring::npos &&
           list.find(L"," + Upper(name) + L",") != std::wstring::npos;
}

const std::wstring& NeedWord(const Words& words, std::size_t index, const wchar_t* usage)
{
    if (index >= words.size())
        throw CommandFailure{std::wstring(L"缺少参数。用法：") + usage};
    return words[index];
}

int NeedNumber(const std::wstring& word)
{
    wchar_t* end = nullptr;
    const long number = std::wcstol(word.c_str(), &end, 10);
    if (word.empty() || *end != L'\0' || number == LONG_MAX || number == LONG_MIN)
        throw CommandFailure{L"“" + word + L"”不是整数。"};
    return static_cast<int>(number);
}

} // namespace arxhost
