#include "msg/MsgSelection.h"

#include "msg/ZNMsgManager.h"

CMsgSelection::CMsgSelection() : m_removals(0) {}

bool CMsgSelection::IsOutdated(const CZNMsgManager& store) const
{
    return m_removals != store.GetRemovals();
}

void CMsgSelection::Reset(const CZNMsgManager& store, const std::vector<int>& selectedIds)
{
    m_withObjects.clear();
    m_removals = store.GetRemovals();
    for (size_t i = 0; i < selectedIds.size(); ++i)
        Change(store, selectedIds[i], true);
}

void CMsgSelection::Change(const CZNMsgManager& store, int id, bool selected)
{
    const CZNMsgData* const data = store.Peek(id);
    if (selected && data != NULL && !data->objectIds.isEmpty())
        m_withObjects.insert(id);
    else
        m_withObjects.erase(id);
}

bool CMsgSelection::HasObjects() const
{
    return !m_withObjects.empty();
}

bool CMsgSelection::CanZoomTo(const CZNMsgManager& store, int id)
{
    const CZNMsgData* const data = store.Peek(id);
    return data != NULL && (data->hasExtents || !data->objectIds.isEmpty());
}
