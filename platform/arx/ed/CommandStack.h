// The registered commands, in the order in which they were added.
#pragma once

#include "accmd.h"

#include <string>
#include <vector>

namespace arxrx
{
class ModuleFile;
} // namespace arxrx

namespace arxed
{

struct Command
{
    std::wstring group;
    // Without leading underscores.
    std::wstring globalName;
    std::wstring localName;
    Adesk::Int32 flags = 0;
    AcRxFunctionPtr function = nullptr;
};

class CommandStack : public AcEdCommandStack
{
public:
    static CommandStack& Instance();

    Acad::ErrorStatus addCommand(const ACHAR* cmdGroupName, const ACHAR* cmdGlobalName, const ACHAR* cmdLocalName,
                                 Adesk::Int32 commandFlags, AcRxFunctionPtr functionAddr, AcEdUIContext* uiContext,
                                 int fcode, void* hResourceHandle) override;
    Acad::ErrorStatus removeCmd(const ACHAR* cmdGroupName, const ACHAR* cmdGlobalName) override;
    Acad::ErrorStatus removeGroup(const ACHAR* groupName) override;

    // A name as typed: "LINE" by local or global name, "_LINE" by global name; an apostrophe or a point before it is
    // passed over. Null when there is no such command; valid until the commands change.
    const Command* Find(const std::wstring& typedName) const;
    std::vector<std::wstring> GlobalNames() const;

    // Commands whose function lies in the module.
    void RemoveFrom(const arxrx::ModuleFile& module);
    void Clear() { m_commands.clear(); }

private:
    CommandStack() = default;
    template<class Condition>
    Acad::ErrorStatus RemoveIf(Condition condition);

    std::vector<Command> m_commands;
};

} // namespace arxed
