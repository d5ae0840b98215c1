// Selection sets of the C interface.
#include "DocumentManager.h"
#include "HostState.h"
#include "SelectionFilter.h"
#include "SelectionSets.h"
#include "acedads.h"
#include "arx/db/AdsNames.h"
#include "dbobjptr.h"
#include "dbsymtb.h"

#include <algorithm>
#include <iterator>
#include <new>

using arxed::Document;
using arxed::DocumentManager;
using arxed::ObjectSet;
using arxed::SelectionSets;
using arxhost::ObjectIds;

namespace
{

enum class Mode
{
    Ask,
    All,
    Thawed,
    Pickfirst,
    Previous,
    Last,
    Window,
    Crossing,
    Unknown
};

Mode ModeOf(const ACHAR* text)
{
    const std::wstring mode = text == nullptr ? L"" : text;
    const size_t letter = mode.size() > 1 && mode[0] == L'_' ? 1 : 0;
    if (mode.empty() || mode.size() - letter != 1)
    {
        return mode.empty() ? Mode::Ask : Mode::Unknown;
    }
    static const std::pair<wchar_t, Mode> modes[] = {
        {L'X', Mode::All},  {L'A', Mode::Thawed}, {L'I', Mode::Pickfirst}, {L'P', Mode::Previous},
        {L'L', Mode::Last}, {L'W', Mode::Window}, {L'C', Mode::Crossing},
    };
    const wchar_t wanted = static_cast<wchar_t>(towupper(mode[letter]));
    const auto found =
        std::find_if(std::begin(modes), std::end(modes), [&](const auto& entry) { return entry.first == wanted; });
    return found == std::end(modes) ? Mode::Unknown : found->second;
}

ObjectIds ModelSpace(const Document& document)
{
    ObjectIds ids;
    const AcDbObjectPointer<AcDbBlockTableRecord> space(document.database()->currentSpaceId());
    if (space.openStatus() == Acad::eOk)
    {
        const AcDbObjectIdArray& all = space->entityIds();
        std::copy_if(all.asArrayPtr(), all.asArrayPtr() + all.length(), std::back_inserter(ids),
                     [](AcDbObjectId id) { return !id.isErased(); });
    }
    return ids;
}

// Not the height: a window on the screen reaches through all of it.
bool Contains(const AcDbExtents& window, const AcDbExtents& box)
{
    return box.minPoint().x >= window.minPoint().x && box.maxPoint().x <= window.maxPoint().x &&
           box.minPoint().y >= window.minPoint().y && box.maxPoint().y <= window.maxPoint().y;
}

bool Touches(const AcDbExtents& window, const AcDbExtents& box)
{
    return box.minPoint().x <= window.maxPoint().x && box.maxPoint().x >= window.minPoint().x &&
           box.minPoint().y <= window.maxPoint().y && box.maxPoint().y >= window.minPoint().y;
}

ObjectIds InWindow(const Document& document, const void* corner1, const void* corner2, bool crossing)
{
    if (corner1 == nullptr || corner2 == nullptr)
    {
        return ObjectIds();
    }
    AcDbExtents window;
    for (const void* corner : {corner1, corner2})
    {
        const ads_real* point = static_cast<const ads_real*>(corner);
        window.addPoint(AcGePoint3d(point[0], point[1], 0));
    }
    ObjectIds ids = arxhost::VisibleEntities(&document);
    ids.erase(std::remove_if(ids.begin(), ids.end(),
                             [&](AcDbObjectId id) {
                                 AcDbExtents box;
                                 const AcDbEntityPointer entity(id);
                                 const bool known =
                                     entity.openStatus() == Acad::eOk && entity->getGeomExtents(box) == Acad::eOk;
                                 return !known || !(crossing ? Touches(window, box) : Contains(window, box));
                             }),
              ids.end());
    return ids;
}

// RTNORM, or why there is nothing.
int Collect(Mode mode, Document& document, const void* point1, const void* point2, ObjectIds& ids)
{
    switch (mode)
    {
    case Mode::Ask:
        return arxed::HostState::Instance().Ui().SelectObjects(ids) ? RTNORM : RTCAN;
    case Mode::All:
        ids = ModelSpace(document);
        return RTNORM;
    case Mode::Thawed:
        ids = arxhost::VisibleEntities(&document);
        return RTNORM;
    case Mode::Pickfirst:
        ids = document.pickfirst.LivingIds();
        return RTNORM;
    case Mode::Previous:
        std::copy_if(document.previousSelection.begin(), document.previousSelection.end(), std::back_inserter(ids),
                     [](AcDbObjectId id) { return id.isValid() && !id.isErased(); });
        return RTNORM;
    case Mode::Last:
        ids = arxhost::VisibleEntities(&document);
        ids.erase(ids.begin(), ids.empty() ? ids.end() : ids.end() - 1);
        return RTNORM;
    case Mode::Window:
    case Mode::Crossing:
        ids = InWindow(document, point1, point2, mode == Mode::Crossing);
        return RTNORM;
    default:
        return RTREJ;
    }
}

bool IsChoice(Mode mode)
{
    return mode == Mode::Ask || mode == Mode::Window || mode == Mode::Crossing || mode == Mode::Thawed;
}

int NewSet(const ObjectIds& ids, ads_name result)
{
    ObjectSet* set = SelectionSets::Instance().New(result);
    if (set == nullptr)
    {
        return RTERROR;
    }
    for (const AcDbObjectId& id : ids)
    {
        set->Add(id);
    }
    return RTNORM;
}

} // namespace

int acedSSGet(const ACHAR* mode, const void* point1, const void* point2, const resbuf* filter, ads_name result)
{
    Document* const document = DocumentManager::Instance().Current();
    if (document == nullptr || result == nullptr)
    {
        return RTERROR;
    }
    ObjectIds ids;
    const Mode chosen = ModeOf(mode);
    const int code = Collect(chosen, *document, point1, point2, ids);
    if (code != RTNORM)
    {
        return code;
    }
    ids.erase(
        std::remove_if(ids.begin(), ids.end(), [&](AcDbObjectId id) { return !arxed::MatchesFilter(id, filter); }),
        ids.end());
    if (ids.empty())
    {
        return RTERROR;
    }
    if (IsChoice(chosen))
    {
        document->previousSelection = ids;
    }
    return NewSet(ids, result);
}

int acedSSAdd(const ads_name ename, const ads_name sname, ads_name result)
{
    AcDbObjectId id;
    if (result == nullptr || (ename != nullptr && acdbGetObjectId(id, ename) != Acad::eOk))
    {
        return RTERROR;
    }
    if (sname == nullptr)
    {
        return NewSet(ename == nullptr ? ObjectIds() : ObjectIds(1, id), result);
    }
    ObjectSet* set = SelectionSets::Instance().Find(sname);
    if (set == nullptr || ename == nullptr)
    {
        return RTERROR;
    }
    set->Add(id);
    ads_name_set(sname, result);
    return RTNORM;
}

int acedSSDel(const ads_name ename, const ads_name sname)
{
    ObjectSet* set = SelectionSets::Instance().Find(sname);
    AcDbObjectId id;
    if (set == nullptr || ename == nullptr || ename[1] != 0)
    {
        return RTERROR;
    }
    return set->Remove(id.setFromOldId(ename[0])) ? RTNORM : RTERROR;
}

int acedSSFree(const ads_name sname)
{
    return SelectionSets::Instance().Free(sname) ? RTNORM : RTERROR;
}

int acedSSLength(const ads_name sname, Adesk::Int32* length)
{
    const ObjectSet* set = SelectionSets::Instance().Find(sname);
    if (set == nullptr || length == nullptr)
    {
        return RTERROR;
    }
    *length = static_cast<Adesk::Int32>(set->Ids().size());
    return RTNORM;
}

int acedSSName(const ads_name sname, int index, ads_name result)
{
    const ObjectSet* set = SelectionSets::Instance().Find(sname);
    if (set == nullptr || result == nullptr || index < 0 || static_cast<size_t>(index) >= set->Ids().size())
    {
        return RTERROR;
    }
    // Not by acdbGetAdsName(): erased entities stay in the set.
    result[0] = set->Ids()[static_cast<size_t>(index)].asOldId();
    result[1] = 0;
    return RTNORM;
}

int acedSSMemb(const ads_name ename, const ads_name sname)
{
    const ObjectSet* set = SelectionSets::Instance().Find(sname);
    AcDbObjectId id;
    const bool member = set != nullptr && ename != nullptr && ename[1] == 0 && set->Has(id.setFromOldId(ename[0]));
    return member ? RTNORM : RTERROR;
}

int acedSSSetFirst(const ads_name pickfirst, const ads_name /*unused*/)
{
    Document* const document = DocumentManager::Instance().Current();
    const ObjectSet* set = SelectionSets::Instance().Find(pickfirst);
    if (document == nullptr || (pickfirst != nullptr && set == nullptr))
    {
        return RTERROR;
    }
    arxhost::SetPickfirst(document, set == nullptr ? ObjectIds() : set->Ids());
    return RTNORM;
}

int acedSSGetFirst(resbuf** grips, resbuf** pickfirst)
{
    const Document* const document = DocumentManager::Instance().Current();
    if (grips != nullptr)
    {
        *grips = nullptr;
    }
    if (pickfirst == nullptr || document == nullptr)
    {
        return RTERROR;
    }
    *pickfirst = nullptr;
    const ObjectIds ids = document->pickfirst.LivingIds();
    ads_name set;
    if (ids.empty() || NewSet(ids, set) != RTNORM)
    {
        return RTERROR;
    }
    *pickfirst = acutNewRb(RTPICKS);
    ads_name_set(set, (*pickfirst)->resval.rlname);
    return RTNORM;
}
