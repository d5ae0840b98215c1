#include "dbsymtb.h"

#include "HighlightSink.h"
#include "ObjectStore.h"
#include "acutads.h"
#include "arx/gi/EntityExtents.h"
#include "dbapserv.h"
#include "dbobjptr.h"

namespace
{

const ACHAR* const kLayerZero = ACRX_T("0");

Acad::ErrorStatus ChangeHighlight(const AcDbEntity& entity, bool highlighted)
{
    if (entity.database() == nullptr)
    {
        return Acad::eNotInDatabase;
    }
    if (highlighted && entity.isErased())
    {
        return Acad::eWasErased;
    }
    arxdb::IHighlightSink* sink = arxdb::GetHighlightSink();
    return sink != nullptr && sink->SetHighlight(entity.objectId(), highlighted) ? Acad::eOk : Acad::eNoDocument;
}

} // namespace

ACRX_NO_CONS_DEFINE_MEMBERS(AcDbEntity, AcDbObject)

AcDbEntity::AcDbEntity() : m_visibility(AcDb::kVisible)
{
    m_color.setColorMethod(AcCmEntityColor::kByLayer);
}

AcDbEntity::~AcDbEntity() {}

AcCmColor AcDbEntity::color() const
{
    assertReadEnabled();
    return m_color;
}

Adesk::UInt16 AcDbEntity::colorIndex() const
{
    return color().colorIndex();
}

AcCmEntityColor AcDbEntity::entityColor() const
{
    return color().entityColor();
}

Acad::ErrorStatus AcDbEntity::setColor(const AcCmColor& color, bool /*doSubents*/)
{
    assertWriteEnabled();
    m_color = color;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbEntity::setColorIndex(Adesk::UInt16 index, bool doSubents)
{
    AcCmColor color;
    if (index > AcCmEntityColor::kACIbyLayer)
    {
        return Acad::eInvalidInput;
    }
    color.setColorIndex(index);
    return setColor(color, doSubents);
}

ACHAR* AcDbEntity::layer() const
{
    assertReadEnabled();
    // Not opened: the layer may be open for writing.
    const arxdb::ObjectRecord* record = arxdb::ObjectStore::Instance().Find(m_layerId);
    ACHAR* name = nullptr;
    if (record != nullptr)
    {
        AcDbLayerTableRecord::cast(record->object)->getName(name);
    }
    else
    {
        acutNewString(kLayerZero, name);
    }
    return name;
}

Acad::ErrorStatus AcDbEntity::setLayer(const ACHAR* name, bool doSubents)
{
    AcDbDatabase* drawing = database();
    drawing = drawing == nullptr ? acdbHostApplicationServices()->workingDatabase() : drawing;
    if (drawing == nullptr)
    {
        return Acad::eNoDatabase;
    }
    AcDbObjectPointer<AcDbLayerTable> table(drawing->layerTableId());
    if (table.openStatus() != Acad::eOk)
    {
        return table.openStatus();
    }
    AcDbObjectId id;
    const Acad::ErrorStatus es = table->getAt(name, id);
    return es == Acad::eOk ? setLayer(id, doSubents) : es;
}

Acad::ErrorStatus AcDbEntity::setLayer(AcDbObjectId layerId, bool /*doSubents*/)
{
    if (layerId.objectClass() != AcDbLayerTableRecord::desc())
    {
        return Acad::eInvalidInput;
    }
    if (database() != nullptr && layerId.database() != database())
    {
        return Acad::eWrongDatabase;
    }
    assertWriteEnabled();
    m_layerId = layerId;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbEntity::setVisibility(AcDb::Visibility visibility, bool /*doSubents*/)
{
    assertWriteEnabled();
    m_visibility = visibility;
    return Acad::eOk;
}

void AcDbEntity::setDatabaseDefaults(AcDbDatabase* database)
{
    assertWriteEnabled();
    database = database == nullptr ? acdbHostApplicationServices()->workingDatabase() : database;
    m_color.setColorMethod(AcCmEntityColor::kByLayer);
    m_visibility = AcDb::kVisible;
    m_layerId = database == nullptr ? AcDbObjectId() : database->clayer();
}

Acad::ErrorStatus AcDbEntity::getGeomExtents(AcDbExtents& extents) const
{
    assertReadEnabled();
    AcDbExtents box;
    if (!arxgi::AddEntityExtents(*this, box))
    {
        return Acad::eNullExtents;
    }
    extents = box;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbEntity::transformBy(const AcGeMatrix3d& /*matrix*/)
{
    return Acad::eNotApplicable;
}

Acad::ErrorStatus AcDbEntity::highlight() const
{
    return ChangeHighlight(*this, true);
}

Acad::ErrorStatus AcDbEntity::unhighlight() const
{
    return ChangeHighlight(*this, false);
}

void AcDbEntity::emitPieces(arxgi::PieceSink& /*sink*/) const {}
