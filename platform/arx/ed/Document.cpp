#include "Document.h"

#include "HostState.h"

#include <algorithm>

namespace arxed
{

namespace
{

// An empty drawing shows about a sheet of paper, in millimetres.
const double kEmptyWidth = 420;
const double kEmptyHeight = 297;
const double kMargin = 1.1;

// All of the drawing; as a square, because the window's shape is not known here.
arxhost::ViewState FirstView(const AcDbExtents& box)
{
    arxhost::ViewState view;
    view.centre = AcGePoint2d(kEmptyWidth / 2, kEmptyHeight / 2);
    view.height = kEmptyHeight;
    if (box == AcDbExtents())
    {
        return view;
    }
    const AcGePoint3d middle = box.minPoint() + (box.maxPoint() - box.minPoint()) / 2;
    const AcGeVector3d size = box.maxPoint() - box.minPoint();
    view.centre = AcGePoint2d(middle.x, middle.y);
    view.height = std::max(size.x, size.y) > 0 ? std::max(size.x, size.y) * kMargin : kEmptyHeight;
    return view;
}

} // namespace

Document::Document(const std::wstring& title, const std::wstring& path, std::unique_ptr<AcDbDatabase> database)
    : view(FirstView(database->modelExtents())), m_title(title), m_path(path), m_database(std::move(database))
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
    m_pointManager->Clear();
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
