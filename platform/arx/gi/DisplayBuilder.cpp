#include "DisplayBuilder.h"

#include "dbents.h"
#include "dbobjptr.h"
#include "dbsymtb.h"

#include <cmath>

namespace arxgi
{

namespace
{

constexpr int kForegroundIndex = 7;
constexpr unsigned int kWhite = 0xFFFFFF;

DisplayColor Foreground()
{
    return DisplayColor{kWhite, true};
}

} // namespace

DisplayBuilder::DisplayBuilder(DisplayList& list, AcDbDatabase& database, double tolerance, size_t maxPoints)
    : m_list(list), m_database(database), m_tolerance(tolerance), m_maxPoints(maxPoints),
      m_layerZero(database.layerZero())
{
    m_contexts.push_back({m_layerZero, Foreground()});
}

void DisplayBuilder::Build()
{
    AcDbBlockTable* blocks = NULL;
    if (m_database.getBlockTable(blocks, AcDb::kForRead) != Acad::eOk)
    {
        return;
    }
    AcDbObjectId modelSpace;
    blocks->getAt(ACDB_MODEL_SPACE, modelSpace);
    blocks->close();
    WalkBlock(modelSpace);
}

bool DisplayBuilder::EnterEntity(const AcDbEntity& entity)
{
    const AcDbObjectId layerId = EffectiveLayer(entity);
    const Layer& layer = LayerOf(layerId);
    // A reference on a layer that is off still shows those of its entities that lie on other layers.
    const bool isReference = AcDbBlockReference::cast(&entity) != NULL;
    if (entity.visibility() != AcDb::kVisible || layer.isFrozen || (layer.isOff && !isReference))
    {
        return false;
    }
    m_contexts.push_back({layerId, Resolve(entity.entityColor(), layerId)});
    if (Depth() == 0)
    {
        DisplayItem item;
        item.entity = entity.objectId();
        item.first = m_list.m_primitives.size();
        m_list.m_items.push_back(item);
    }
    return true;
}

void DisplayBuilder::LeaveEntity()
{
    m_contexts.pop_back();
    if (Depth() > 0)
    {
        return;
    }
    DisplayItem& item = m_list.m_items.back();
    item.count = m_list.m_primitives.size() - item.first;
    if (item.count == 0)
    {
        m_list.m_items.pop_back();
        return;
    }
    m_list.m_box.Add(item.box);
}

const DisplayBuilder::Layer& DisplayBuilder::LayerOf(AcDbObjectId id)
{
    const auto known = m_layers.find(id);
    if (known != m_layers.end())
    {
        return known->second;
    }
    Layer& layer = m_layers[id];
    layer.color.setColorIndex(kForegroundIndex);
    AcDbObjectPointer<AcDbLayerTableRecord> record(id);
    if (record.openStatus() == Acad::eOk)
    {
        layer.color = record->color().entityColor();
        layer.isOff = record->isOff();
        layer.isFrozen = record->isFrozen();
    }
    return layer;
}

AcDbObjectId DisplayBuilder::EffectiveLayer(const AcDbEntity& entity) const
{
    const AcDbObjectId own = entity.layerId();
    return Depth() > 0 && (own == m_layerZero || own.isNull()) ? m_contexts.back().layer : own;
}

DisplayColor DisplayBuilder::Resolve(const AcCmEntityColor& color, AcDbObjectId layer)
{
    if (color.isByBlock())
    {
        return m_contexts.back().color;
    }
    const AcCmEntityColor actual = color.isByLayer() ? LayerOf(layer).color : color;
    if (!actual.isByColor() && (!actual.isByACI() || actual.colorIndex() == kForegroundIndex))
    {
        return Foreground();
    }
    const unsigned int rgb = (static_cast<unsigned int>(actual.red()) << 16) | (actual.green() << 8) | actual.blue();
    return DisplayColor{rgb, false};
}

void DisplayBuilder::AddCurve(const Path& path)
{
    const DisplayPrimitive primitive = Begin(DisplayPrimitive::kPolyline);
    AppendFlat(path);
    Finish(primitive);
}

void DisplayBuilder::AddArea(const std::vector<Path>& boundary)
{
    const DisplayPrimitive primitive = Begin(DisplayPrimitive::kArea);
    for (const Path& path : boundary)
    {
        AppendFlat(path);
        m_list.m_loopEnds.push_back(m_list.m_points.size());
    }
    Finish(primitive);
}

void DisplayBuilder::AddText(const TextPiece& text)
{
    DisplayPrimitive primitive = Begin(DisplayPrimitive::kText);
    Append(text.corner);
    Append(text.corner + text.along);
    Append(text.corner + text.along + text.up);
    Append(text.corner + text.up);
    Append(text.corner);
    primitive.text = m_list.m_texts.size();
    m_list.m_texts.push_back(text.text);
    Finish(primitive);
}

void DisplayBuilder::AddPoint(const AcGePoint3d& point)
{
    const DisplayPrimitive primitive = Begin(DisplayPrimitive::kPoint);
    Append(point);
    Finish(primitive);
}

DisplayPrimitive DisplayBuilder::Begin(DisplayPrimitive::Kind kind) const
{
    DisplayPrimitive primitive;
    primitive.kind = kind;
    primitive.color = m_contexts.back().color;
    primitive.firstPoint = m_list.m_points.size();
    primitive.firstLoop = m_list.m_loopEnds.size();
    return primitive;
}

void DisplayBuilder::Append(const AcGePoint3d& point)
{
    const AcGePoint3d mapped = Transform() * point;
    m_list.m_points.push_back({mapped.x, mapped.y});
}

void DisplayBuilder::AppendFlat(const Path& path)
{
    // Mapped first, so that the chords suit the size that shows.
    Path mapped = path;
    mapped.Transform(Transform());
    for (const AcGePoint3d& point : mapped.Flatten(m_tolerance))
    {
        m_list.m_points.push_back({point.x, point.y});
    }
}

void DisplayBuilder::Finish(DisplayPrimitive primitive)
{
    Box2 box;
    bool isFinite = true;
    for (size_t i = primitive.firstPoint; i < m_list.m_points.size(); ++i)
    {
        const Point2& point = m_list.m_points[i];
        isFinite = isFinite && std::isfinite(point.x) && std::isfinite(point.y);
        box.Add(point);
    }
    if (!isFinite)
    {
        m_list.m_points.resize(primitive.firstPoint);
        m_list.m_loopEnds.resize(primitive.firstLoop);
        return;
    }
    primitive.pointCount = m_list.m_points.size() - primitive.firstPoint;
    primitive.loopCount = m_list.m_loopEnds.size() - primitive.firstLoop;
    m_list.m_primitives.push_back(primitive);
    m_list.m_items.back().box.Add(box);
    m_list.m_truncated = m_list.m_points.size() >= m_maxPoints;
}

} // namespace arxgi
