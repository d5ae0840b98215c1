#include "DocumentManager.h"

#include "CommandRunner.h"
#include "HostState.h"
#include "afx/core/ThreadLocal.h"
#include "afx/core/ThreadResources.h"
#include "arx/rx/DynamicLinker.h"
#include "arx/rx/Names.h"
#include "dbapserv.h"

#include <afxwin.h>

#include <algorithm>

// Reads a reactor's answer to an announced lock.
class AcApDocManagerReactorAccess
{
public:
    static bool TakeVeto(AcApDocManagerReactor& reactor)
    {
        const bool vetoed = reactor.m_vetoed;
        reactor.m_vetoed = false;
        return vetoed;
    }
};

AcApDocManager* acDocManagerPtr()
{
    return &arxed::DocumentManager::Instance();
}

namespace arxed
{

namespace
{

// What pushes of the calling thread took the place of.
std::vector<HINSTANCE>& ThreadResourceStack()
{
    static CPerThread<std::vector<HINSTANCE>> stacks;
    return stacks.Get([] { return new std::vector<HINSTANCE>; });
}

class DocumentIterator : public AcApDocumentIterator
{
public:
    explicit DocumentIterator(const std::vector<Document*>& documents) : m_documents(documents) {}

    bool done() const override { return Position() == m_documents.size(); }
    void step() override { m_position = std::min(Position() + 1, m_documents.size()); }
    AcApDocument* document() override { return done() ? nullptr : m_documents[Position()]; }

private:
    // Closed documents are passed over.
    size_t Position() const
    {
        size_t position = m_position;
        while (position < m_documents.size() && m_documents[position]->database() == nullptr)
        {
            ++position;
        }
        return position;
    }

    const std::vector<Document*> m_documents;
    size_t m_position = 0;
};

} // namespace

DocumentManager& DocumentManager::Instance()
{
    // Never destroyed: modules and windows ask for documents until the process ends.
    static DocumentManager* const manager = new DocumentManager;
    return *manager;
}

DocumentManager::DocumentManager()
{
    arxdb::SetHighlightSink(this);
}

AcApDocument* DocumentManager::document(const AcDbDatabase* database) const
{
    const auto found = std::find_if(m_documents.begin(), m_documents.end(),
                                    [&](const Document* document) { return document->database() == database; });
    return database == nullptr || found == m_documents.end() ? nullptr : *found;
}

AcApDocumentIterator* DocumentManager::newAcApDocumentIterator()
{
    return new DocumentIterator(m_documents);
}

Acad::ErrorStatus DocumentManager::lockDocument(AcApDocument* document, AcAp::DocLockMode mode,
                                                const ACHAR* globalCommandName, const ACHAR* /*localCommandName*/,
                                                bool /*prompt*/)
{
    Document* target = Find(document);
    if (target == nullptr || mode == AcAp::kNone || mode == AcAp::kNotLocked)
    {
        return Acad::eInvalidInput;
    }
    const ACHAR* const name = globalCommandName == nullptr ? L"" : globalCommandName;
    if (!AnnounceLock(*target, mode, name))
    {
        return Acad::eLockViolation;
    }
    const AcAp::DocLockMode previous = target->myLockMode();
    target->PushLock(mode);
    m_reactors.Tell([&](AcApDocManagerReactor& reactor) {
        reactor.documentLockModeChanged(target, previous, target->myLockMode(), target->myLockMode(), name);
    });
    return Acad::eOk;
}

bool DocumentManager::AnnounceLock(Document& document, AcAp::DocLockMode mode, const ACHAR* commandName)
{
    const AcAp::DocLockMode current = document.myLockMode();
    bool vetoed = false;
    m_reactors.Tell([&](AcApDocManagerReactor& reactor) {
        reactor.documentLockModeWillChange(&document, current, std::max(current, mode), current, commandName);
        vetoed = AcApDocManagerReactorAccess::TakeVeto(reactor) || vetoed;
    });
    if (vetoed)
    {
        m_reactors.Tell(
            [&](AcApDocManagerReactor& reactor) { reactor.documentLockModeChangeVetoed(&document, commandName); });
    }
    return !vetoed;
}

Acad::ErrorStatus DocumentManager::unlockDocument(AcApDocument* document)
{
    Document* target = Find(document);
    if (target == nullptr)
    {
        return Acad::eInvalidInput;
    }
    const AcAp::DocLockMode previous = target->myLockMode();
    if (!target->PopLock())
    {
        return Acad::eLockViolation;
    }
    m_reactors.Tell([&](AcApDocManagerReactor& reactor) {
        reactor.documentLockModeChanged(target, previous, target->myLockMode(), target->myLockMode(), L"");
    });
    return Acad::eOk;
}

Acad::ErrorStatus DocumentManager::setCurDocument(AcApDocument* document, AcAp::DocLockMode mode, bool activate)
{
    Document* target = Find(document);
    if (target == nullptr)
    {
        return Acad::eInvalidInput;
    }
    if (activate && !m_activationEnabled)
    {
        return Acad::eDocumentSwitchDisabled;
    }
    MakeCurrent(target);
    if (activate)
    {
        Activate(target);
    }
    return mode == AcAp::kNone ? Acad::eOk : lockDocument(target, mode, nullptr, nullptr, true);
}

Acad::ErrorStatus DocumentManager::activateDocument(AcApDocument* document)
{
    return setCurDocument(document, AcAp::kNone, true);
}

Acad::ErrorStatus DocumentManager::disableDocumentActivation()
{
    if (!m_activationEnabled)
    {
        return Acad::eNotApplicable;
    }
    m_activationEnabled = false;
    m_reactors.Tell([](AcApDocManagerReactor& reactor) { reactor.documentActivationModified(false); });
    return Acad::eOk;
}

Acad::ErrorStatus DocumentManager::enableDocumentActivation()
{
    if (m_activationEnabled)
    {
        return Acad::eNotApplicable;
    }
    m_activationEnabled = true;
    m_reactors.Tell([](AcApDocManagerReactor& reactor) { reactor.documentActivationModified(true); });
    return Acad::eOk;
}

Acad::ErrorStatus DocumentManager::sendStringToExecute(AcApDocument* document, const ACHAR* text, bool activate,
                                                       bool /*wrapUpInactiveDoc*/, bool echoString)
{
    Document* target = Find(document);
    if (target == nullptr || text == nullptr)
    {
        return Acad::eInvalidInput;
    }
    if (activate && target != m_active)
    {
        const Acad::ErrorStatus es = activateDocument(target);
        if (es != Acad::eOk)
        {
            return es;
        }
    }
    target->pendingInput += text;
    if (echoString)
    {
        HostState::Instance().Print(text);
    }
    HostState::Instance().Ui().InputPending();
    return Acad::eOk;
}

int DocumentManager::inputPending(AcApDocument* document)
{
    const Document* target = Find(document);
    return target == nullptr ? 0 : static_cast<int>(target->pendingInput.size());
}

bool DocumentManager::isApplicationContext() const
{
    return !CommandRunner::Instance().InDocumentContext();
}

void DocumentManager::executeInApplicationContext(void (*procedure)(void*), void* data) const
{
    const ApplicationContext context;
    procedure(data);
}

Acad::ErrorStatus DocumentManager::appContextNewDocument(const ACHAR* /*templateName*/)
{
    return arxhost::NewDocument() == nullptr ? Acad::eNotApplicable : Acad::eOk;
}

Acad::ErrorStatus DocumentManager::appContextOpenDocument(const ACHAR* drawingName)
{
    arxhost::OpenResult result;
    if (arxhost::OpenDocument(drawingName, result) == nullptr)
    {
        HostState::Instance().Print((L"\n" + result.message + L"\n").c_str());
    }
    return result.status;
}

Acad::ErrorStatus DocumentManager::closeDocument(AcApDocument* document)
{
    Document* target = Find(document);
    if (target == nullptr || !target->isQuiescent())
    {
        return target == nullptr ? Acad::eInvalidInput : Acad::eNotApplicable;
    }
    const std::wstring name = target->fileName();
    TellModules(target, AcRx::kUnloadDwgMsg);
    m_reactors.Tell([&](AcApDocManagerReactor& reactor) { reactor.documentToBeDestroyed(target); });
    HostState::Instance().TellToBeDestroyed(target);
    m_documents.erase(std::find(m_documents.begin(), m_documents.end(), target));
    if (target == m_active || target == m_current)
    {
        m_active = target == m_active ? nullptr : m_active;
        m_current = nullptr;
        Document* const next = m_active != nullptr ? m_active : m_documents.empty() ? nullptr : m_documents.back();
        next == nullptr ? LeaveLast() : Activate(next);
    }
    target->Close();
    m_reactors.Tell([&](AcApDocManagerReactor& reactor) { reactor.documentDestroyed(name.c_str()); });
    return Acad::eOk;
}

void DocumentManager::LeaveLast()
{
    MakeCurrent(nullptr);
    HostState::Instance().TellActivated(nullptr);
}

Acad::ErrorStatus DocumentManager::appContextCloseDocument(AcApDocument* document)
{
    return closeDocument(document);
}

// The stack is the calling thread's own, and so is what it switches: a window may be made on a thread of its own while
// the main thread makes another.
void DocumentManager::pushResourceHandle(HINSTANCE instance)
{
    ThreadResourceStack().push_back(afx::ThreadResourceHandle());
    afx::SetThreadResourceHandle(instance);
}

void DocumentManager::popResourceHandle()
{
    std::vector<HINSTANCE>& stack = ThreadResourceStack();
    if (stack.empty())
        return;
    afx::SetThreadResourceHandle(stack.back());
    stack.pop_back();
}

Document* DocumentManager::Find(const AcApDocument* document) const
{
    const auto found = std::find(m_documents.begin(), m_documents.end(), document);
    return found == m_documents.end() ? nullptr : *found;
}

Document* DocumentManager::DocumentOf(AcDbObjectId id) const
{
    return Find(document(id.database()));
}

Document& DocumentManager::Add(const std::wstring& title, const std::wstring& path,
                               std::unique_ptr<AcDbDatabase> database)
{
    Document* const added = new Document(title.empty() ? NextTitle() : title, path, std::move(database));
    m_reactors.Tell([&](AcApDocManagerReactor& reactor) { reactor.documentCreateStarted(added); });
    m_documents.push_back(added);
    m_reactors.Tell([&](AcApDocManagerReactor& reactor) { reactor.documentCreated(added); });
    HostState::Instance().TellCreated(added);
    Activate(added);
    TellModules(added, AcRx::kLoadDwgMsg);
    return *added;
}

std::wstring DocumentManager::NextTitle()
{
    return L"Drawing" + std::to_wstring(++m_lastTitle) + L".dxf";
}

Document* DocumentManager::FindFile(const std::wstring& path) const
{
    const auto found = std::find_if(m_documents.begin(), m_documents.end(), [&](const Document* document) {
        return document->isNamedDrawing() && arxrx::SameName(document->fileName(), path.c_str());
    });
    return found == m_documents.end() ? nullptr : *found;
}

void DocumentManager::MakeCurrent(Document* document)
{
    if (m_current == document && document != nullptr)
    {
        return;
    }
    m_current = document;
    acdbHostApplicationServices()->setWorkingDatabase(document == nullptr ? nullptr : document->database());
    m_reactors.Tell([&](AcApDocManagerReactor& reactor) { reactor.documentBecameCurrent(document); });
}

void DocumentManager::Activate(Document* document)
{
    if (m_active == document)
    {
        MakeCurrent(document);
        return;
    }
    Document* const previous = m_active;
    if (previous != nullptr)
    {
        m_reactors.Tell([&](AcApDocManagerReactor& reactor) { reactor.documentToBeDeactivated(previous); });
    }
    m_reactors.Tell([&](AcApDocManagerReactor& reactor) { reactor.documentToBeActivated(document); });
    m_active = document;
    MakeCurrent(document);
    m_reactors.Tell([&](AcApDocManagerReactor& reactor) { reactor.documentActivated(document); });
    HostState::Instance().TellActivated(document);
}

void DocumentManager::TellModules(Document* document, AcRx::AppMsgCode message)
{
    Document* const current = m_current;
    MakeCurrent(document);
    arxrx::DynamicLinker::Instance().Send(message);
    if (Find(current) != nullptr)
    {
        MakeCurrent(current);
    }
}

bool DocumentManager::SetHighlight(AcDbObjectId id, bool highlighted)
{
    Document* const target = DocumentOf(id);
    if (target != nullptr && (highlighted ? target->highlighted.Add(id) : target->highlighted.Remove(id)))
    {
        HostState::Instance().TellHighlightChanged(target);
    }
    return target != nullptr;
}

void DocumentManager::Reset()
{
    m_reactors.Clear();
    while (!m_documents.empty())
    {
        closeDocument(m_documents.back());
    }
    while (!ThreadResourceStack().empty())
    {
        popResourceHandle();
    }
    m_activationEnabled = true;
    m_lastTitle = 0;
}

} // namespace arxed
