#include "CheckWindowPage.h"

#include "../GalleryIds.h"

const wchar_t CCheckWindowPage::Description[] =
    L"鼠标停在图形上时，旁边弹出检查信息。窗口在自己的线程中运行，主线程只投"
    L"递文字。可拖动、缩放、锁定位置。";

namespace
{

enum Kind
{
    RECTANGLE,
    CIRCLE,
    TRIANGLE
};

struct Shape
{
    Kind kind;
    double left, top, right, bottom; // shares of the area
    COLORREF color;
    const wchar_t* lines[3];
};

const Shape kShapes[] = {
    {RECTANGLE,
     0.06,
     0.2,
     0.3,
     0.75,
     RGB(70, 110, 180),
     {L"类型: 矩形", L"图层: 墙体", L"线宽 0.35，应为 0.50"}},
    {CIRCLE,
     0.38,
     0.2,
     0.6,
     0.75,
     RGB(190, 70, 60),
     {L"类型: 圆", L"图层: 轴线", L"颜色应为随层"}},
    {TRIANGLE,
     0.68,
     0.2,
     0.92,
     0.75,
     RGB(70, 150, 90),
     {L"类型: 多段线", L"图层: 标注", L"未发现问题"}},
};
const int kCircle = 1; // its place among them

int Share(double share, int whole)
{
    return static_cast<int>(share * whole);
}

void Draw(CDC& dc, Kind kind, const CRect& place)
{
    const POINT corners[] = {{place.CenterPoint().x, place.top},
                             {place.right, place.bottom},
                             {place.left, place.bottom}};
    if (kind == RECTANGLE)
        dc.Rectangle(&place);
    else if (kind == CIRCLE)
        dc.Ellipse(&place);
    else
        dc.Polygon(corners, 3);
}

} // namespace

BEGIN_MESSAGE_MAP(CCheckedDrawing, CStatic)
    ON_WM_MOUSEMOVE()
    ON_WM_PAINT()
END_MESSAGE_MAP()

// [show]
void CCheckedDrawing::Start()
{
    m_window = static_cast<CCheckSpecMsgThread*>(
        AfxBeginThread(RUNTIME_CLASS(CCheckSpecMsgThread)));
}

void CCheckedDrawing::End()
{
    if (m_window != nullptr)
        m_window->End();
    m_window = nullptr;
}
// [end]

// [show]
void CCheckedDrawing::ShowResultOf(int shape)
{
    CStringArray texts;
    for (const wchar_t* line : kShapes[shape].lines)
        texts.Add(line);
    if (m_window != nullptr)
        m_window->ShowMsg(texts); // 主线程只投递文字
}
// [end]

// The texts are posted again while the window is hidden, so that it comes up
// wherever on a shape the mouse rests.
void CCheckedDrawing::OnMouseMove(UINT flags, CPoint point)
{
    const int shape = ShapeAt(point);
    const bool isShown = m_window != nullptr && m_window->IsDlgShowed();
    if (shape >= 0 && (shape != m_shape || !isShown))
        ShowResultOf(shape);
    m_shape = shape;
    CStatic::OnMouseMove(flags, point);
}

void CCheckedDrawing::OnPaint()
{
    CPaintDC dc(this);
    CRect client;
    GetClientRect(&client);
    dc.FillSolidRect(&client, RGB(255, 255, 255));
    for (int i = 0; i < static_cast<int>(_countof(kShapes)); ++i)
    {
        CPen pen(PS_SOLID, 3, kShapes[i].color);
        CPen* const former = dc.SelectObject(&pen);
        Draw(dc, kShapes[i].kind, PlaceOf(i));
        dc.SelectObject(former);
    }
}

CRect CCheckedDrawing::PlaceOf(int shape) const
{
    CRect client;
    GetClientRect(&client);
    const Shape& of = kShapes[shape];
    return CRect(
        Share(of.left, client.Width()), Share(of.top, client.Height()),
        Share(of.right, client.Width()), Share(of.bottom, client.Height()));
}

int CCheckedDrawing::ShapeAt(CPoint point) const
{
    for (int i = 0; i < static_cast<int>(_countof(kShapes)); ++i)
    {
        if (PlaceOf(i).PtInRect(point))
            return i;
    }
    return -1;
}

BEGIN_MESSAGE_MAP(CCheckWindowPage, CGalleryPage)
    ON_WM_DESTROY()
    ON_BN_CLICKED(IDC_CHECK_WINDOW_SHOW, &CCheckWindowPage::OnShowCircle)
END_MESSAGE_MAP()

CCheckWindowPage::CCheckWindowPage() : CGalleryPage(IDD_CHECK_WINDOW_PAGE) {}

void CCheckWindowPage::DoDataExchange(CDataExchange* exchange)
{
    CGalleryPage::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_CHECK_WINDOW_DRAWING, m_drawing);
}

BOOL CCheckWindowPage::OnInitDialog()
{
    CGalleryPage::OnInitDialog();
    m_resize.AddCtrl(IDC_CHECK_WINDOW_DRAWING, 0, 0, 1, 1);
    m_drawing.Start();
    return TRUE;
}

void CCheckWindowPage::OnDestroy()
{
    m_drawing.End();
    CGalleryPage::OnDestroy();
}

void CCheckWindowPage::OnShowCircle()
{
    m_drawing.ShowResultOf(kCircle);
}
