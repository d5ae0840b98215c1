#include "msg/MsgObjects.h"

#include <acedads.h>
#include <ZnAcadUiBase.h>

#include "msg/ZNMsgManager.h"

namespace
{

// Room around zoomed objects on each side, drawing units.
const double kZoomRoom = 10.0;

// Guard: a new empty selection set of the host, which has only a few of them.
class CSelectionSet
{
public:
    CSelectionSet() : m_made(acedSSAdd(NULL, NULL, m_name) == RTNORM) {}
    ~CSelectionSet()
    {
        if (m_made)
            acedSSFree(m_name);
    }

    void Add(const AcDbObjectId& id)
    {
        ads_name object;
        if (m_made && acdbGetAdsName(object, id) == Acad::eOk)
            acedSSAdd(object, m_name, m_name);
    }

    void MakeCurrent()
    {
        if (m_made)
            acedSSSetFirst(m_name, NULL);
    }

private:
    CSelectionSet(const CSelectionSet&);
    CSelectionSet& operator=(const CSelectionSet&);

    ads_name m_name;
    bool m_made;
};

} // namespace

void CollectObjects(const CZNMsgManager& store, const std::vector<int>& messageIds, AcArray<AcDbObjectId>& objects)
{
    // Room for all at once: the array itself grows by a few elements only.
    int length = 0;
    for (size_t i = 0; i < messageIds.size(); ++i)
    {
        const CZNMsgData* const data = store.Peek(messageIds[i]);
        length += data == NULL ? 0 : data->objectIds.length();
    }
    objects.setPhysicalLength(length);
    for (size_t i = 0; i < messageIds.size(); ++i)
    {
        const CZNMsgData* const data = store.Peek(messageIds[i]);
        if (data != NULL)
            objects.append(data->objectIds);
    }
}

void SelectObjects(const AcArray<AcDbObjectId>& objects)
{
    CSelectionSet set;
    for (int i = 0; i < objects.length(); ++i)
        set.Add(objects[i]);
    set.MakeCurrent();
}

void ZoomToMessage(const CZNMsgData& message)
{
    if (message.hasExtents)
    {
        ZnAcadUiBase::ZoomTo(message.extents);
        return;
    }
    AcDbExtents extents;
    if (message.objectIds.isEmpty() || !ZnAcadUiBase::GetExtents(message.objectIds, extents))
        return;
    extents.expandBy(AcGeVector3d(-kZoomRoom, -kZoomRoom, 0.0));
    extents.expandBy(AcGeVector3d(kZoomRoom, kZoomRoom, 0.0));
    ZnAcadUiBase::ZoomTo(extents);
}
