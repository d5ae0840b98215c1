#include "DxfEntities.h"

namespace arxdxf
{

namespace
{

enum PolylineFlags
{
    kClosed = 1,
    kFitted = 2,
    kSplineFitted = 4,
    kInSpace = 8,
    kMesh = 16,
    kFaces = 64
};

// Flag of a vertex that only steers a fitted curve.
constexpr int kFrameVertex = 16;
constexpr int kUsualDegree = 3;

// The values of all groups with this code.
std::vector<double> AllDoubles(const DxfRecord& record, int code)
{
    std::vector<double> values;
    for (const DxfGroup& group : record.Groups())
    {
        if (group.code == code)
        {
            values.push_back(ToDouble(group));
        }
    }
    return values;
}

// The points whose first coordinates have this code; y and z follow their x.
std::vector<AcGePoint3d> AllPoints(const DxfRecord& record, int code)
{
    std::vector<AcGePoint3d> points;
    for (const DxfGroup& group : record.Groups())
    {
        if (group.code == code)
        {
            points.emplace_back(ToDouble(group), 0, 0);
        }
        else if (!points.empty() && (group.code == code + 10 || group.code == code + 20))
        {
            points.back()[static_cast<unsigned int>(group.code - code) / 10] = ToDouble(group);
        }
    }
    return points;
}

AcDb::Poly2dType FlatTypeOf(int flags)
{
    if ((flags & kFitted) != 0)
    {
        return AcDb::k2dFitCurvePoly;
    }
    return (flags & kSplineFitted) != 0 ? AcDb::k2dCubicSplinePoly : AcDb::k2dSimplePoly;
}

std::unique_ptr<AcDbEntity> FlatPolyline(const DxfRecord& record, int flags, const std::vector<DxfRecord>& vertices)
{
    auto polyline = std::make_unique<AcDb2dPolyline>();
    for (const DxfRecord& vertex : vertices)
    {
        if ((vertex.Int(70, 0) & kFrameVertex) == 0)
        {
            const AcGePoint3d point = vertex.RequiredPoint(10);
            polyline->appendVertex(AcGePoint2d(point.x, point.y), vertex.Double(42, 0));
        }
    }
    polyline->setPolyType(FlatTypeOf(flags));
    polyline->setElevation(record.Double(30, 0));
    polyline->setNormal(record.Normal());
    if ((flags & kClosed) != 0)
    {
        polyline->makeClosed();
    }
    return polyline;
}

std::unique_ptr<AcDbEntity> SpacePolyline(int flags, const std::vector<DxfRecord>& vertices)
{
    auto polyline = std::make_unique<AcDb3dPolyline>();
    for (const DxfRecord& vertex : vertices)
    {
        if ((vertex.Int(70, 0) & kFrameVertex) == 0)
        {
            polyline->appendVertex(vertex.RequiredPoint(10));
        }
    }
    polyline->setPolyType((flags & kSplineFitted) != 0 ? AcDb::k3dCubicSplinePoly : AcDb::k3dSimplePoly);
    if ((flags & kClosed) != 0)
    {
        polyline->makeClosed();
    }
    return polyline;
}

} // namespace

void MakePolyline(const DxfRecord& record, DxfContext&, DxfEntity& entity)
{
    auto polyline = std::make_unique<AcDbPolyline>();
    unsigned int count = 0;
    for (const AcGePoint3d& point : AllPoints(record, 10))
    {
        polyline->addVertexAt(count++, AcGePoint2d(point.x, point.y));
    }
    // A bulge belongs to the vertex before it.
    unsigned int vertex = 0;
    for (const DxfGroup& group : record.Groups())
    {
        vertex += group.code == 10 ? 1 : 0;
        if (group.code == 42)
        {
            polyline->setBulgeAt(vertex - 1, ToDouble(group));
        }
    }
    polyline->setClosed((record.Int(70, 0) & kClosed) != 0);
    polyline->setElevation(record.Double(38, 0));
    polyline->setNormal(record.Normal());
    entity.entity = std::move(polyline);
}

void MakeSpline(const DxfRecord& record, DxfContext&, DxfEntity& entity)
{
    arxents::Spline data;
    data.degree = record.Int(71, kUsualDegree);
    data.knots = AllDoubles(record, 40);
    data.weights = AllDoubles(record, 41);
    data.points = AllPoints(record, 10);
    AcGePoint3dArray fitPoints;
    for (const AcGePoint3d& point : AllPoints(record, 11))
    {
        fitPoints.append(point);
    }
    auto spline = std::make_unique<AcDbSpline>();
    const bool isFitOnly = data.points.empty() && !fitPoints.isEmpty();
    if ((isFitOnly ? spline->setFitPoints(fitPoints) : spline->setNurbsData(data)) != Acad::eOk)
    {
        record.Fail(L"的控制点、节点和阶数不一致");
    }
    entity.entity = std::move(spline);
}

bool MakeOldPolyline(const DxfRecord& record, const std::vector<DxfRecord>& vertices, DxfEntity& entity)
{
    const int flags = record.Int(70, 0);
    if ((flags & (kMesh | kFaces)) != 0)
    {
        return false;
    }
    entity.entity = (flags & kInSpace) != 0 ? SpacePolyline(flags, vertices) : FlatPolyline(record, flags, vertices);
    return true;
}

} // namespace arxdxf
