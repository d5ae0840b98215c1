#include <afxdisp.h>

IMPLEMENT_DYNAMIC(CWinApp, CWinThread)

BEGIN_MESSAGE_MAP(CWinApp, CWinThread)
    ON_COMMAND(ID_APP_EXIT, &CWinApp::OnAppExit)
END_MESSAGE_MAP()

namespace
{
CString ProgramPath(HINSTANCE instance)
{
    CString path;
    ::GetModuleFileName(instance, path.GetBufferSetLength(MAX_PATH), MAX_PATH);
    path.ReleaseBuffer();
    return path;
}

CString BaseName(const CString& path)
{
    const CString name = path.Mid(path.ReverseFind(L'\\') + 1);
    const int dot = name.ReverseFind(L'.');
    return dot < 0 ? name : name.Left(dot);
}
} // namespace

CWinApp::CWinApp(LPCTSTR appName) : m_appName(appName)
{
    AFX_MODULE_STATE* const state = AfxGetModuleState();
    ASSERT(state->m_pCurrentWinApp == nullptr);
    state->m_pCurrentWinApp = this;
    if (appName != nullptr)
        m_pszAppName = m_appName;

    m_bAutoDelete = FALSE; // the one object is global
    m_nThreadID = ::GetCurrentThreadId();
    AfxGetThreadState()->m_pCurrentWinThread = this;
    m_hInstance = ::GetModuleHandle(nullptr);
}

CWinApp::~CWinApp()
{
    AFX_MODULE_STATE* const state = AfxGetModuleState();
    if (state->m_pCurrentWinApp == this)
    {
        state->m_pCurrentWinApp = nullptr;
        state->m_lpszCurrentAppName = nullptr;
    }
}

// Names that the program didn't choose itself come from its file.
void CWinApp::SetCurrentHandles()
{
    m_exeName = BaseName(ProgramPath(m_hInstance));
    m_pszExeName = m_exeName;
    if (m_pszAppName == nullptr)
    {
        m_appName = m_exeName;
        m_pszAppName = m_appName;
    }
    if (m_pszProfileName == nullptr)
    {
        m_profileName = m_pszRegistryKey == nullptr ? m_exeName + L".ini" : m_appName;
        m_pszProfileName = m_profileName;
    }
    AFX_MODULE_STATE* const state = AfxGetModuleState();
    state->m_hCurrentInstanceHandle = m_hInstance;
    state->m_lpszCurrentAppName = m_pszAppName;
}

BOOL CWinApp::InitInstance()
{
    return TRUE;
}

int CWinApp::Run()
{
    if (m_pMainWnd == nullptr && AfxOleGetUserCtrl())
        AfxPostQuitMessage(0); // a program without a window ends at once
    return CWinThread::Run();
}

int CWinApp::ExitInstance()
{
    return CWinThread::ExitInstance();
}

BOOL CWinApp::OnIdle(LONG count)
{
    return CWinThread::OnIdle(count);
}

void CWinApp::OnAppExit()
{
    if (m_pMainWnd->GetSafeHwnd() != nullptr)
        m_pMainWnd->SendMessage(WM_CLOSE);
}

void CWinApp::EnableModeless(BOOL enable)
{
    if (m_pMainWnd->GetSafeHwnd() != nullptr)
        m_pMainWnd->EnableWindow(enable);
}

void CWinApp::HideApplication()
{
    if (m_pMainWnd->GetSafeHwnd() == nullptr)
        return;
    m_pMainWnd->ShowWindow(SW_HIDE);
    m_pMainWnd->ShowOwnedPopups(FALSE);
}

HICON CWinApp::LoadIcon(LPCTSTR name) const
{
    return ::LoadIcon(AfxFindResourceHandle(name, RT_GROUP_ICON), name);
}

HCURSOR CWinApp::LoadCursor(LPCTSTR name) const
{
    return ::LoadCursor(AfxFindResourceHandle(name, RT_GROUP_CURSOR), name);
}

// The cursor that the hourglass replaced comes back at the outermost end.
void CWinApp::DoWaitCursor(int code)
{
    m_nWaitCursorCount += code;
    if (m_nWaitCursorCount > 0)
    {
        const HCURSOR previous = ::SetCursor(::LoadCursor(nullptr, IDC_WAIT));
        if (code > 0 && m_nWaitCursorCount == 1)
            m_hcurWaitCursorRestore = previous;
    }
    else
    {
        m_nWaitCursorCount = 0;
        ::SetCursor(m_hcurWaitCursorRestore);
    }
}

namespace
{
// Disables the top-level window for the time of a message box that another window owns.
class DisabledTopLevel
{
public:
    explicit DisabledTopLevel(HWND window) : m_window(window)
    {
        if (m_window != nullptr)
            ::EnableWindow(m_window, FALSE);
    }
    ~DisabledTopLevel()
    {
        if (m_window != nullptr)
            ::EnableWindow(m_window, TRUE);
    }
    DisabledTopLevel(const DisabledTopLevel&) = delete;
    DisabledTopLevel& operator=(const DisabledTopLevel&) = delete;

private:
    HWND m_window;
};

UINT DefaultIcon(UINT type)
{
    switch (type & MB_TYPEMASK)
    {
    case MB_OK:
    case MB_OKCANCEL:
        return MB_ICONEXCLAMATION;
    case MB_YESNO:
    case MB_YESNOCANCEL:
        return MB_ICONQUESTION;
    default:
        return 0;
    }
}
} // namespace

int CWinApp::DoMessageBox(LPCTSTR prompt, UINT type, UINT)
{
    HWND topLevel = nullptr;
    const HWND owner = CWnd::GetSafeOwner_(nullptr, &topLevel);
    const DisabledTopLevel disabled(topLevel);
    if ((type & MB_ICONMASK) == 0)
        type |= DefaultIcon(type);
    return ::MessageBox(owner, prompt, AfxGetAppName(), type);
}

CWinApp* AFXAPI AfxGetApp()
{
    return AfxGetModuleState()->m_pCurrentWinApp;
}

CWnd* AFXAPI AfxGetMainWnd()
{
    CWinThread* const thread = AfxGetThread();
    return thread != nullptr ? thread->GetMainWnd() : nullptr;
}

LPCTSTR AFXAPI AfxGetAppName()
{
    const LPCTSTR name = AfxGetModuleState()->m_lpszCurrentAppName;
    const CWinApp* const app = AfxGetApp();
    if (name != nullptr)
        return name;
    return app != nullptr && app->m_pszAppName != nullptr ? app->m_pszAppName : L"";
}

BOOL AFXAPI AfxOleGetUserCtrl()
{
    return TRUE;
}

void AFXAPI AfxPostQuitMessage(int exitCode)
{
    ::PostQuitMessage(exitCode);
}

int AFXAPI AfxMessageBox(LPCTSTR text, UINT type, UINT helpId)
{
    CWinApp* const app = AfxGetApp();
    if (app != nullptr)
        return app->DoMessageBox(text, type, helpId);
    return ::MessageBox(nullptr, text, L"", type);
}

int AFXAPI AfxMessageBox(UINT promptId, UINT type, UINT helpId)
{
    CString text;
    text.LoadString(promptId);
    return AfxMessageBox(text, type, helpId == static_cast<UINT>(-1) ? promptId : helpId);
}

BOOL AFXAPI AfxWinInit(HINSTANCE instance, HINSTANCE previous, LPTSTR commandLine, int show)
{
    AFX_MODULE_STATE* const state = AfxGetModuleState();
    state->m_hCurrentInstanceHandle = instance;
    CWinApp* const app = AfxGetApp();
    if (app == nullptr)
        return TRUE;
    app->m_hInstance = instance;
    app->m_hPrevInstance = previous;
    app->m_lpCmdLine = commandLine;
    app->m_nCmdShow = show;
    app->m_nThreadID = ::GetCurrentThreadId();
    AfxGetThreadState()->m_pCurrentWinThread = app;
    app->SetCurrentHandles();
    return TRUE;
}

void AFXAPI AfxWinTerm()
{
    _AFX_THREAD_STATE* const state = AfxGetThreadState();
    if (state->m_hHookOldCbtFilter != nullptr)
    {
        ::UnhookWindowsHookEx(state->m_hHookOldCbtFilter);
        state->m_hHookOldCbtFilter = nullptr;
    }
    AfxUnregisterModuleClasses(AfxGetInstanceHandle());
    AfxOleTerm();
}
