#include "host/DrawingView.h"

#include "arx/ui/GdiGuards.h"
#include "host/DrawingPainter.h"
#include "host/MainFrame.h"

#include <acutads.h>

#include <algorithm>
#include <cmath>

namespace arxhost
{
namespace
{

const COLORREF background = RGB(0, 0, 0);
const COLORREF windowInk = RGB(80, 140, 255);
const COLORREF crossingInk = RGB(90, 220, 110);
const int pickReach = 6;          // pixels
const double zoomPerNotch = 1.25; // of the wheel
const double refineAt = 4;        // chords may become this many times coarser than wanted before the list is built anew
const double tolerancePerUnit = 0.25; // of a display list: deviation in pixels

} // namespace

IMPLEMENT_DYNAMIC(DrawingView, CView)

BEGIN_MESSAGE_MAP(DrawingView, CView)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_SIZE()
    ON_WM_SETCURSOR()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSEWHEEL()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_MBUTTONDOWN()
    ON_WM_MBUTTONDBLCLK()
    ON_WM_MBUTTONUP()
    ON_WM_CAPTURECHANGED()
    ON_WM_CHAR()
    ON_WM_KEYDOWN()
END_MESSAGE_MAP()

DrawingView::DrawingView(AcApDocument* document) : m_drawing(document) {}

const arxgi::DisplayList& DrawingView::List()
{
    const double wanted = Transform().UnitsPerPixel();
    if (m_listIsOld || m_list.chordTolerance() > wanted * tolerancePerUnit * refineAt)
    {
        const bool wasCut = m_list.isTruncated();
        m_list.Build(*m_drawing->database(), wanted);
        if (m_list.isTruncated() && !wasCut)
            acutPrintf(L"\n图形过大，只显示了一部分。\n");
        m_listIsOld = false;
    }
    return m_list;
}

ViewTransform DrawingView::Transform() const
{
    CRect client;
    GetClientRect(&client);
    const ViewState state = GetView(m_drawing);
    return ViewTransform({state.centre.x, state.centre.y}, state.height, std::max<int>(client.Width(), 1),
                         std::max<int>(client.Height(), 1));
}

void DrawingView::ZoomExtents()
{
    const arxgi::Box2& box = List().box();
    if (!box.IsEmpty())
        ZoomBox({{box.minX, box.minY}, {box.maxX, box.maxY}});
}

void DrawingView::ZoomBox(const WorldBox& box)
{
    ViewTransform view = Transform();
    view.Fit(box);
    Store(view);
}

void DrawingView::ZoomBy(double factor)
{
    ViewTransform view = Transform();
    view.ZoomAt(view.ToPixel(view.Centre()), factor);
    Store(view);
}

void DrawingView::PanBy(double right, double down)
{
    ViewTransform view = Transform();
    view.Pan(right, down);
    Store(view);
}

void DrawingView::ContentsChanged()
{
    m_listIsOld = true;
    LookChanged();
}

void DrawingView::LookChanged()
{
    if (GetSafeHwnd() != NULL)
        Invalidate(FALSE);
}

void DrawingView::CancelSelection()
{
    if (m_band.IsActive())
        m_band.Stop();
    else
        SetPickfirst(m_drawing, ObjectIds());
    LookChanged();
}

void DrawingView::OnDraw(CDC* dc)
{
    CRect client;
    GetClientRect(&client);
    const arxui::BackBuffer buffer(dc->GetSafeHdc(), client.Width(), client.Height());
    arxui::FillColour(buffer.Get(), client, background);
    DrawingPainter(buffer.Get(), Transform()).Paint(List(), Marked());
    if (m_band.IsActive())
        DrawBand(buffer.Get());
    buffer.Show();
}

void DrawingView::OnPaint()
{
    CPaintDC dc(this);
    OnDraw(&dc);
}

BOOL DrawingView::OnEraseBkgnd(CDC* /*dc*/)
{
    return TRUE;
}

void DrawingView::OnSize(UINT type, int cx, int cy)
{
    CView::OnSize(type, cx, cy);
    // A drawing is fitted as soon as its view has a size.
    if (m_fitsOnce && cx > 1 && cy > 1)
    {
        m_fitsOnce = false;
        ZoomExtents();
    }
    Invalidate(FALSE);
}

BOOL DrawingView::OnSetCursor(CWnd* window, UINT hitTest, UINT message)
{
    if (hitTest != HTCLIENT)
        return CView::OnSetCursor(window, hitTest, message);
    ::SetCursor(::LoadCursor(NULL, m_panning ? IDC_SIZEALL : IDC_CROSS));
    return TRUE;
}

void DrawingView::OnMouseMove(UINT flags, CPoint point)
{
    CView::OnMouseMove(flags, point);
    if (m_panning)
    {
        PanBy(point.x - m_panFrom.x, point.y - m_panFrom.y);
        m_panFrom = point;
    }
    else if (m_band.IsActive())
    {
        m_band.MoveTo(point);
        Invalidate(FALSE);
    }
    if (MainFrame* frame = MainFrame::Of(*this))
        frame->CursorOverDrawing(ToWorld(point));
    TellMonitors(ToWorld(point));
}

BOOL DrawingView::OnMouseWheel(UINT /*flags*/, short delta, CPoint point)
{
    ScreenToClient(&point);
    ViewTransform view = Transform();
    view.ZoomAt({double(point.x), double(point.y)}, std::pow(zoomPerNotch, double(delta) / WHEEL_DELTA));
    Store(view);
    return TRUE;
}

void DrawingView::OnLButtonDown(UINT flags, CPoint point)
{
    CView::OnLButtonDown(flags, point);
    MainFrame* frame = MainFrame::Of(*this);
    if (frame != NULL && frame->Command().TakePoint(*this, ToWorld(point)))
        return;
    const bool takeOut = (flags & MK_SHIFT) != 0;
    if (m_band.IsActive())
    {
        m_band.MoveTo(point);
        SelectByBand(takeOut);
    }
    else
        PickAt(point, takeOut);
}

void DrawingView::OnLButtonUp(UINT flags, CPoint point)
{
    CView::OnLButtonUp(flags, point);
    if (::GetCapture() == m_hWnd)
        ReleaseCapture();
    if (m_band.IsActive() && m_band.IsDragged())
        SelectByBand((flags & MK_SHIFT) != 0);
}

void DrawingView::OnMButtonDown(UINT flags, CPoint point)
{
    CView::OnMButtonDown(flags, point);
    SetCapture();
    m_panning = true;
    m_panFrom = point;
}

void DrawingView::OnMButtonDblClk(UINT /*flags*/, CPoint /*point*/)
{
    ZoomExtents();
}

void DrawingView::OnMButtonUp(UINT flags, CPoint point)
{
    CView::OnMButtonUp(flags, point);
    if (m_panning)
        ReleaseCapture();
}

void DrawingView::OnCaptureChanged(CWnd* window)
{
    CView::OnCaptureChanged(window);
    m_panning = false;
}

void DrawingView::OnChar(UINT character, UINT repeat, UINT flags)
{
    MainFrame* frame = MainFrame::Of(*this);
    if (frame == NULL || character == VK_ESCAPE)
        CView::OnChar(character, repeat, flags);
    else
        frame->Command().TypeInto(static_cast<wchar_t>(character));
}

void DrawingView::OnKeyDown(UINT key, UINT repeat, UINT flags)
{
    MainFrame* frame = MainFrame::Of(*this);
    if (key == VK_ESCAPE && (frame == NULL || !frame->Command().GiveUp()))
        CancelSelection();
    else if (key == VK_DELETE && frame != NULL)
        frame->Run(L"ERASE");
    else
        CView::OnKeyDown(key, repeat, flags);
}

void DrawingView::Store(const ViewTransform& view)
{
    ViewState state;
    state.centre.x = view.Centre().x;
    state.centre.y = view.Centre().y;
    state.height = view.Height();
    SetView(m_drawing, state);
    LookChanged();
}

void DrawingView::DrawBand(HDC dc) const
{
    const bool crossing = m_band.IsCrossing();
    const arxui::GdiObject<HPEN> pen(CreatePen(crossing ? PS_DASH : PS_SOLID, 1, crossing ? crossingInk : windowInk));
    const arxui::SelectGuard selectPen(dc, pen.Get());
    const arxui::SelectGuard selectBrush(dc, GetStockObject(NULL_BRUSH));
    SetBkMode(dc, TRANSPARENT);
    const RECT box = m_band.Box();
    Rectangle(dc, box.left, box.top, box.right + 1, box.bottom + 1);
}

AcDbObjectId DrawingView::At(WorldPoint place)
{
    return List().Pick({place.x, place.y}, pickReach * Transform().UnitsPerPixel());
}

void DrawingView::TellMonitors(WorldPoint place)
{
    const bool isPicking = IsPickForced(m_drawing) && !m_panning && !m_band.IsActive();
    const AcDbObjectId hit = isPicking ? At(place) : AcDbObjectId();
    TellCursor(m_drawing, AcGePoint2d(place.x, place.y), hit.isNull() ? ObjectIds() : ObjectIds(1, hit));
}

void DrawingView::PickAt(CPoint point, bool takeOut)
{
    const AcDbObjectId hit = At(ToWorld(point));
    if (!hit.isNull())
    {
        ChangeSelection(ObjectIds(1, hit), takeOut);
        return;
    }
    m_band.Start(point);
    SetCapture();
    Invalidate(FALSE);
}

void DrawingView::SelectByBand(bool takeOut)
{
    const RECT box = m_band.Box();
    const WorldPoint first = ToWorld(CPoint(box.left, box.top));
    const WorldPoint second = ToWorld(CPoint(box.right, box.bottom));
    const arxgi::Box2 window(first.x, first.y, second.x, second.y);
    m_band.Stop();
    ChangeSelection(m_band.IsCrossing() ? List().Crossing(window) : List().Inside(window), takeOut);
    Invalidate(FALSE);
}

void DrawingView::ChangeSelection(const ObjectIds& ids, bool takeOut)
{
    ObjectIds selected = GetPickfirst(m_drawing);
    for (const AcDbObjectId& id : ids)
    {
        const ObjectIds::iterator found = std::find(selected.begin(), selected.end(), id);
        if (takeOut && found != selected.end())
            selected.erase(found);
        else if (!takeOut && found == selected.end())
            selected.push_back(id);
    }
    SetPickfirst(m_drawing, selected);
}

ObjectIds DrawingView::Marked() const
{
    ObjectIds marked = GetHighlighted(m_drawing);
    const ObjectIds selected = GetPickfirst(m_drawing);
    marked.insert(marked.end(), selected.begin(), selected.end());
    std::sort(marked.begin(), marked.end());
    return marked;
}

WorldPoint DrawingView::ToWorld(CPoint point) const
{
    return Transform().ToWorld({double(point.x), double(point.y)});
}

} // namespace arxhost
