#include "CommandRunner.h"

#include "DocumentManager.h"
#include "HostState.h"
#include "PointAnswer.h"
#include "acutads.h"

namespace arxed
{

namespace
{

// The pickfirst selection survives commands that ask for it, and those that run beside the drawing.
const Adesk::Int32 kKeepsPickfirst = ACRX_CMD_USEPICKSET | ACRX_CMD_REDRAW | ACRX_CMD_TRANSPARENT | ACRX_CMD_SESSION;

void ClearPickfirst(Document& document)
{
    if (!document.pickfirst.IsEmpty())
    {
        document.pickfirst.Clear();
        HostState::Instance().TellPickfirstChanged(&document);
    }
}

// Holds the document's lock for a command. A session command has none.
class CommandLock
{
public:
    CommandLock(Document* document, const std::wstring& name) : m_document(document)
    {
        if (m_document != nullptr)
        {
            m_vetoed = acDocManager->lockDocument(m_document, AcAp::kWrite, name.c_str()) != Acad::eOk;
            m_document->CommandStarted();
        }
    }
    ~CommandLock()
    {
        if (m_document != nullptr)
        {
            m_document->CommandEnded();
            if (!m_vetoed)
            {
                acDocManager->unlockDocument(m_document);
            }
        }
    }
    CommandLock(const CommandLock&) = delete;
    CommandLock& operator=(const CommandLock&) = delete;

    bool IsVetoed() const { return m_vetoed; }

private:
    Document* const m_document;
    bool m_vetoed = false;
};

} // namespace

CommandRunner& CommandRunner::Instance()
{
    static CommandRunner runner;
    return runner;
}

bool CommandRunner::RunCommand(const std::wstring& name, const std::wstring& answers)
{
    const Command* found = CommandStack::Instance().Find(name);
    if (found == nullptr)
    {
        HostState::Instance().editorReactors.Tell(
            [&](AcEditorReactor& reactor) { reactor.unknownCommand(name.c_str()); });
        acutPrintf(L"\n未知命令“%s”。\n", name.c_str());
        return false;
    }
    // A copy: the command may change the commands.
    const Command command = *found;
    return Run(command, answers);
}

bool CommandRunner::RunLine(const std::wstring& line)
{
    Answers words(line);
    std::wstring name;
    return words.Take(false, name) && RunCommand(name, words.Rest());
}

bool CommandRunner::Run(const Command& command, const std::wstring& answers)
{
    Document* const document = DocumentManager::Instance().Current();
    const bool session = (command.flags & ACRX_CMD_SESSION) != 0;
    if (document == nullptr && !session)
    {
        acutPrintf(L"\n没有打开的图形，不能执行命令“%s”。\n", command.globalName.c_str());
        return false;
    }
    if (document != nullptr && (command.flags & kKeepsPickfirst) == 0)
    {
        ClearPickfirst(*document);
    }
    HostState& host = HostState::Instance();
    const std::wstring& name = command.globalName;
    host.editorReactors.Tell([&](AcEditorReactor& reactor) { reactor.commandWillStart(name.c_str()); });
    const CommandLock lock(session ? nullptr : document, name);
    if (lock.IsVetoed())
    {
        host.editorReactors.Tell([&](AcEditorReactor& reactor) { reactor.commandCancelled(name.c_str()); });
        return false;
    }
    Call(command, answers, !session);
    host.editorReactors.Tell([&](AcEditorReactor& reactor) { reactor.commandEnded(name.c_str()); });
    return true;
}

void CommandRunner::Call(const Command& command, const std::wstring& answers, bool inDocument)
{
    // Taken back as well when the command throws.
    class Frame
    {
    public:
        Frame(CommandRunner& runner, const std::wstring& answers, int depth)
            : m_runner(runner), m_previousDepth(runner.m_documentDepth)
        {
            runner.m_answers.push_back(Answers(answers));
            runner.m_documentDepth = depth;
        }
        ~Frame()
        {
            m_runner.m_answers.pop_back();
            m_runner.m_documentDepth = m_previousDepth;
        }

    private:
        CommandRunner& m_runner;
        const int m_previousDepth;
    };
    const Frame frame(*this, answers, inDocument ? m_documentDepth + 1 : 0);
    command.function();
}

int CommandRunner::RunPending()
{
    int lines = 0;
    Document* document = DocumentManager::Instance().Current();
    while (!IsActive() && document != nullptr && !document->pendingInput.empty())
    {
        std::wstring& pending = document->pendingInput;
        size_t end = pending.find(L'\n');
        if (end == std::wstring::npos)
        {
            // A space at the end sends what was typed; without it the text waits for the rest.
            if (pending.back() != L' ')
            {
                break;
            }
            end = pending.size() - 1;
        }
        const std::wstring line = pending.substr(0, end);
        pending.erase(0, end + 1);
        if (line.find_first_not_of(L" \t\r") != std::wstring::npos)
        {
            RunLine(line);
            ++lines;
        }
        document = DocumentManager::Instance().Current();
    }
    return lines;
}

bool CommandRunner::GetString(const ACHAR* prompt, bool wholeLine, std::wstring& answer)
{
    const ACHAR* const question = prompt == nullptr ? L"" : prompt;
    if (IsActive() && m_answers.back().Take(wholeLine, answer))
    {
        HostState::Instance().Print((std::wstring(question) + answer + L"\n").c_str());
        return true;
    }
    return HostState::Instance().Ui().GetString(question, wholeLine, answer);
}

int CommandRunner::GetPoint(const ACHAR* prompt, ads_point result)
{
    std::wstring typed;
    AcGePoint2d picked;
    for (;;)
    {
        const arxhost::PointReply reply = AskPoint(prompt == nullptr ? L"" : prompt, typed, picked);
        if (reply == arxhost::PointReply::GivenUp)
        {
            return RTCAN;
        }
        if (reply == arxhost::PointReply::Picked)
        {
            result[0] = picked.x;
            result[1] = picked.y;
            result[2] = 0;
            return RTNORM;
        }
        if (typed.empty())
        {
            return RTNONE;
        }
        if (ReadPointAnswer(typed, result))
        {
            return RTNORM;
        }
        acutPrintf(L"\n点“%s”无效，请输入“X,Y”或在图中点取。\n", typed.c_str());
    }
}

arxhost::PointReply CommandRunner::AskPoint(const ACHAR* prompt, std::wstring& typed, AcGePoint2d& picked)
{
    if (IsActive() && m_answers.back().Take(false, typed))
    {
        HostState::Instance().Print((prompt + typed + L"\n").c_str());
        return arxhost::PointReply::Typed;
    }
    return HostState::Instance().Ui().GetPoint(prompt, typed, picked);
}

ApplicationContext::ApplicationContext() : m_documentDepth(CommandRunner::Instance().m_documentDepth)
{
    CommandRunner::Instance().m_documentDepth = 0;
}

ApplicationContext::~ApplicationContext()
{
    CommandRunner::Instance().m_documentDepth = m_documentDepth;
}

} // namespace arxed
