// AcDbHatch: an area bounded by loops, filled or hatched. Patterns are kept as a name; their lines are not drawn, only
// the loops.
#pragma once

#include "dbents.h"
#include "gepnt2d.h"
#include "arx/ents/HatchLoop.h"

class ARX_API AcDbHatch : public AcDbEntity
{
public:
    ACRX_DECLARE_MEMBERS(AcDbHatch);

    enum HatchLoopType
    {
        kDefault = 0,
        kExternal = 1,
        kPolyline = 2,
        kDerived = 4,
        kTextbox = 8,
        kOutermost = 0x10
    };

    AcDbHatch();

    AcGeVector3d normal() const { return m_normal; }
    Acad::ErrorStatus setNormal(const AcGeVector3d& normal);
    double elevation() const { return m_elevation; }
    Acad::ErrorStatus setElevation(double elevation);
    // Freed by nobody: the pointer is valid until the name changes.
    const ACHAR* patternName() const { return m_patternName.c_str(); }
    Acad::ErrorStatus setPatternName(const ACHAR* name);
    bool isSolidFill() const { return m_solid; }
    Acad::ErrorStatus setSolidFill(bool solid);

    int numLoops() const { return static_cast<int>(m_loops.size()); }
    // HatchLoopType bits; 0 outside the range.
    Adesk::Int32 loopTypeAt(int index) const;
    // Edges of the loop; one for a polyline loop, and 0 outside the range.
    int numEdgesAt(int index) const;
    Acad::ErrorStatus appendLoop(const arxents::HatchLoop& loop);

    virtual void emitPieces(arxgi::PieceSink& sink) const;

private:
    AcGeVector3d m_normal;
    double m_elevation;
    std::wstring m_patternName;
    bool m_solid;
    std::vector<arxents::HatchLoop> m_loops;
};
