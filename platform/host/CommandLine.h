// The arguments of the host program: arxhost [drawing.dxf ...] [/ld module.arx ...] [/c command] [/b script.scr]
#pragma once

#include <string>
#include <vector>

namespace arxhost
{

struct HostArguments
{
    std::vector<std::wstring> drawings;
    std::vector<std::wstring> modules;
    std::wstring command; // a line that is run first of all; the program goes on afterwards
    std::wstring script;  // empty: interactive
    std::wstring error;   // a message for the user when an argument makes no sense, else empty
    bool help = false;    // /? or /help: the user asks what the arguments are
};

// What the arguments are, for the user.
std::wstring ArgumentHelp();

// Reads the arguments (without the program name). Switches may be written /x or -x in any letter case. The first
// argument that makes no sense ends the reading with `error` set.
HostArguments ReadArguments(const std::vector<std::wstring>& arguments);

} // namespace arxhost
