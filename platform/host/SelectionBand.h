// The rubber band of a window selection. No window; pixels of the drawing view.
#pragma once

#include <windows.h>

namespace arxhost
{

class SelectionBand
{
public:
    bool IsActive() const { return m_active; }
    void Start(POINT corner);
    void MoveTo(POINT corner);
    void Stop() { m_active = false; }

    POINT First() const { return m_first; }
    POINT Second() const { return m_second; }
    // Whether the corners are farther apart than a click's tremble.
    bool IsDragged() const;
    // Dragged to the left it also takes what it crosses, to the right only what lies wholly inside.
    bool IsCrossing() const { return m_second.x < m_first.x; }
    RECT Box() const;

private:
    bool m_active = false;
    POINT m_first{};
    POINT m_second{};
};

} // namespace arxhost
