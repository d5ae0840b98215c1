#include "EntityProperties.h"

#include "PropertyText.h"

#include <acutads.h>
#include <dbents.h>
#include <dbhatch.h>
#include <dbmtext.h>
#include <dbobjptr.h>
#include <dbsymtb.h>

#include <cmath>

namespace entity_hover
{

namespace
{

// The more special class comes first.
struct Kind
{
    AcRxClass* (*desc)();
    const wchar_t* name;
};

const Kind kKinds[] = {
    {&AcDbLine::desc, L"直线"},
    {&AcDbCircle::desc, L"圆"},
    {&AcDbArc::desc, L"圆弧"},
    {&AcDbPolyline::desc, L"多段线"},
    {&AcDb2dPolyline::desc, L"二维多段线"},
    {&AcDb3dPolyline::desc, L"三维多段线"},
    {&AcDbEllipse::desc, L"椭圆"},
    {&AcDbSpline::desc, L"样条曲线"},
    {&AcDbPoint::desc, L"点"},
    {&AcDbText::desc, L"单行文字"},
    {&AcDbMText::desc, L"多行文字"},
    {&AcDbMInsertBlock::desc, L"阵列图块"},
    {&AcDbBlockReference::desc, L"图块"},
    {&AcDbHatch::desc, L"图案填充"},
    {&AcDbSolid::desc, L"二维填充"},
};

std::wstring KindOf(const AcDbEntity& entity)
{
    for (const Kind& kind : kKinds)
    {
        if (entity.isKindOf(kind.desc()))
            return kind.name;
    }
    return entity.isA()->name();
}

std::wstring NameOf(AcDbObjectId record)
{
    const AcDbObjectPointer<AcDbSymbolTableRecord> opened(record);
    const ACHAR* name = nullptr;
    if (opened.openStatus() != Acad::eOk || opened->getName(name) != Acad::eOk)
        return L"？";
    return name;
}

// A colour that the layer gives is named as well.
std::wstring ColorOf(const AcDbEntity& entity)
{
    const std::wstring text = ColorText(entity.color());
    const AcDbObjectPointer<AcDbLayerTableRecord> layer(entity.layerId());
    const bool isFromLayer = entity.color().isByLayer() && layer.openStatus() == Acad::eOk;
    return isFromLayer ? text + L"（" + ColorText(layer->color()) + L"）" : text;
}

std::wstring HandleOf(const AcDbEntity& entity)
{
    AcDbHandle handle;
    entity.getAcDbHandle(handle);
    ACHAR text[AcDbHandle::kStrSiz] = L"";
    handle.getIntoAsciiBuffer(text, AcDbHandle::kStrSiz);
    return text;
}

class Listing
{
public:
    void Add(const wchar_t* label, const std::wstring& value) { m_lines.push_back(label + (L": " + value)); }
    void Add(const wchar_t* label, double number) { Add(label, NumberText(number)); }
    void Add(const wchar_t* label, const AcGePoint3d& point) { Add(label, PointText(point)); }
    void AddAngle(const wchar_t* label, double radians) { Add(label, AngleText(radians)); }

    Lines Take() { return std::move(m_lines); }

private:
    Lines m_lines;
};

void AddLine(Listing& listing, const AcDbLine& line)
{
    const AcGeVector3d along = line.endPoint() - line.startPoint();
    listing.Add(L"起点", line.startPoint());
    listing.Add(L"终点", line.endPoint());
    listing.Add(L"长度", along.length());
    listing.AddAngle(L"角度", std::atan2(along.y, along.x));
}

void AddArc(Listing& listing, const AcDbArc& arc)
{
    listing.Add(L"圆心", arc.center());
    listing.Add(L"半径", arc.radius());
    listing.AddAngle(L"起始角", arc.startAngle());
    listing.AddAngle(L"终止角", arc.endAngle());
}

// A bulge is the tangent of a quarter of the arc's angle.
double SegmentLength(double chord, double bulge)
{
    if (bulge == 0)
        return chord;
    const double radius = chord * (1 + bulge * bulge) / (4 * std::fabs(bulge));
    return radius * 4 * std::atan(std::fabs(bulge));
}

double LengthOf(const AcDbPolyline& polyline)
{
    const unsigned int vertices = polyline.numVerts();
    const unsigned int segments = polyline.isClosed() || vertices == 0 ? vertices : vertices - 1;
    double length = 0;
    for (unsigned int i = 0; i < segments; ++i)
    {
        AcGePoint3d start;
        AcGePoint3d end;
        double bulge = 0;
        polyline.getPointAt(i, start);
        polyline.getPointAt((i + 1) % vertices, end);
        polyline.getBulgeAt(i, bulge);
        length += SegmentLength(start.distanceTo(end), bulge);
    }
    return length;
}

void AddPolyline(Listing& listing, const AcDbPolyline& polyline)
{
    listing.Add(L"顶点数", polyline.numVerts());
    listing.Add(L"闭合", polyline.isClosed() ? L"是" : L"否");
    listing.Add(L"长度", LengthOf(polyline));
}

void AddEllipse(Listing& listing, const AcDbEllipse& ellipse)
{
    const double major = ellipse.majorAxis().length();
    listing.Add(L"中心", ellipse.center());
    listing.Add(L"长半轴", major);
    listing.Add(L"短半轴", major * ellipse.radiusRatio());
}

void AddEnds(Listing& listing, const AcDbCurve& curve)
{
    AcGePoint3d start;
    AcGePoint3d end;
    if (curve.getStartPoint(start) == Acad::eOk)
        listing.Add(L"起点", start);
    if (curve.getEndPoint(end) == Acad::eOk)
        listing.Add(L"终点", end);
    listing.Add(L"闭合", curve.isClosed() ? L"是" : L"否");
}

void AddCurve(Listing& listing, const AcDbCurve& curve)
{
    if (const AcDbLine* line = AcDbLine::cast(&curve))
        AddLine(listing, *line);
    else if (const AcDbCircle* circle = AcDbCircle::cast(&curve))
    {
        listing.Add(L"圆心", circle->center());
        listing.Add(L"半径", circle->radius());
    }
    else if (const AcDbArc* arc = AcDbArc::cast(&curve))
        AddArc(listing, *arc);
    else if (const AcDbPolyline* polyline = AcDbPolyline::cast(&curve))
        AddPolyline(listing, *polyline);
    else if (const AcDbEllipse* ellipse = AcDbEllipse::cast(&curve))
        AddEllipse(listing, *ellipse);
    else
        AddEnds(listing, curve);
}

void AddText(Listing& listing, const AcDbText& text)
{
    listing.Add(L"内容", Excerpt(text.textStringConst()));
    listing.Add(L"位置", text.position());
    listing.Add(L"字高", text.height());
}

void AddMText(Listing& listing, const AcDbMText& text)
{
    ACHAR* contents = text.contents();
    listing.Add(L"内容", Excerpt(contents == nullptr ? L"" : contents));
    acutDelString(contents);
    listing.Add(L"位置", text.location());
    listing.Add(L"字高", text.textHeight());
}

void AddReference(Listing& listing, const AcDbBlockReference& reference)
{
    const AcGeScale3d scale = reference.scaleFactors();
    listing.Add(L"名称", NameOf(reference.blockTableRecord()));
    listing.Add(L"插入点", reference.position());
    listing.Add(L"比例", PointText(AcGePoint3d(scale.sx, scale.sy, scale.sz)));
    listing.AddAngle(L"旋转", reference.rotation());
}

void AddGeometry(Listing& listing, const AcDbEntity& entity)
{
    if (const AcDbCurve* curve = AcDbCurve::cast(&entity))
        AddCurve(listing, *curve);
    else if (const AcDbPoint* point = AcDbPoint::cast(&entity))
        listing.Add(L"位置", point->position());
    else if (const AcDbText* text = AcDbText::cast(&entity))
        AddText(listing, *text);
    else if (const AcDbMText* paragraph = AcDbMText::cast(&entity))
        AddMText(listing, *paragraph);
    else if (const AcDbBlockReference* reference = AcDbBlockReference::cast(&entity))
        AddReference(listing, *reference);
    else if (const AcDbHatch* hatch = AcDbHatch::cast(&entity))
        listing.Add(L"图案", Excerpt(hatch->patternName()));
}

} // namespace

Lines PropertiesOf(const AcDbEntity& entity)
{
    Listing listing;
    listing.Add(L"类型", KindOf(entity));
    listing.Add(L"图层", NameOf(entity.layerId()));
    listing.Add(L"颜色", ColorOf(entity));
    AddGeometry(listing, entity);
    listing.Add(L"句柄", HandleOf(entity));
    return listing.Take();
}

} // namespace entity_hover
