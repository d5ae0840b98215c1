// Connects the main frame with the host services: what they print, ask and report goes to the frame.
#pragma once

#include <afxwin.h>

#include "arx/ed/HostServices.h"

namespace arxhost
{

class MainFrame;

class HostBridge : public IPrintSink, public IHostUi, public IDocumentObserver
{
public:
    // Posted to the frame: text waits to be run. Not under WM_USER + 0x100, where dialogs have theirs.
    static const UINT pendingInputMessage = WM_APP + 1;

    explicit HostBridge(MainFrame& frame);
    ~HostBridge() override;

    void Connect();
    void Disconnect();

    void Print(const wchar_t* text) override;

    bool GetString(const wchar_t* prompt, bool wholeLine, std::wstring& answer) override;
    PointReply GetPoint(const wchar_t* prompt, std::wstring& typed, AcGePoint2d& picked) override;
    CView* CurrentView() override;
    bool SelectObjects(ObjectIds& ids) override;
    void InputPending() override;
    void UpdateDisplay() override;
    bool SetProgressMeter(const wchar_t* label, int minimum, int maximum) override;
    bool SetProgressPosition(int position) override;
    bool RestoreStatusBar() override;

    void DocumentCreated(AcApDocument* document) override;
    void DocumentToBeDestroyed(AcApDocument* document) override;
    void DocumentActivated(AcApDocument* document) override;
    void ViewChanged(AcApDocument* document) override;
    void HighlightChanged(AcApDocument* document) override;
    void PickfirstChanged(AcApDocument* document) override;
    void ContentsChanged(AcApDocument* document) override;

private:
    MainFrame& m_frame;
    bool m_connected = false;
    int m_progressMinimum = 0;
    int m_progressMaximum = 0;
};

} // namespace arxhost
