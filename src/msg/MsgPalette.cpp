#include "msg/MsgPalette.h"

#include "base/ModuleResources.h"
#include "res/resource.h"

IMPLEMENT_DYNAMIC(CMsgPalette, CAdUiPalette)

BEGIN_MESSAGE_MAP(CMsgPalette, CAdUiPalette)
    ON_WM_CREATE()
    ON_WM_SIZE()
END_MESSAGE_MAP()

CMsgPalette::CMsgPalette() {}

CMsgPalette::~CMsgPalette() {}

BOOL CMsgPalette::Load(IUnknown* unknown)
{
    return CAdUiPalette::Load(unknown);
}

BOOL CMsgPalette::Save(IUnknown* unknown)
{
    return CAdUiPalette::Save(unknown);
}

void CMsgPalette::Refresh()
{
    m_viewer.Refresh(true);
}

CMsgPaletteChildDlg& CMsgPalette::GetViewer()
{
    return m_viewer;
}

int CMsgPalette::OnCreate(LPCREATESTRUCT createStruct)
{
    const int result = CAdUiPalette::OnCreate(createStruct);
    if (result == -1)
        return result;
    CreateViewer();
    return 0;
}

void CMsgPalette::OnSize(UINT type, int cx, int cy)
{
    CAdUiPalette::OnSize(type, cx, cy);
    if (m_viewer.GetSafeHwnd() != NULL)
        m_viewer.MoveWindow(0, 0, cx, cy);
}

void CMsgPalette::CreateViewer()
{
    CModuleResources resources;
    if (!m_viewer.Create(IDD_MSG_VIEWER, this))
    {
        MessageBox(L"创建失败！", L"错误", MB_ICONERROR);
        return;
    }
    CRect rect;
    GetWindowRect(&rect);
    m_viewer.MoveWindow(0, 0, rect.Width(), rect.Height());
}
