// The suite's user-interface base module: highlighting objects, extents of objects, zooming.
#pragma once

#include "acarray.h"
#include "dbid.h"

#include <set>

class AcDbExtents;

#ifdef ZnAcadUiBase_EXPORTS
#define ZNACADUIBASE_API __declspec(dllexport)
#else
#define ZNACADUIBASE_API __declspec(dllimport)
#endif

namespace ZnAcadUiBase
{
// Highlights objects for as long as it lives.
class ZNACADUIBASE_API CHighlighter
{
public:
    CHighlighter();
    // Takes the highlight off again. Objects that were erased and drawings that were closed meanwhile are skipped.
    ~CHighlighter();

    // Nothing happens for an identifier that names no entity, an erased one, or one that was added before.
    void Add(const AcDbObjectId& id);

private:
    CHighlighter(const CHighlighter&);
    void operator=(const CHighlighter&);

    std::set<AcDbObjectId> m_ids;
};

// The box around all of the objects that have one. False, with `extents` as they were, when none has.
ZNACADUIBASE_API bool GetExtents(const AcArray<AcDbObjectId>& ids, AcDbExtents& extents);

// Moves the current drawing's view so that the box fills it but for a margin; a box without area, such as a point's,
// keeps the height of the view and is centred. False without a current drawing or for an invalid box.
ZNACADUIBASE_API bool ZoomTo(const AcDbExtents& extents);
} // namespace ZnAcadUiBase
