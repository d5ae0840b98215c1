#include "tip/TabPagePlace.h"

#include <algorithm>

namespace
{

const int kBelowTab = 1;
const int kEdge = 2;

} // namespace

CRect TabPageRect(const CRect& client, const CRect& firstTab)
{
    const CPoint corner(firstTab.left, firstTab.bottom + kBelowTab);
    const int width = client.right - corner.x - kEdge;
    const int height = client.bottom - corner.y - kEdge;
    return CRect(corner, CSize(std::max(0, width), std::max(0, height)));
}
