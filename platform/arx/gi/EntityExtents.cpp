#include "EntityExtents.h"

#include "BlockWalker.h"
#include "dbmain.h"

namespace arxgi
{

namespace
{

// Blocks may nest so that they multiply beyond all bounds; what comes after so many pieces no longer counts.
constexpr size_t kMaxPieces = 20000000;

class ExtentsSink : public BlockWalker
{
public:
    const AcDbExtents& Extents() const { return m_extents; }
    bool HasPieces() const { return m_pieces > 0; }

    virtual void AddCurve(const Path& path)
    {
        ++m_pieces;
        Path mapped = path;
        mapped.Transform(Transform());
        mapped.AddTo(m_extents);
    }

    virtual void AddArea(const std::vector<Path>& boundary)
    {
        for (const Path& path : boundary)
        {
            AddCurve(path);
        }
    }

    virtual void AddText(const TextPiece& text)
    {
        ++m_pieces;
        AddMapped(text.corner);
        AddMapped(text.corner + text.along);
        AddMapped(text.corner + text.up);
        AddMapped(text.corner + text.along + text.up);
    }

    virtual void AddPoint(const AcGePoint3d& point)
    {
        ++m_pieces;
        AddMapped(point);
    }

    virtual bool WantsArrayCorners() const { return true; }
    virtual bool IsFull() const { return m_pieces >= kMaxPieces; }

protected:
    virtual bool EnterEntity(const AcDbEntity& entity) { return entity.visibility() == AcDb::kVisible; }

private:
    void AddMapped(const AcGePoint3d& point) { m_extents.addPoint(Transform() * point); }

    AcDbExtents m_extents;
    size_t m_pieces = 0;
};

} // namespace

bool AddEntityExtents(const AcDbEntity& entity, AcDbExtents& extents)
{
    ExtentsSink sink;
    entity.emitPieces(sink);
    if (!sink.HasPieces())
    {
        return false;
    }
    extents.addExt(sink.Extents());
    return true;
}

} // namespace arxgi
