#include "HighlightSink.h"

namespace arxdb
{

namespace
{

IHighlightSink* theSink = nullptr;

} // namespace

void SetHighlightSink(IHighlightSink* sink)
{
    theSink = sink;
}

IHighlightSink* GetHighlightSink()
{
    return theSink;
}

} // namespace arxdb
