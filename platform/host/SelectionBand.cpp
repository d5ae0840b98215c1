#include "host/SelectionBand.h"

#include <algorithm>
#include <cstdlib>

namespace arxhost
{
namespace
{

const int tremble = 4;

} // namespace

void SelectionBand::Start(POINT corner)
{
    m_active = true;
    m_first = m_second = corner;
}

void SelectionBand::MoveTo(POINT corner)
{
    m_second = corner;
}

bool SelectionBand::IsDragged() const
{
    return std::abs(m_second.x - m_first.x) > tremble || std::abs(m_second.y - m_first.y) > tremble;
}

RECT SelectionBand::Box() const
{
    return RECT{std::min(m_first.x, m_second.x), std::min(m_first.y, m_second.y), std::max(m_first.x, m_second.x),
                std::max(m_first.y, m_second.y)};
}

} // namespace arxhost
