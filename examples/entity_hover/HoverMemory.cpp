#include "HoverMemory.h"

#include <cmath>

namespace entity_hover
{

namespace
{

// The window's own surroundings of a place.
const double kNearPixels = 10;

} // namespace

void CHoverMemory::MovedTo(CPoint cursor)
{
    if (std::hypot(cursor.x - m_place.x, cursor.y - m_place.y) > kNearPixels)
        m_wasAway = true;
}

bool CHoverMemory::IsNews(const Lines& lines, bool isWindowShown) const
{
    return lines != m_lines || (m_wasAway && !isWindowShown);
}

void CHoverMemory::Posted(const Lines& lines, CPoint cursor)
{
    m_lines = lines;
    m_place = cursor;
    m_wasAway = false;
}

void CHoverMemory::Forget()
{
    m_lines.clear();
    m_wasAway = false;
}

} // namespace entity_hover
