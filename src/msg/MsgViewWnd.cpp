#include "msg/MsgViewWnd.h"

#include <rxmfcapi.h>

#include "base/CursorInside.h"
#include "msg/MsgPalette.h"

namespace
{

const wchar_t kTitle[] = L"消息查看";

// The host keeps the docking state under this identifier. Not const: the host's interface takes a plain pointer.
CLSID g_toolId = {0xAADCE2AE, 0x4100, 0x4567, {0xA7, 0x4A, 0xF3, 0x33, 0x9F, 0xF7, 0x26, 0x34}};

const RECT kFirstRect = {200, 200, 840, 390};
const SIZE kLeastSize = {300, 120};
const DWORD kSetStyle = WS_DLGFRAME;
const DWORD kPaletteStyle = WS_CHILD | WS_VISIBLE;

// Editable name, properties menu, automatic roll-up and close button.
const DWORD kPaletteSetStyle = PSS_EDIT_NAME | PSS_PROPERTIES_MENU | PSS_AUTO_ROLLUP | PSS_CLOSE_BUTTON;

const int kOpaque = 100;

} // namespace

IMPLEMENT_DYNAMIC(CMsgViewWnd, CAdUiPaletteSet)

BEGIN_MESSAGE_MAP(CMsgViewWnd, CAdUiPaletteSet)
END_MESSAGE_MAP()

CMsgViewWnd* CMsgViewWnd::s_instance = NULL;

CMsgViewWnd* CMsgViewWnd::Instance(bool create)
{
    if (s_instance == NULL && create)
    {
        // The pointer stands before the windows are made, because their creation may already ask for the set.
        s_instance = new CMsgViewWnd;
        s_instance->Build();
    }
    if (s_instance != NULL && create)
        s_instance->Show(true);
    return s_instance;
}

void CMsgViewWnd::DestroyInstance()
{
    CMsgViewWnd* const set = s_instance;
    if (set == NULL)
        return;
    set->DestroyWindow();
    s_instance = NULL;
    delete set;
}

CMsgViewWnd::CMsgViewWnd() : m_palette(NULL) {}

CMsgViewWnd::~CMsgViewWnd()
{
    delete m_palette;
}

void CMsgViewWnd::Show(bool show)
{
    CMDIFrameWnd* const frame = acedGetAcadFrame();
    if (frame != NULL)
        frame->ShowControlBar(this, show, FALSE);
}

bool CMsgViewWnd::IsShown() const
{
    return GetSafeHwnd() != NULL && IsWindowVisible();
}

void CMsgViewWnd::Refresh()
{
    if (m_palette != NULL)
        m_palette->Refresh();
}

CMsgPalette& CMsgViewWnd::GetPalette()
{
    return *m_palette;
}

void CMsgViewWnd::GetMinimumSize(CSize& size)
{
    size = kLeastSize;
}

bool CMsgViewWnd::CanFrameworkTakeFocus()
{
    return !IsCursorInside(*this);
}

void CMsgViewWnd::Build()
{
    Create(kTitle, kSetStyle, kFirstRect, acedGetAcadFrame(), kPaletteSetStyle);
    m_palette = new CMsgPalette;
    m_palette->Create(kPaletteStyle, kTitle, this);
    AddPalette(m_palette);
    SetToolID(&g_toolId);
    EnableDocking(CBRS_ALIGN_ANY);
    RestoreControlBar(AFX_IDW_DOCKBAR_LEFT);
    if (GetOpacity() != kOpaque)
        SetOpacity(kOpaque);
    if (IsFloating())
        LayOutOnce();
}

// A floating set lays its palette out only when its size changes.
void CMsgViewWnd::LayOutOnce()
{
    CRect rect;
    GetWindowRect(&rect);
    ++rect.bottom;
    MoveWindow(&rect, TRUE);
}
