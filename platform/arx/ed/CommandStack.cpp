#include "CommandStack.h"

#include "arx/rx/ModuleFile.h"
#include "arx/rx/Names.h"

#include <algorithm>

using arxrx::SameName;

ACRX_NO_CONS_DEFINE_MEMBERS(AcEdCommandStack, AcRxObject)

AcEdCommandStack::AcEdCommandStack() {}

AcEdCommandStack::~AcEdCommandStack() {}

AcEdCommandStack* acedRegCmdsPtr()
{
    return &arxed::CommandStack::Instance();
}

namespace arxed
{

namespace
{

bool IsMissing(const ACHAR* text)
{
    return text == nullptr || text[0] == 0;
}

// Modules write global names with or without an underscore.
std::wstring GlobalPart(const std::wstring& name)
{
    const size_t start = name.find_first_not_of(L'_');
    return start == std::wstring::npos ? std::wstring() : name.substr(start);
}

bool Same(const std::wstring& left, const std::wstring& right)
{
    return SameName(left.c_str(), right.c_str());
}

} // namespace

CommandStack& CommandStack::Instance()
{
    // Never destroyed: modules remove their commands until they are unloaded.
    static CommandStack* const stack = new CommandStack;
    return *stack;
}

Acad::ErrorStatus CommandStack::addCommand(const ACHAR* cmdGroupName, const ACHAR* cmdGlobalName,
                                           const ACHAR* cmdLocalName, Adesk::Int32 commandFlags,
                                           AcRxFunctionPtr functionAddr, AcEdUIContext* /*uiContext*/, int /*fcode*/,
                                           void* /*hResourceHandle*/)
{
    if (IsMissing(cmdGroupName) || IsMissing(cmdGlobalName) || IsMissing(cmdLocalName) || functionAddr == nullptr)
    {
        return Acad::eInvalidInput;
    }
    Command added;
    added.group = cmdGroupName;
    added.globalName = GlobalPart(cmdGlobalName);
    added.localName = cmdLocalName;
    added.flags = commandFlags;
    added.function = functionAddr;
    if (added.globalName.empty())
    {
        return Acad::eInvalidInput;
    }
    for (const Command& command : m_commands)
    {
        if (Same(command.group, added.group) &&
            (Same(command.globalName, added.globalName) || Same(command.localName, added.localName)))
        {
            return Acad::eDuplicateKey;
        }
    }
    m_commands.push_back(added);
    return Acad::eOk;
}

template<class Condition>
Acad::ErrorStatus CommandStack::RemoveIf(Condition condition)
{
    const auto rest = std::remove_if(m_commands.begin(), m_commands.end(), condition);
    const bool found = rest != m_commands.end();
    m_commands.erase(rest, m_commands.end());
    return found ? Acad::eOk : Acad::eKeyNotFound;
}

Acad::ErrorStatus CommandStack::removeCmd(const ACHAR* cmdGroupName, const ACHAR* cmdGlobalName)
{
    const std::wstring name = GlobalPart(cmdGlobalName == nullptr ? L"" : cmdGlobalName);
    return RemoveIf([&](const Command& command) {
        return SameName(command.group.c_str(), cmdGroupName) && Same(command.globalName, name);
    });
}

Acad::ErrorStatus CommandStack::removeGroup(const ACHAR* groupName)
{
    return RemoveIf([&](const Command& command) { return SameName(command.group.c_str(), groupName); });
}

const Command* CommandStack::Find(const std::wstring& typedName) const
{
    const size_t start = typedName.find_first_not_of(L"'.");
    const std::wstring typed = start == std::wstring::npos ? std::wstring() : typedName.substr(start);
    const bool globalOnly = !typed.empty() && typed[0] == L'_';
    const size_t nameStart = typed.find_first_not_of(L"_.");
    const std::wstring name = nameStart == std::wstring::npos ? std::wstring() : typed.substr(nameStart);
    for (auto command = m_commands.rbegin(); command != m_commands.rend(); ++command)
    {
        if (Same(command->globalName, name) || (!globalOnly && Same(command->localName, typed)))
        {
            return &*command;
        }
    }
    return nullptr;
}

std::vector<std::wstring> CommandStack::GlobalNames() const
{
    std::vector<std::wstring> names;
    for (const Command& command : m_commands)
    {
        names.push_back(command.globalName);
    }
    std::sort(names.begin(), names.end());
    names.erase(std::unique(names.begin(), names.end()), names.end());
    return names;
}

void CommandStack::RemoveFrom(const arxrx::ModuleFile& module)
{
    RemoveIf([&](const Command& command) { return module.Holds(reinterpret_cast<const void*>(command.function)); });
}

} // namespace arxed
