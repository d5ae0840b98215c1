// The main window of the host: documents in child frames, tabs, palettes at the edges, command line, status strip.
#pragma once

#include <afxwin.h>

#include <afxext.h>

#include "arx/ed/HostServices.h"
#include "host/CommandPanel.h"
#include "host/DocumentTabs.h"
#include "host/ScreenWatch.h"
#include "host/ScriptRunner.h"
#include "host/StatusStrip.h"
#include "host/ViewTransform.h"

#include <map>
#include <memory>
#include <string>

namespace arxhost
{

class DrawingFrame;
class DrawingView;
class HostBridge;

class MainFrame : public CMDIFrameWnd
{
public:
    MainFrame();
    ~MainFrame() override;

    // The main frame that a window lies in, NULL for none.
    static MainFrame* Of(const CWnd& window);

    // Creates the window and plugs it into the host services.
    bool Create();

    CommandPanel& Command() { return m_command; }
    StatusStrip& Status() { return m_status; }
    ScriptRunner& Scripts() { return m_scripts; }
    ScreenWatch& Watch() { return m_watch; }
    // NULL without a document; NeedView throws CommandFailure then.
    DrawingView* ActiveView();
    DrawingView& NeedView();
    DrawingView* ViewOf(AcApDocument* document);

    // Unattended: a script drives the program; nothing may wait for a user, the first failure ends it.
    bool IsUnattended() const { return m_unattended; }
    void SetUnattended() { m_unattended = true; }
    // True when a line failed while unattended, or the start did.
    bool HasFailed() const { return m_failed; }
    void Fail(const std::wstring& message);

    // Runs a command line; a failure is shown in the command line. False on failure.
    bool Run(const std::wstring& line);
    // Runs the next script line.
    void StepScript();
    // These throw CommandFailure.
    void OpenDrawing(const std::wstring& path);
    void LoadModule(const std::wstring& name);
    void StartScript(const std::wstring& path);

    // The cursor moves over the drawing at this place: shows the coordinates and takes the focus back for the command
    // line, unless a window keeps it.
    void CursorOverDrawing(WorldPoint place);

    // Closes the drawing; when its command waits for an answer, the command is given up first and the drawing closed
    // after it. False while the command does something else.
    bool CloseDrawing(AcApDocument* document);

    // Documents as the host services tell them.
    void DocumentCreated(AcApDocument* document);
    void DocumentToBeDestroyed(AcApDocument* document);
    void DocumentActivated(AcApDocument* document);

    BOOL PreTranslateMessage(MSG* message) override;

protected:
    BOOL PreCreateWindow(CREATESTRUCT& create) override;

    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnDestroy();
    afx_msg void OnClose();
    afx_msg void OnSetFocus(CWnd* oldWindow);
    afx_msg LRESULT OnPendingInput(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnCloseDrawing(WPARAM wParam, LPARAM lParam);
    afx_msg void OnMenuCommand(UINT id);
    afx_msg void OnWindowCommand(UINT id);

    DECLARE_MESSAGE_MAP()

private:
    void ShowFailure(const std::wstring& message);

    StatusStrip m_status;
    CommandPanel m_command;
    DocumentTabs m_tabs;
    ScriptRunner m_scripts;
    ScreenWatch m_watch;
    std::map<AcApDocument*, DrawingFrame*> m_drawings;
    std::unique_ptr<HostBridge> m_bridge;
    bool m_unattended = false;
    bool m_failed = false;
};

} // namespace arxhost
