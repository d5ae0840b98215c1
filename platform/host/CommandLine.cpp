#include "host/CommandLine.h"

#include <cwctype>

namespace arxhost
{
namespace
{

std::wstring Lower(std::wstring text)
{
    for (wchar_t& character : text)
        character = static_cast<wchar_t>(std::towlower(character));
    return text;
}

// "/ld" and "-ld" are switches, "/home/a.dxf" is a path.
bool IsSwitch(const std::wstring& argument)
{
    if (argument.size() < 2 || (argument[0] != L'/' && argument[0] != L'-'))
        return false;
    return argument.find_first_of(L"/\\.", 1) == std::wstring::npos;
}

} // namespace

std::wstring ArgumentHelp()
{
    return L"用法：arxhost [图形.dxf ...] [/ld 模块.arx ...] [/c 命令] [/b 脚本.scr]\n"
           L"  图形.dxf   打开图形，可以有多个\n"
           L"  /ld 模块   加载模块，可以重复\n"
           L"  /c 命令    开始时运行一条命令\n"
           L"  /b 脚本    逐行运行脚本然后结束，有一行不成功时返回 1\n";
}

HostArguments ReadArguments(const std::vector<std::wstring>& arguments)
{
    HostArguments read;
    for (std::size_t i = 0; i < arguments.size() && read.error.empty(); ++i)
    {
        if (!IsSwitch(arguments[i]))
        {
            read.drawings.push_back(arguments[i]);
            continue;
        }
        const std::wstring name = Lower(arguments[i].substr(1));
        if (name == L"?" || name == L"help" || name == L"h")
        {
            read.help = true;
            return read;
        }
        const bool hasValue = i + 1 < arguments.size() && !IsSwitch(arguments[i + 1]);
        std::wstring* const single = name == L"b" ? &read.script : name == L"c" ? &read.command : nullptr;
        if (name != L"ld" && single == nullptr)
            read.error = L"未知的启动参数：" + arguments[i];
        else if (!hasValue)
            read.error = L"启动参数 " + arguments[i] + L" 后面缺少内容";
        else if (name == L"ld")
            read.modules.push_back(arguments[++i]);
        else if (!single->empty())
            read.error = L"启动参数 " + arguments[i] + L" 只能出现一次";
        else
            *single = arguments[++i];
    }
    return read;
}

} // namespace arxhost
