#include "host/MainFrame.h"

#include "host/DrawingFrame.h"
#include "host/DrawingView.h"
#include "host/FocusKeeper.h"
#include "host/HostBridge.h"
#include "host/HostCommands.h"
#include "host/PointText.h"
#include "host/Resource.h"

#include <acui.h>
#include <rxregsvc.h>

#include <algorithm>

namespace arxhost
{
namespace
{

// The frame leaves a margin of the screen.
const int screenMargin = 20;
const int largestWidth = 1400;
const int largestHeight = 960;

// Posted to the frame: the document of the LPARAM closes once its command has ended.
const UINT closeDrawingMessage = WM_APP + 2;

struct MenuLine
{
    UINT id;
    const wchar_t* line;
};

const MenuLine menuLines[] = {
    {ID_HOST_NEW, L"NEW"},
    {ID_HOST_OPEN, L"OPEN"},
    {ID_HOST_CLOSE, L"CLOSE"},
    {ID_HOST_LOAD, L"ARX L"},
    {ID_HOST_SCRIPT, L"SCRIPT"},
    {ID_HOST_SHOT, L"SHOT"},
    {ID_HOST_QUIT, L"QUIT"},
    {ID_HOST_SELECT_ALL, L"SELECT ALL"},
    {ID_HOST_SELECT_NONE, L"SELECT NONE"},
    {ID_HOST_ERASE, L"ERASE"},
    {ID_HOST_ZOOM_ALL, L"ZOOM E"},
    {ID_HOST_ZOOM_IN, L"ZOOM IN"},
    {ID_HOST_ZOOM_OUT, L"ZOOM OUT"},
    {ID_HOST_PALETTE_SHOW, L"PALETTE SHOW"},
    {ID_HOST_PALETTE_LEFT, L"PALETTE DOCK LEFT"},
    {ID_HOST_PALETTE_RIGHT, L"PALETTE DOCK RIGHT"},
    {ID_HOST_PALETTE_HIDE, L"PALETTE HIDE"},
    {ID_HOST_HELP, L"HELP"},
};

} // namespace

BEGIN_MESSAGE_MAP(MainFrame, CMDIFrameWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_CLOSE()
    ON_WM_SETFOCUS()
    ON_MESSAGE(HostBridge::pendingInputMessage, &MainFrame::OnPendingInput)
    ON_MESSAGE(closeDrawingMessage, &MainFrame::OnCloseDrawing)
    ON_COMMAND_RANGE(ID_HOST_FIRST, ID_HOST_LAST, &MainFrame::OnMenuCommand)
    ON_COMMAND_RANGE(ID_WINDOW_CASCADE, ID_WINDOW_TILE_VERT, &MainFrame::OnWindowCommand)
END_MESSAGE_MAP()

MainFrame::MainFrame() : m_bridge(new HostBridge(*this)) {}

MainFrame::~MainFrame() {}

MainFrame* MainFrame::Of(const CWnd& window)
{
    return dynamic_cast<MainFrame*>(window.GetTopLevelFrame());
}

bool MainFrame::Create()
{
    return LoadFrame(IDR_HOST, WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE) != FALSE;
}

DrawingView* MainFrame::ActiveView()
{
    return ViewOf(acDocManager->mdiActiveDocument());
}

DrawingView& MainFrame::NeedView()
{
    DrawingView* view = ActiveView();
    if (view == NULL)
        throw CommandFailure{L"没有打开的图形。请先用 OPEN 或 NEW。"};
    return *view;
}

DrawingView* MainFrame::ViewOf(AcApDocument* document)
{
    const auto found = m_drawings.find(document);
    return found == m_drawings.end() ? NULL : &found->second->View();
}

void MainFrame::Fail(const std::wstring& message)
{
    ShowFailure(message);
    if (m_unattended)
    {
        m_failed = true;
        m_scripts.Clear();
    }
}

bool MainFrame::Run(const std::wstring& line)
{
    m_command.PrintLine(L"命令：" + line);
    try
    {
        RunCommandLine(*this, line);
        return true;
    }
    catch (const CommandFailure& failure)
    {
        ShowFailure(failure.message);
        return false;
    }
}

void MainFrame::StepScript()
{
    std::wstring failedAt;
    if (!m_scripts.Step([this](const std::wstring& line) { return Run(line); }, failedAt))
        Fail(failedAt);
}

void MainFrame::OpenDrawing(const std::wstring& path)
{
    OpenResult result;
    if (OpenDocument(path.c_str(), result) == nullptr)
        throw CommandFailure{L"无法打开图形“" + path + L"”：" + result.message};
    m_command.Print(L"已打开：" + path + L"\n");
}

void MainFrame::LoadModule(const std::wstring& name)
{
    // Not counted: however often it was asked for, one ARX U lets it go.
    if (acrxAppIsLoaded(name.c_str()))
    {
        m_command.Print(L"模块“" + name + L"”已经加载\n");
        return;
    }
    if (!acrxLoadModule(name.c_str(), true))
        throw CommandFailure{L"模块“" + name + L"”加载失败，原因见上一行。"};
}

void MainFrame::StartScript(const std::wstring& path)
{
    std::wstring error;
    if (!m_scripts.Load(path, error))
        throw CommandFailure{error};
}

void MainFrame::CursorOverDrawing(WorldPoint place)
{
    m_status.SetCoordinates(PointToText(place).c_str());
    const HWND focus = ::GetFocus();
    if (focus == NULL || ::IsChild(m_command, focus) || m_unattended || !CanTakeFocusFrom(focus))
        return;
    m_command.FocusInput();
}

bool MainFrame::CloseDrawing(AcApDocument* document)
{
    if (document->isQuiescent() || !m_command.GiveUp())
        return CloseDocument(document);
    PostMessage(closeDrawingMessage, 0, reinterpret_cast<LPARAM>(document));
    return true;
}

void MainFrame::DocumentCreated(AcApDocument* document)
{
    DrawingFrame* drawing = new DrawingFrame(document);
    const DWORD style = WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW;
    if (!drawing->Create(NULL, document->docTitle(), style, CFrameWnd::rectDefault, this))
        return;
    m_drawings[document] = drawing;
    m_tabs.Add(document);
    MDIMaximize(drawing);
}

void MainFrame::DocumentToBeDestroyed(AcApDocument* document)
{
    const auto found = m_drawings.find(document);
    if (found == m_drawings.end())
        return;
    DrawingFrame* drawing = found->second;
    m_command.ForgetView(drawing->View());
    m_drawings.erase(found);
    m_tabs.Remove(document);
    drawing->MDIDestroy();
}

void MainFrame::DocumentActivated(AcApDocument* document)
{
    const auto found = m_drawings.find(document);
    m_tabs.Select(document);
    if (found != m_drawings.end() && MDIGetActive() != found->second)
        MDIActivate(found->second);
    m_status.SetMessage(document != nullptr ? document->fileName() : L"没有打开的图形");
    OnUpdateFrameTitle(TRUE);
}

BOOL MainFrame::PreTranslateMessage(MSG* message)
{
    // The system sends the wheel to the window with the focus, mostly the command line; it is meant for what is under
    // the cursor.
    if (message->message == WM_MOUSEWHEEL)
    {
        const CPoint point(message->lParam);
        const HWND under = ::WindowFromPoint(point);
        if (dynamic_cast<DrawingView*>(CWnd::FromHandlePermanent(under)) != NULL && under != message->hwnd)
        {
            ::SendMessage(under, WM_MOUSEWHEEL, message->wParam, message->lParam);
            return TRUE;
        }
    }
    return CMDIFrameWnd::PreTranslateMessage(message);
}

BOOL MainFrame::PreCreateWindow(CREATESTRUCT& create)
{
    if (!CMDIFrameWnd::PreCreateWindow(create))
        return FALSE;
    CRect work;
    ::SystemParametersInfo(SPI_GETWORKAREA, 0, &work, 0);
    create.x = work.left + screenMargin;
    create.y = work.top + screenMargin;
    create.cx = std::min<int>(work.Width() - 2 * screenMargin, largestWidth);
    create.cy = std::min<int>(work.Height() - 2 * screenMargin, largestHeight);
    return TRUE;
}

int MainFrame::OnCreate(LPCREATESTRUCT create)
{
    if (CMDIFrameWnd::OnCreate(create) == -1)
        return -1;
    // The bars take their edges in this order.
    if (!m_status.Create(*this) || !m_command.Create(*this) || !m_tabs.Create(*this))
        return -1;
    EnableDocking(CBRS_ALIGN_ANY);
    m_command.onLine = [this](const std::wstring& line) { Run(line); };
    m_command.onEscape = [this] {
        if (DrawingView* view = ActiveView())
            view->CancelSelection();
    };
    m_bridge->Connect();
    return 0;
}

void MainFrame::OnDestroy()
{
    m_bridge->Disconnect();
    CMDIFrameWnd::OnDestroy();
}

void MainFrame::OnClose()
{
    // A command that waits for an answer is given up; the program ends after it.
    if (m_command.GiveUp())
    {
        PostMessage(WM_CLOSE);
        return;
    }
    if (IsCommandActive())
    {
        m_command.Print(L"命令正在运行，不能退出。\n");
        return;
    }
    AdUiSaveDockingToolPositions();
    UnloadAllModules();
    for (AcApDocument* document : Documents())
        CloseDocument(document);
    CMDIFrameWnd::OnClose();
}

void MainFrame::OnSetFocus(CWnd* oldWindow)
{
    CMDIFrameWnd::OnSetFocus(oldWindow);
    m_command.FocusInput();
}

LRESULT MainFrame::OnPendingInput(WPARAM /*wParam*/, LPARAM /*lParam*/)
{
    RunPendingInput();
    return 0;
}

LRESULT MainFrame::OnCloseDrawing(WPARAM /*wParam*/, LPARAM lParam)
{
    AcApDocument* document = reinterpret_cast<AcApDocument*>(lParam);
    if (IsDocument(document) && !CloseDrawing(document))
        m_command.PrintLine(L"命令正在运行，不能关闭图形。");
    return 0;
}

void MainFrame::OnMenuCommand(UINT id)
{
    for (const MenuLine& menu : menuLines)
    {
        if (menu.id == id)
            Run(menu.line);
    }
}

void MainFrame::OnWindowCommand(UINT id)
{
    if (id == ID_WINDOW_CASCADE)
        MDICascade();
    else
        MDITile(id == ID_WINDOW_TILE_HORZ ? MDITILE_HORIZONTAL : MDITILE_VERTICAL);
}

void MainFrame::ShowFailure(const std::wstring& message)
{
    m_command.PrintLine(L"错误：" + message);
}

} // namespace arxhost
