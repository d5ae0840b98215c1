// Whether the texts of the entity under the resting cursor are news to the window, or were posted before. No window.
//
// The window hides when the cursor leaves the place where it came up. So that it comes up again wherever on a long line
// the cursor rests next, the same texts are posted again once the cursor was away from that place - and only then: a
// window that the user closed stays closed while the hand trembles.
#pragma once

#include <afxwin.h>

#include "EntityProperties.h"

namespace entity_hover
{

class CHoverMemory
{
public:
    // The cursor moved, in screen coordinates.
    void MovedTo(CPoint cursor);

    bool IsNews(const Lines& lines, bool isWindowShown) const;

    // The texts were posted while the cursor was there.
    void Posted(const Lines& lines, CPoint cursor);

    void Forget();

private:
    Lines m_lines; // posted last, none at first
    CPoint m_place;
    bool m_wasAway = false;
};

} // namespace entity_hover
