#include "DxfEntities.h"

#include "DxfError.h"
#include "arx/ents/Angles.h"

#include <algorithm>

namespace arxdxf
{

namespace
{

constexpr int kByLayer = 256;

void MakeLine(const DxfRecord& record, DxfContext&, DxfEntity& entity)
{
    const AcGePoint3d start = record.RequiredPoint(10);
    entity.entity = std::make_unique<AcDbLine>(start, record.RequiredPoint(11));
}

double RadiusOf(const DxfRecord& record)
{
    const double radius = record.RequiredDouble(40);
    if (radius < 0)
    {
        record.Fail(L"的半径为负");
    }
    return radius;
}

void MakeCircle(const DxfRecord& record, DxfContext&, DxfEntity& entity)
{
    const AcGePoint3d center = record.ObjectPoint(10);
    entity.entity = std::make_unique<AcDbCircle>(center, record.Normal(), RadiusOf(record));
}

void MakeArc(const DxfRecord& record, DxfContext&, DxfEntity& entity)
{
    const AcGePoint3d center = record.ObjectPoint(10);
    const double radius = RadiusOf(record);
    entity.entity = std::make_unique<AcDbArc>(center, record.Normal(), radius, record.Angle(50, 0),
                                              record.Angle(51, arxents::kTwoPi));
}

void MakePoint(const DxfRecord& record, DxfContext&, DxfEntity& entity)
{
    entity.entity = std::make_unique<AcDbPoint>(record.RequiredPoint(10));
}

void MakeSolid(const DxfRecord& record, DxfContext&, DxfEntity& entity)
{
    const AcGePoint3d first = record.ObjectPoint(10);
    const AcGePoint3d second = record.ObjectPoint(11);
    const AcGePoint3d third = record.ObjectPoint(12);
    entity.entity = std::make_unique<AcDbSolid>(first, second, third, record.Has(13) ? record.ObjectPoint(13) : third);
}

void MakeEllipse(const DxfRecord& record, DxfContext&, DxfEntity& entity)
{
    AcGeVector3d major = record.RequiredPoint(11).asVector();
    double ratio = record.RequiredDouble(40);
    double start = record.Double(41, 0);
    double end = record.Double(42, arxents::kTwoPi);
    if (ratio > 1)
    {
        // Some programs call the shorter axis the major one: turn by a quarter.
        major = record.Normal().crossProduct(major) * ratio;
        ratio = 1 / ratio;
        start -= arxents::kPi / 2;
        end -= arxents::kPi / 2;
    }
    auto ellipse = std::make_unique<AcDbEllipse>();
    if (ellipse->set(record.RequiredPoint(10), record.Normal(), major, ratio, start, end) != Acad::eOk)
    {
        record.Fail(L"的轴长无效");
    }
    entity.entity = std::move(ellipse);
}

// Counts of a block array: drawings hold them as 16-bit numbers, and 0 stands for one.
Adesk::UInt16 ArrayCount(const DxfRecord& record, int code)
{
    return static_cast<Adesk::UInt16>(std::max(1, std::min<int>(record.Int(code, 1), INT16_MAX)));
}

AcGeScale3d ScaleOf(const DxfRecord& record)
{
    AcGeScale3d scale(record.Double(41, 1), record.Double(42, 1), record.Double(43, 1));
    for (unsigned int axis = 0; axis < 3; ++axis)
    {
        // A flattened block has no inverse; such factors come from plane programs that mean 1.
        scale[axis] = scale[axis] == 0 ? 1 : scale[axis];
    }
    return scale;
}

void MakeInsert(const DxfRecord& record, DxfContext& context, DxfEntity& entity)
{
    const std::wstring name = context.TextOf(record, 2);
    if (name.empty())
    {
        record.Fail(L"没有图块名");
    }
    const Adesk::UInt16 columns = ArrayCount(record, 70);
    const Adesk::UInt16 rows = ArrayCount(record, 71);
    std::unique_ptr<AcDbBlockReference> reference;
    if (columns == 1 && rows == 1)
    {
        reference = std::make_unique<AcDbBlockReference>();
    }
    else
    {
        reference = std::make_unique<AcDbMInsertBlock>(AcGePoint3d(), AcDbObjectId(), columns, rows,
                                                       record.Double(44, 0), record.Double(45, 0));
    }
    reference->setPosition(record.ObjectPoint(10));
    reference->setNormal(record.Normal());
    reference->setScaleFactors(ScaleOf(record));
    reference->setRotation(record.Angle(50, 0));
    entity.isReference = true;
    entity.block = context.drawing.blockNames.NumberOf(name);
    entity.copies = static_cast<double>(columns) * rows;
    entity.entity = std::move(reference);
}

using Maker = void (*)(const DxfRecord&, DxfContext&, DxfEntity&);

struct KnownType
{
    std::string_view name;
    Maker make;
};

constexpr KnownType kKnownTypes[] = {{"LINE", MakeLine},           {"CIRCLE", MakeCircle},   {"ARC", MakeArc},
                                     {"LWPOLYLINE", MakePolyline}, {"INSERT", MakeInsert},   {"TEXT", MakeText},
                                     {"MTEXT", MakeMText},         {"POINT", MakePoint},     {"SPLINE", MakeSpline},
                                     {"HATCH", MakeHatch},         {"ELLIPSE", MakeEllipse}, {"SOLID", MakeSolid},
                                     {"TRACE", MakeSolid}};

AcCmColor ColorOf(const DxfRecord& record, DxfContext& context)
{
    AcCmColor color;
    const DxfGroup* trueColor = record.Find(420);
    if (trueColor != nullptr)
    {
        const unsigned int rgb = static_cast<unsigned int>(ToInt(*trueColor));
        color.setRGB(static_cast<Adesk::UInt8>(rgb >> 16), static_cast<Adesk::UInt8>(rgb >> 8),
                     static_cast<Adesk::UInt8>(rgb));
        return color;
    }
    const int index = record.Int(62, kByLayer);
    const bool isKnown = index >= 0 && index <= kByLayer;
    if (!isKnown)
    {
        context.Warn(record.Find(62)->ValueLine(), L"颜色 " + std::to_wstring(index) + L" 无效，已改为随层");
    }
    color.setColorIndex(static_cast<Adesk::UInt16>(isKnown ? index : kByLayer));
    return color;
}

} // namespace

bool MakeEntity(const DxfRecord& record, DxfContext& context, DxfEntity& entity)
{
    for (const KnownType& known : kKnownTypes)
    {
        if (record.Type() == known.name)
        {
            known.make(record, context, entity);
            return true;
        }
    }
    return false;
}

void ReadCommon(const DxfRecord& record, DxfContext& context, DxfEntity& entity)
{
    const std::wstring layer = context.TextOf(record, 8);
    entity.layer = context.drawing.layerNames.NumberOf(layer.empty() ? L"0" : layer);
    entity.isPaperSpace = record.Int(67, 0) == 1;
    entity.handle = context.HandleOf(record);
    entity.line = record.Line();
    entity.entity->setColor(ColorOf(record, context));
    if (record.Int(60, 0) == 1)
    {
        entity.entity->setVisibility(AcDb::kInvisible);
    }
}

} // namespace arxdxf
