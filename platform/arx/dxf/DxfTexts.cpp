#include "DxfEntities.h"

#include "dbmtext.h"

#include <cmath>

namespace arxdxf
{

namespace
{

// Texts of styles with a fixed height may lack their own.
constexpr double kUsualHeight = 2.5;

int InRange(int value, int lowest, int highest)
{
    return value < lowest || value > highest ? lowest : value;
}

// Long texts come in parts, which may cut a character of several bytes in two: joined before decoding.
std::string JoinedParts(const DxfRecord& record)
{
    std::string joined;
    for (const DxfGroup& group : record.Groups())
    {
        if (group.code == 3 || group.code == 1)
        {
            joined += group.value;
        }
    }
    return joined;
}

AcGeVector3d DirectionOf(const DxfRecord& record)
{
    const AcGeVector3d direction = record.Point(11).asVector();
    if (!direction.isZeroLength())
    {
        return direction;
    }
    const double angle = record.Angle(50, 0);
    return AcGeMatrix3d::planeToWorld(record.Normal()) * AcGeVector3d(std::cos(angle), std::sin(angle), 0);
}

} // namespace

void MakeText(const DxfRecord& record, DxfContext& context, DxfEntity& entity)
{
    const DxfGroup* value = record.Find(1);
    const std::wstring content = value == nullptr ? L"" : context.Decode(value->value, value->ValueLine());
    auto text = std::make_unique<AcDbText>(record.ObjectPoint(10), content.c_str(), record.Double(40, kUsualHeight),
                                           record.Angle(50, 0));
    text->setAlignmentPoint(record.Has(11) ? record.ObjectPoint(11) : text->position());
    text->setWidthFactor(record.Double(41, 1));
    text->setOblique(record.Angle(51, 0));
    text->setHorizontalMode(
        static_cast<AcDb::TextHorzMode>(InRange(record.Int(72, AcDb::kTextLeft), AcDb::kTextLeft, AcDb::kTextFit)));
    text->setVerticalMode(
        static_cast<AcDb::TextVertMode>(InRange(record.Int(73, AcDb::kTextBase), AcDb::kTextBase, AcDb::kTextTop)));
    text->setNormal(record.Normal());
    entity.entity = std::move(text);
}

void MakeMText(const DxfRecord& record, DxfContext& context, DxfEntity& entity)
{
    auto text = std::make_unique<AcDbMText>();
    text->setContents(context.Decode(JoinedParts(record), record.Line()).c_str());
    text->setLocation(record.RequiredPoint(10));
    text->setNormal(record.Normal());
    text->setDirection(DirectionOf(record));
    text->setTextHeight(record.Double(40, kUsualHeight));
    text->setWidth(record.Double(41, 0));
    text->setLineSpacingFactor(record.Double(44, 1));
    text->setAttachment(static_cast<AcDbMText::AttachmentPoint>(
        InRange(record.Int(71, AcDbMText::kTopLeft), AcDbMText::kTopLeft, AcDbMText::kBottomRight)));
    entity.entity = std::move(text);
}

} // namespace arxdxf
