#include "DxfEntities.h"

#include "arx/ents/Angles.h"
#include "dbhatch.h"

#include <cmath>

namespace arxdxf
{

namespace
{

constexpr double kDegree = arxents::kPi / 180;

enum EdgeType
{
    kLineEdge = 1,
    kArcEdge = 2,
    kEllipseEdge = 3,
    kSplineEdge = 4
};

// Reads the boundary of a hatch, where the meaning of a code depends on what came before.
class BoundaryReader
{
public:
    explicit BoundaryReader(const DxfRecord& record) : m_record(record) {}

    void ReadInto(AcDbHatch& hatch)
    {
        const int loops = Integer(91);
        for (int i = 0; i < loops; ++i)
        {
            hatch.appendLoop(ReadLoop());
        }
    }

private:
    arxents::HatchLoop ReadLoop()
    {
        arxents::HatchLoop loop;
        loop.type = Integer(92);
        loop.isPolyline = (loop.type & AcDbHatch::kPolyline) != 0;
        if (loop.isPolyline)
        {
            ReadPolyline(loop.polyline);
            return loop;
        }
        const int edges = Integer(93);
        for (int i = 0; i < edges; ++i)
        {
            loop.edges.push_back(ReadEdge());
        }
        return loop;
    }

    void ReadPolyline(arxents::BulgePath& path)
    {
        const int vertices = Integer(93);
        for (int i = 0; i < vertices; ++i)
        {
            const double x = Real(10);
            const AcGePoint2d point(x, Real(20));
            path.vertices.emplace_back(point, NextIs(42) ? Real(42) : 0);
        }
        path.closed = true;
    }

    arxents::HatchEdge ReadEdge()
    {
        arxents::HatchEdge edge;
        switch (Integer(72))
        {
        case kLineEdge:
            edge.kind = arxents::HatchEdge::kLine;
            edge.start = Point(10);
            edge.end = Point(11);
            break;
        case kArcEdge:
            edge.kind = arxents::HatchEdge::kArc;
            edge.center = Point(10);
            edge.majorAxis = AcGeVector2d(Real(40), 0);
            ReadAngles(edge);
            break;
        case kEllipseEdge:
            edge.kind = arxents::HatchEdge::kEllipse;
            edge.center = Point(10);
            edge.majorAxis = Point(11).asVector();
            edge.ratio = Real(40);
            ReadAngles(edge);
            break;
        case kSplineEdge:
            edge.kind = arxents::HatchEdge::kSpline;
            ReadSpline(edge.spline);
            break;
        default:
            m_record.Fail(L"的边界类型无效");
        }
        return edge;
    }

    void ReadAngles(arxents::HatchEdge& edge)
    {
        edge.startAngle = Real(50) * kDegree;
        edge.endAngle = Real(51) * kDegree;
        edge.counterClockwise = !NextIs(73) || Integer(73) != 0;
    }

    void ReadSpline(arxents::Spline& spline)
    {
        spline.degree = Integer(94);
        const bool isRational = Integer(73) != 0;
        const int knots = Integer(95);
        const int points = Integer(96);
        for (int i = 0; i < knots; ++i)
        {
            spline.knots.push_back(Real(40));
        }
        for (int i = 0; i < points; ++i)
        {
            const AcGePoint2d point = Point(10);
            spline.points.emplace_back(point.x, point.y, 0);
            if (NextIs(42))
            {
                spline.weights.push_back(Real(42));
            }
        }
        if (!isRational)
        {
            spline.weights.clear();
        }
        if (!spline.IsValid())
        {
            m_record.Fail(L"的边界样条无效");
        }
    }

    // The next group with this code, from where the last one was found.
    const DxfGroup& Take(int code)
    {
        const std::vector<DxfGroup>& groups = m_record.Groups();
        while (m_at < groups.size() && groups[m_at].code != code)
        {
            ++m_at;
        }
        if (m_at == groups.size())
        {
            m_record.Fail(L"的边界不完整，缺少组码 " + std::to_wstring(code));
        }
        return groups[m_at++];
    }

    bool NextIs(int code) const { return m_at < m_record.Groups().size() && m_record.Groups()[m_at].code == code; }

    double Real(int code) { return ToDouble(Take(code)); }
    int Integer(int code) { return ToInt(Take(code)); }

    AcGePoint2d Point(int code)
    {
        const double x = Real(code);
        return AcGePoint2d(x, Real(code + 10));
    }

    const DxfRecord& m_record;
    size_t m_at = 0;
};

} // namespace

void MakeHatch(const DxfRecord& record, DxfContext& context, DxfEntity& entity)
{
    auto hatch = std::make_unique<AcDbHatch>();
    hatch->setNormal(record.Normal());
    hatch->setElevation(record.Double(30, 0));
    hatch->setPatternName(context.TextOf(record, 2).c_str());
    hatch->setSolidFill(record.Int(70, 0) != 0);
    BoundaryReader(record).ReadInto(*hatch);
    entity.entity = std::move(hatch);
}

} // namespace arxdxf
