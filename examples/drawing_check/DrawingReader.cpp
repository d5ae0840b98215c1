#include "DrawingReader.h"

#include "EntityDescription.h"

#include <dbents.h>
#include <dbmtext.h>
#include <dbsymtb.h>

#include <memory>
#include <unordered_map>

namespace drawing_check
{

namespace
{

// Closes an object that was opened by identifier.
struct Closer
{
    void operator()(AcDbObject* object) const { object->close(); }
};

template<class OBJECT>
using Opened = std::unique_ptr<OBJECT, Closer>;

template<class OBJECT>
Opened<OBJECT> Open(AcDbObjectId id)
{
    OBJECT* object = nullptr;
    acdbOpenObject(object, id, AcDb::kForRead);
    return Opened<OBJECT>(object);
}

Point PointOf(const AcGePoint3d& point)
{
    return {point.x, point.y};
}

// The name of a record that the drawing only refers to; empty for a record that it has.
std::wstring UnresolvedName(AcDbObjectId id)
{
    const Opened<AcDbSymbolTableRecord> record = Open<AcDbSymbolTableRecord>(id);
    if (!record || !record->isDependent() || record->isResolved())
        return std::wstring();
    const ACHAR* name = nullptr;
    record->getName(name);
    return name;
}

class Reader
{
public:
    explicit Reader(AcDbDatabase& database) { ReadSheet(database); }

    void ReadModelSpace(AcDbDatabase& database, const ReadStop& stop)
    {
        const Opened<AcDbBlockTableRecord> space = Open<AcDbBlockTableRecord>(database.currentSpaceId());
        AcDbBlockTableRecordIterator* made = nullptr;
        if (!space || space->newIterator(made) != Acad::eOk)
            return;
        const std::unique_ptr<AcDbBlockTableRecordIterator> iterator(made);
        const std::size_t all = Count(*iterator);
        for (std::size_t read = 0; !iterator->done() && !(stop && stop(read, all)); iterator->step(), ++read)
        {
            AcDbEntity* entity = nullptr;
            if (iterator->getEntity(entity, AcDb::kForRead) == Acad::eOk)
                ReadEntity(*Opened<AcDbEntity>(entity));
        }
    }

    Drawing Take() { return std::move(m_drawing); }

private:
    static std::size_t Count(AcDbBlockTableRecordIterator& iterator)
    {
        std::size_t count = 0;
        for (; !iterator.done(); iterator.step())
            ++count;
        iterator.start();
        return count;
    }

    void ReadSheet(AcDbDatabase& database)
    {
        m_drawing.sheet = {{database.limmin().x, database.limmin().y}, {database.limmax().x, database.limmax().y}};
        m_drawing.hasSheet =
            m_drawing.sheet.max.x > m_drawing.sheet.min.x && m_drawing.sheet.max.y > m_drawing.sheet.min.y;
    }

    void ReadEntity(const AcDbEntity& entity)
    {
        const std::size_t object = m_drawing.ids.size();
        m_drawing.ids.push_back(entity.objectId());
        m_drawing.descriptions.push_back(Describe(entity));
        ReadBox(entity, object);
        ReadCurve(entity, object);
        ReadText(entity, object);
        ReadReferences(entity, object);
    }

    void ReadBox(const AcDbEntity& entity, std::size_t object)
    {
        AcDbExtents extents;
        if (entity.getGeomExtents(extents) != Acad::eOk)
            return;
        m_drawing.boxes.push_back({PointOf(extents.minPoint()), PointOf(extents.maxPoint())});
        m_drawing.boxed.push_back(object);
    }

    void ReadCurve(const AcDbEntity& entity, std::size_t object)
    {
        const AcDbCurve* curve = AcDbCurve::cast(&entity);
        AcGePoint3d start;
        AcGePoint3d end;
        if (curve == nullptr || curve->isClosed() || curve->getStartPoint(start) != Acad::eOk ||
            curve->getEndPoint(end) != Acad::eOk)
            return;
        const OpenCurve open = {object, PointOf(start), PointOf(end)};
        const bool line = entity.isKindOf(AcDbLine::desc());
        const bool polyline = entity.isKindOf(AcDbPolyline::desc()) || entity.isKindOf(AcDb2dPolyline::desc()) ||
                              entity.isKindOf(AcDb3dPolyline::desc());
        if (line)
            m_drawing.lines.push_back(open);
        if (line || entity.isKindOf(AcDbArc::desc()))
            m_drawing.ends.push_back(open);
        if (polyline)
            m_drawing.polylines.push_back(open);
    }

    void ReadText(const AcDbEntity& entity, std::size_t object)
    {
        const AcDbText* text = AcDbText::cast(&entity);
        const AcDbMText* paragraph = AcDbMText::cast(&entity);
        if ((text != nullptr && text->height() <= 0) || (paragraph != nullptr && paragraph->textHeight() <= 0))
            m_drawing.flatTexts.push_back(object);
    }

    void ReadReferences(const AcDbEntity& entity, std::size_t object)
    {
        const AcDbBlockReference* reference = AcDbBlockReference::cast(&entity);
        if (reference != nullptr)
            AddIfMissing(object, L"图块", reference->blockTableRecord());
        AddIfMissing(object, L"图层", entity.layerId());
    }

    void AddIfMissing(std::size_t object, const wchar_t* what, AcDbObjectId record)
    {
        const auto known = m_unresolved.find(record.asOldId());
        if (known == m_unresolved.end())
        {
            m_unresolved[record.asOldId()] = UnresolvedName(record);
            AddIfMissing(object, what, record);
        }
        else if (!known->second.empty())
        {
            m_drawing.missing.push_back({object, what, known->second});
        }
    }

    Drawing m_drawing;
    // Each record is opened once, however many entities refer to it.
    std::unordered_map<Adesk::IntDbId, std::wstring> m_unresolved;
};

} // namespace

Drawing ReadDrawing(AcDbDatabase& database, const ReadStop& stop)
{
    Reader reader(database);
    reader.ReadModelSpace(database, stop);
    return reader.Take();
}

} // namespace drawing_check
