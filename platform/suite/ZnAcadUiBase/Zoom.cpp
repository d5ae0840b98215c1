#include "ZnAcadUiBase.h"

#include "ZoomMath.h"

#include <afxwin.h>
#include <afxext.h>
#include <acdocman.h>
#include <dbmain.h>
#include <rxmfcapi.h>

#include "arx/ed/HostServices.h"

#include <cmath>

namespace
{
// Width by height of the drawing window; 1 while the host shows none.
double GetViewAspect()
{
    CRect client;
    CView* view = acedGetAcadDwgView();
    if (view == nullptr || !::GetClientRect(view->GetSafeHwnd(), &client) || client.IsRectEmpty())
        return 1;
    return double(client.Width()) / client.Height();
}

bool IsUsable(const AcDbExtents& extents)
{
    const AcGePoint3d low = extents.minPoint();
    const AcGePoint3d high = extents.maxPoint();
    return std::isfinite(high.x - low.x) && std::isfinite(high.y - low.y) && low.x <= high.x && low.y <= high.y;
}
} // namespace

namespace ZnAcadUiBase
{
bool GetExtents(const AcArray<AcDbObjectId>& ids, AcDbExtents& extents)
{
    AcDbExtents all;
    bool found = false;
    for (int i = 0; i < ids.length(); ++i)
    {
        AcDbEntity* entity = nullptr;
        if (acdbOpenObject(entity, ids[i], AcDb::kForRead) != Acad::eOk)
            continue;
        AcDbExtents own;
        if (entity->getGeomExtents(own) == Acad::eOk)
        {
            all.addExt(own);
            found = true;
        }
        entity->close();
    }
    if (found)
        extents = all;
    return found;
}

bool ZoomTo(const AcDbExtents& extents)
{
    AcApDocument* document = acDocManager->curDocument();
    if (document == nullptr || !IsUsable(extents))
        return false;
    const AcGePoint3d low = extents.minPoint();
    const AcGePoint3d high = extents.maxPoint();
    const double currentHeight = arxhost::GetView(document).height;
    const zoom::View view = zoom::FitBox(zoom::Box{low.x, low.y, high.x, high.y}, GetViewAspect(), currentHeight);

    arxhost::ViewState state;
    state.centre = AcGePoint2d(view.centreX, view.centreY);
    state.height = view.height;
    return arxhost::SetView(document, state);
}
} // namespace ZnAcadUiBase
