#include "host/DrawingFrame.h"

#include "host/DrawingView.h"
#include "host/MainFrame.h"
#include "host/Resource.h"

namespace arxhost
{

BEGIN_MESSAGE_MAP(DrawingFrame, CMDIChildWnd)
    ON_WM_CREATE()
    ON_WM_CLOSE()
    ON_WM_SIZE()
    ON_WM_MDIACTIVATE()
END_MESSAGE_MAP()

DrawingFrame::DrawingFrame(AcApDocument* document) : m_drawing(document) {}

BOOL DrawingFrame::PreCreateWindow(CREATESTRUCT& create)
{
    const HICON icon = ::LoadIcon(AfxGetInstanceHandle(), MAKEINTRESOURCE(IDR_DRAWING));
    create.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(NULL, IDC_ARROW),
                                           reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1), icon);
    return CMDIChildWnd::PreCreateWindow(create);
}

int DrawingFrame::OnCreate(LPCREATESTRUCT create)
{
    if (CMDIChildWnd::OnCreate(create) == -1)
        return -1;
    m_view = new DrawingView(m_drawing);
    const DWORD style = WS_CHILD | WS_VISIBLE;
    if (!m_view->Create(NULL, NULL, style, CRect(0, 0, 0, 0), this, AFX_IDW_PANE_FIRST))
        return -1;
    SetActiveView(m_view, FALSE);
    return 0;
}

void DrawingFrame::OnClose()
{
    MainFrame* frame = MainFrame::Of(*this);
    if (frame == NULL || !frame->CloseDrawing(m_drawing))
        acutPrintf(L"\n命令正在运行，不能关闭图形。\n");
}

void DrawingFrame::OnSize(UINT type, int cx, int cy)
{
    CMDIChildWnd::OnSize(type, cx, cy);
    if (m_view != NULL && type != SIZE_MINIMIZED)
        m_view->MoveWindow(0, 0, cx, cy);
}

void DrawingFrame::OnMDIActivate(BOOL activate, CWnd* activated, CWnd* deactivated)
{
    CMDIChildWnd::OnMDIActivate(activate, activated, deactivated);
    if (activate && IsDocument(m_drawing) && acDocManager->mdiActiveDocument() != m_drawing)
        SetCurrentDocument(m_drawing);
}

} // namespace arxhost
