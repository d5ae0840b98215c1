#include "FrameFixture.h"

IMPLEMENT_DYNCREATE(TestView, CView)

int TestView::s_alive = 0;
int TestFrame::s_alive = 0;

BEGIN_MESSAGE_MAP(TestDocument, CDocument)
    ON_COMMAND(ID_DOCUMENT_COMMAND, &TestDocument::OnOwnCommand)
    ON_COMMAND(ID_COMMON_COMMAND, &TestDocument::OnOwnCommand)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(TestView, CView)
    ON_COMMAND(ID_VIEW_COMMAND, &TestView::OnOwnCommand)
    ON_COMMAND(ID_COMMON_COMMAND, &TestView::OnOwnCommand)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(TestFrame, CFrameWnd)
    ON_COMMAND(ID_FRAME_COMMAND, &TestFrame::OnOwnCommand)
    ON_COMMAND(ID_COMMON_COMMAND, &TestFrame::OnOwnCommand)
    ON_UPDATE_COMMAND_UI(ID_FRAME_COMMAND, &TestFrame::OnUpdateOwnCommand)
END_MESSAGE_MAP()
