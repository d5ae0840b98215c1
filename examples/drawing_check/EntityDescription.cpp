#include "EntityDescription.h"

#include <dbents.h>
#include <dbmtext.h>

#include <cstdint>
#include <string_view>

namespace drawing_check
{

namespace
{

// Collects values byte by byte: numbers are equal exactly when their bits are.
class Description
{
public:
    Description& Add(double value)
    {
        // Adding zero makes the negative zero the positive one.
        value += 0.0;
        return AddBytes(&value, sizeof(value));
    }

    Description& Add(Adesk::IntDbId value) { return AddBytes(&value, sizeof(value)); }

    Description& Add(const AcGePoint3d& point) { return Add(point.x).Add(point.y).Add(point.z); }

    Description& Add(const AcGeVector3d& vector) { return Add(vector.x).Add(vector.y).Add(vector.z); }

    // A text ends with its terminating zero, so that neighbours do not run into each other.
    Description& Add(std::wstring_view text)
    {
        AddBytes(text.data(), text.size() * sizeof(wchar_t));
        m_bytes.append(sizeof(wchar_t), '\0');
        return *this;
    }

    // The two ends in a fixed order: a line drawn backwards covers the same points.
    Description& AddUnordered(const AcGePoint3d& first, const AcGePoint3d& second)
    {
        const bool swap = second.x < first.x || (second.x == first.x && second.y < first.y) ||
                          (second.x == first.x && second.y == first.y && second.z < first.z);
        return swap ? Add(second).Add(first) : Add(first).Add(second);
    }

    std::string Take() { return std::move(m_bytes); }

private:
    Description& AddBytes(const void* bytes, std::size_t size)
    {
        m_bytes.append(static_cast<const char*>(bytes), size);
        return *this;
    }

    std::string m_bytes;
};

void AddPolyline(Description& description, const AcDbPolyline& polyline)
{
    description.Add(polyline.normal()).Add(polyline.elevation()).Add(polyline.isClosed() ? 1.0 : 0.0);
    for (unsigned int index = 0; index < polyline.numVerts(); ++index)
    {
        AcGePoint3d point;
        double bulge = 0;
        polyline.getPointAt(index, point);
        polyline.getBulgeAt(index, bulge);
        description.Add(point).Add(bulge);
    }
}

void AddReference(Description& description, const AcDbBlockReference& reference)
{
    const AcGeScale3d scale = reference.scaleFactors();
    description.Add(reference.blockTableRecord().asOldId()).Add(reference.position()).Add(reference.rotation());
    description.Add(scale.sx).Add(scale.sy).Add(scale.sz).Add(reference.normal());
}

bool AddCurve(Description& description, const AcDbEntity& entity)
{
    if (const AcDbLine* line = AcDbLine::cast(&entity))
        description.AddUnordered(line->startPoint(), line->endPoint());
    else if (const AcDbCircle* circle = AcDbCircle::cast(&entity))
        description.Add(circle->center()).Add(circle->radius()).Add(circle->normal());
    else if (const AcDbArc* arc = AcDbArc::cast(&entity))
        description.Add(arc->center())
            .Add(arc->radius())
            .Add(arc->startAngle())
            .Add(arc->endAngle())
            .Add(arc->normal());
    else if (const AcDbPolyline* polyline = AcDbPolyline::cast(&entity))
        AddPolyline(description, *polyline);
    else
        return false;
    return true;
}

bool AddOther(Description& description, const AcDbEntity& entity)
{
    if (const AcDbPoint* point = AcDbPoint::cast(&entity))
        description.Add(point->position());
    else if (const AcDbText* text = AcDbText::cast(&entity))
        description.Add(text->position()).Add(text->height()).Add(text->rotation()).Add(text->textStringConst());
    else if (const AcDbBlockReference* reference = AcDbBlockReference::cast(&entity))
        AddReference(description, *reference);
    else
        return false;
    return true;
}

} // namespace

std::string Describe(const AcDbEntity& entity)
{
    Description description;
    description.Add(entity.isA()->name()).Add(entity.layerId().asOldId()).Add(static_cast<double>(entity.colorIndex()));
    if (!AddCurve(description, entity) && !AddOther(description, entity))
        description.Add(entity.objectId().asOldId());
    return description.Take();
}

} // namespace drawing_check
