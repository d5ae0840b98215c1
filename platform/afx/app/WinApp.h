// CWinApp: the program, exactly one global object of a derived class. The start sequence of a program is
//   AfxWinInit(instance, NULL, GetCommandLine(), show), then AfxGetApp()->InitInstance(), Run().
#pragma once

#include "afx/app/WinThread.h"

class CDocTemplate;

class AFX_API CWinApp : public CWinThread
{
    DECLARE_DYNAMIC(CWinApp)

public:
    explicit CWinApp(LPCTSTR appName = nullptr); // null: the program file's name
    ~CWinApp() override;

    HINSTANCE m_hInstance = nullptr;
    HINSTANCE m_hPrevInstance = nullptr;
    LPTSTR m_lpCmdLine = nullptr;
    int m_nCmdShow = SW_SHOWNORMAL;
    LPCTSTR m_pszAppName = nullptr;     // title of message boxes
    LPCTSTR m_pszExeName = nullptr;     // name of the program file without extension
    LPCTSTR m_pszProfileName = nullptr; // name of the ini file, or of the program's registry key
    LPCTSTR m_pszRegistryKey = nullptr; // company, set by SetRegistryKey
    LPCTSTR m_pszHelpFilePath = nullptr;

    // Profile: HKEY_CURRENT_USER\Software\<company>\<profile name>\<section> after SetRegistryKey, else the ini file.
    void SetRegistryKey(LPCTSTR registryKey);
    void SetRegistryKey(UINT registryKeyId);
    UINT GetProfileInt(LPCTSTR section, LPCTSTR entry, int defaultValue);
    BOOL WriteProfileInt(LPCTSTR section, LPCTSTR entry, int value);
    CString GetProfileString(LPCTSTR section, LPCTSTR entry, LPCTSTR defaultValue = nullptr);
    // A null value removes the entry, a null entry the section.
    BOOL WriteProfileString(LPCTSTR section, LPCTSTR entry, LPCTSTR value);
    // *data is allocated with new BYTE[] for the caller.
    BOOL GetProfileBinary(LPCTSTR section, LPCTSTR entry, LPBYTE* data, UINT* bytes);
    BOOL WriteProfileBinary(LPCTSTR section, LPCTSTR entry, LPBYTE data, UINT bytes);
    HKEY GetAppRegistryKey();
    HKEY GetSectionKey(LPCTSTR section);

    // Resources of the program, the current resource module or an extension module.
    HICON LoadIcon(LPCTSTR name) const;
    HICON LoadIcon(UINT id) const { return LoadIcon(MAKEINTRESOURCE(id)); }
    HICON LoadStandardIcon(LPCTSTR name) const { return ::LoadIcon(nullptr, name); }
    HCURSOR LoadCursor(LPCTSTR name) const;
    HCURSOR LoadCursor(UINT id) const { return LoadCursor(MAKEINTRESOURCE(id)); }
    HCURSOR LoadStandardCursor(LPCTSTR name) const { return ::LoadCursor(nullptr, name); }

    virtual int DoMessageBox(LPCTSTR prompt, UINT type, UINT promptId);
    virtual void DoWaitCursor(int code); // 1 begin, -1 end, 0 restore
    virtual BOOL InitApplication() { return TRUE; }
    virtual BOOL SaveAllModified() { return TRUE; } // FALSE: don't end now
    void EnableModeless(BOOL enable);
    void HideApplication();
    void CloseAllDocuments(BOOL) {}

    BOOL InitInstance() override;
    int Run() override;
    int ExitInstance() override;
    BOOL OnIdle(LONG count) override;

    afx_msg void OnAppExit(); // ID_APP_EXIT: closes the main window

protected:
    int m_nWaitCursorCount = 0;
    HCURSOR m_hcurWaitCursorRestore = nullptr;

    DECLARE_MESSAGE_MAP()

private:
    friend BOOL AFXAPI AfxWinInit(HINSTANCE instance, HINSTANCE previous, LPTSTR commandLine, int show);
    void SetCurrentHandles();

    CString m_appName;
    CString m_exeName;
    CString m_profileName;
    CString m_registryKey;
};

// Prepares the framework for the program. AfxWinTerm gives back what it holds at the end.
AFX_API BOOL AFXAPI AfxWinInit(HINSTANCE instance, HINSTANCE previous, LPTSTR commandLine, int show);
AFX_API void AFXAPI AfxWinTerm();

AFX_API CWinApp* AFXAPI AfxGetApp();
AFX_API CWnd* AFXAPI AfxGetMainWnd();
AFX_API LPCTSTR AFXAPI AfxGetAppName();
AFX_API BOOL AFXAPI AfxOleGetUserCtrl();
AFX_API void AFXAPI AfxPostQuitMessage(int exitCode);

// Message boxes titled with the program's name; the prompt may be a string resource.
AFX_API int AFXAPI AfxMessageBox(LPCTSTR text, UINT type = MB_OK, UINT helpId = 0);
AFX_API int AFXAPI AfxMessageBox(UINT promptId, UINT type = MB_OK, UINT helpId = static_cast<UINT>(-1));
