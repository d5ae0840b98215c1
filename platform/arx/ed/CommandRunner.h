// Runs commands and hands them their answers.
#pragma once

#include "Answers.h"
#include "CommandStack.h"
#include "HostServices.h"

#include <string>
#include <vector>

namespace arxed
{

class CommandRunner
{
public:
    static CommandRunner& Instance();

    // Both: false when there is no such command or it can't run now.
    bool RunCommand(const std::wstring& name, const std::wstring& answers);
    bool RunLine(const std::wstring& line);
    // Lines of sendStringToExecute() of the current document. Returns their number.
    int RunPending();

    bool IsActive() const { return !m_answers.empty(); }
    bool InDocumentContext() const { return m_documentDepth > 0; }

    // From the running command's answers, then from the user. False when given up.
    bool GetString(const ACHAR* prompt, bool wholeLine, std::wstring& answer);

    // As acedGetPoint().
    int GetPoint(const ACHAR* prompt, ads_point result);

private:
    friend class ApplicationContext;

    CommandRunner() = default;
    bool Run(const Command& command, const std::wstring& answers);
    arxhost::PointReply AskPoint(const ACHAR* prompt, std::wstring& typed, AcGePoint2d& picked);
    void Call(const Command& command, const std::wstring& answers, bool inDocument);

    // One entry a running command, the innermost last.
    std::vector<Answers> m_answers;
    int m_documentDepth = 0;
};

// While it lives, code runs in the application context.
class ApplicationContext
{
public:
    ApplicationContext();
    ~ApplicationContext();
    ApplicationContext(const ApplicationContext&) = delete;
    ApplicationContext& operator=(const ApplicationContext&) = delete;

private:
    int m_documentDepth;
};

} // namespace arxed
