#include "PickPointCommand.h"

#include <FollowMouseTipWnd.h>

#include <acdocman.h>
#include <aced.h>
#include <acedinpt.h>
#include <acutads.h>
#include <rxmfcapi.h>

namespace drawing_check
{

namespace
{

// While it lives, the tip shows the coordinates under the mouse. The document cannot close as long as the command runs.
class CCoordinateTip : public AcEdInputPointMonitor
{
public:
    explicit CCoordinateTip(AcApDocument& document) : m_document(document)
    {
        CFollowMouseTipWnd::SetWatchWnd(acedGetAcadDwgView());
        m_document.inputPointManager()->addPointMonitor(this);
    }
    virtual ~CCoordinateTip()
    {
        m_document.inputPointManager()->removePointMonitor(this);
        CFollowMouseTipWnd::Destroy();
    }
    CCoordinateTip(const CCoordinateTip&) = delete;
    CCoordinateTip& operator=(const CCoordinateTip&) = delete;

    virtual Acad::ErrorStatus monitorInputPoint(const AcEdInputPoint& input, AcEdInputPointMonitorResult& /*output*/)
    {
        CFollowMouseTipWnd::ShowMsg(CoordinateText(input.rawPoint()), 0, nullptr);
        return Acad::eOk;
    }

private:
    AcApDocument& m_document;
};

} // namespace

CString CoordinateText(const AcGePoint3d& point)
{
    CString text;
    text.Format(L"X: %.2f\nY: %.2f", point.x, point.y);
    return text;
}

void PickPoint()
{
    ads_point point;
    int result = RTCAN;
    {
        const CCoordinateTip tip(*acDocManager->curDocument());
        result = acedGetPoint(nullptr, L"指定点：", point);
    }
    if (result == RTNORM)
        acutPrintf(L"\n选定的点：X = %.4f，Y = %.4f\n", point[0], point[1]);
    else
        acutPrintf(L"\n没有选定点。\n");
}

} // namespace drawing_check
