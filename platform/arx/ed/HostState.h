// What the host program plugged in, and the editor's listeners.
#pragma once

#include "HostServices.h"
#include "arx/rx/ReactorList.h"

#include <atomic>

#include "arx/WindowsTypes.h"

namespace arxed
{

class HostState
{
public:
    static HostState& Instance();

    // Never null: an interface that does nothing stands in.
    arxhost::IHostUi& Ui() const { return *m_ui; }
    void SetUi(arxhost::IHostUi* ui);
    void SetPrintSink(arxhost::IPrintSink* sink) { m_printSink = sink; }
    // Without a sink the text goes to the debugger.
    void Print(const wchar_t* text) const;
    void SetMainFrame(CMDIFrameWnd* frame);
    CMDIFrameWnd* MainFrame() const { return m_mainFrame; }
    // Any thread may ask.
    HWND MainWindow() const { return m_mainWindow.load(); }

    void TellCreated(AcApDocument* document) const;
    void TellToBeDestroyed(AcApDocument* document) const;
    void TellActivated(AcApDocument* document) const;
    void TellViewChanged(AcApDocument* document) const;
    void TellHighlightChanged(AcApDocument* document) const;
    // Tells the editor's reactors as well.
    void TellPickfirstChanged(AcApDocument* document) const;
    void TellContentsChanged(AcApDocument* document) const;

    void Reset();

    arxrx::ReactorList<arxhost::IDocumentObserver> observers;
    arxrx::ReactorList<AcEditorReactor> editorReactors;

private:
    HostState();

    arxhost::IHostUi* m_ui;
    arxhost::IPrintSink* m_printSink = nullptr;
    CMDIFrameWnd* m_mainFrame = nullptr;
    std::atomic<HWND> m_mainWindow{nullptr};
};

} // namespace arxed
