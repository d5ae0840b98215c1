// DisplayBuilder: walks a drawing's model space and writes what it finds into a display list.
#pragma once

#include "BlockWalker.h"
#include "DisplayList.h"

#include "dbcolor.h"

#include <map>
#include <vector>

class AcDbDatabase;

namespace arxgi
{

class DisplayBuilder : public BlockWalker
{
public:
    // Chords deviate at most by `tolerance`. Beyond `maxPoints` the list is truncated.
    DisplayBuilder(DisplayList& list, AcDbDatabase& database, double tolerance, size_t maxPoints);

    void Build();

    virtual void AddCurve(const Path& path);
    virtual void AddArea(const std::vector<Path>& boundary);
    virtual void AddText(const TextPiece& text);
    virtual void AddPoint(const AcGePoint3d& point);
    virtual bool IsFull() const { return m_list.m_truncated; }

protected:
    virtual bool EnterEntity(const AcDbEntity& entity);
    virtual void LeaveEntity();

private:
    struct Layer
    {
        AcCmEntityColor color;
        bool isOff = false;
        bool isFrozen = false;
    };

    // What the entities of a block take over from the reference around them.
    struct Context
    {
        AcDbObjectId layer;
        DisplayColor color;
    };

    const Layer& LayerOf(AcDbObjectId id);
    // An entity of a block on layer "0" lies on the layer of the reference.
    AcDbObjectId EffectiveLayer(const AcDbEntity& entity) const;
    DisplayColor Resolve(const AcCmEntityColor& color, AcDbObjectId layer);

    DisplayPrimitive Begin(DisplayPrimitive::Kind kind) const;
    void Append(const AcGePoint3d& point);
    void AppendFlat(const Path& path);
    // Ends the primitive and gives it to the current item; one with a point that is no number is taken back.
    void Finish(DisplayPrimitive primitive);

    DisplayList& m_list;
    AcDbDatabase& m_database;
    double m_tolerance;
    size_t m_maxPoints;
    AcDbObjectId m_layerZero;
    std::map<AcDbObjectId, Layer> m_layers;
    std::vector<Context> m_contexts; // the last is that of the entity being walked
};

} // namespace arxgi
