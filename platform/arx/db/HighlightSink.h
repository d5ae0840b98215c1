// Who keeps the highlighted objects. The database knows no documents; the editor plugs itself in here.
#pragma once

#include "dbid.h"

namespace arxdb
{

class IHighlightSink
{
public:
    virtual ~IHighlightSink() = default;
    // False when no document shows the object's drawing.
    virtual bool SetHighlight(AcDbObjectId id, bool highlighted) = 0;
};

void SetHighlightSink(IHighlightSink* sink);
IHighlightSink* GetHighlightSink();

} // namespace arxdb
