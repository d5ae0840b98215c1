#include "Document.h"

#include "HostState.h"

#include <algorithm>

namespace arxed
{

Document::Document(const std::wstring& title, const std::wstring& path, std::unique_ptr<AcDbDatabase> database)
    : m_title(title), m_path(path), m_database(std::move(database))
{
    m_database->addReactor(this);
}

AcAp::DocLockMode Document::lockMode(bool includeMyLocks) const
{
    // One program, one user: all locks are the caller's own.
    return includeMyLocks ? myLockMode() : AcAp::kNone;
}

AcAp::DocLockMode Document::myLockMode() const
{
    return m_locks.empty() ? AcAp::kNone : *std::max_element(m_locks.begin(), m_locks.end());
}

void Document::Close()
{
    highlighted.Clear();
    pickfirst.Clear();
    previousSelection.clear();
    pendingInput.clear();
    m_locks.clear();
    m_database->removeReactor(this);
    m_database.reset();
}

bool Document::PopLock()
{
    if (m_locks.empty())
    {
        return false;
    }
    m_locks.pop_back();
    return true;
}

void Document::objectAppended(const AcDbDatabase* /*database*/, const AcDbObject* /*object*/)
{
    HostState::Instance().TellContentsChanged(this);
}

void Document::objectModified(const AcDbDatabase* /*database*/, const AcDbObject* /*object*/)
{
    HostState::Instance().TellContentsChanged(this);
}

void Document::objectErased(const AcDbDatabase* /*database*/, const AcDbObject* object, bool erased)
{
    HostState& host = HostState::Instance();
    if (erased && highlighted.Remove(object->objectId()))
    {
        host.TellHighlightChanged(this);
    }
    if (erased && pickfirst.Remove(object->objectId()))
    {
        host.TellPickfirstChanged(this);
    }
    host.TellContentsChanged(this);
}

} // namespace arxed
