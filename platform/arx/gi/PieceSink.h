// PieceSink: takes the pieces of which an entity's picture consists. Entities give them in the coordinates of the block
// that holds them; what becomes of them (extents, display list) is the sink's matter.
#pragma once

#include "Path.h"

#include <string>

class AcDbBlockReference;

namespace arxgi
{

// One line of text on a parallelogram. The texts are resolved: no control or formatting codes.
struct TextPiece
{
    AcGePoint3d corner; // left end of the base line
    AcGeVector3d along; // to the right end of the base line: direction and estimated width
    AcGeVector3d up;    // from the base line to the top of capital letters: direction and height
    std::wstring text;
};

class ARX_API PieceSink
{
public:
    virtual ~PieceSink();

    virtual void AddCurve(const Path& path) = 0;
    // An area with holes by the even-odd rule; the paths are closed.
    virtual void AddArea(const std::vector<Path>& boundary) = 0;
    virtual void AddText(const TextPiece& text) = 0;
    virtual void AddPoint(const AcGePoint3d& point) = 0;
    // The entities of the block, mapped by `transform`: one call for each place of a block array unless
    // WantsArrayCorners() says that the four outermost ones are enough.
    virtual void AddBlock(const AcDbBlockReference& reference, const AcGeMatrix3d& transform) = 0;
    virtual bool WantsArrayCorners() const { return false; }
    // True when the sink has had enough, for instance because of a limit: loops over many pieces end.
    virtual bool IsFull() const { return false; }
};

} // namespace arxgi
