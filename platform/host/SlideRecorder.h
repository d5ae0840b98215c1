// Records what a view of a drawing shows as a slide.
//
// Lines are cut to the view. Filled areas of few corners stay areas; the others, and the letters of texts, become
// horizontal lines, a dot apart. Colours are the nearest ones of the index palette.
#pragma once

#include <afxwin.h>

#include "arx/gi/DisplayList.h"
#include "host/SlideWriter.h"
#include "host/ViewTransform.h"

#include <map>
#include <string>
#include <vector>

namespace arxhost
{

class SlideRecorder
{
public:
    // The size of the view in pixels, each of which becomes a dot.
    SlideRecorder(const ViewTransform& view, int width, int height);

    // The whole slide file.
    std::string Record(const arxgi::DisplayList& list);

private:
    // In dots, not rounded.
    typedef std::vector<arxgi::Point2> Loop;

    void RecordPrimitive(const arxgi::DisplayList& list, const arxgi::DisplayPrimitive& primitive);
    void RecordChain(const arxgi::Point2* points, size_t count);
    void RecordLine(WorldPoint from, WorldPoint to);
    void RecordArea(const arxgi::DisplayList& list, const arxgi::DisplayPrimitive& primitive);
    void RecordText(const arxgi::DisplayList& list, const arxgi::DisplayPrimitive& primitive);
    void RecordPoint(const arxgi::Point2& point);
    bool RecordSmallArea(const std::vector<Loop>& loops);
    void RecordSpans(const std::vector<Loop>& loops);
    void RecordSpansOfRow(const std::vector<Loop>& loops, int y);
    int IndexOf(const arxgi::DisplayColor& color);
    arxgi::Point2 ToDot(const arxgi::Point2& point) const;
    SlideDot Rounded(const arxgi::Point2& dot) const;

    ViewTransform m_view;
    int m_width;
    int m_height;
    SlideWriter m_slide;
    std::map<unsigned, int> m_indices; // colours that were looked up already
};

} // namespace arxhost
