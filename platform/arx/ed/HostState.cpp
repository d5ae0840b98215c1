#include "HostState.h"

#include <afxwin.h>

namespace arxed
{

namespace
{

arxhost::IHostUi* NoUi()
{
    static arxhost::IHostUi ui;
    return &ui;
}

} // namespace

HostState& HostState::Instance()
{
    // Never destroyed: objects that go while the process ends may still tell it.
    static HostState* const state = new HostState;
    return *state;
}

HostState::HostState() : m_ui(NoUi()) {}

void HostState::SetUi(arxhost::IHostUi* ui)
{
    m_ui = ui == nullptr ? NoUi() : ui;
}

void HostState::Print(const wchar_t* text) const
{
    if (m_printSink != nullptr)
    {
        m_printSink->Print(text);
    }
    else
    {
        OutputDebugStringW(text);
    }
}

void HostState::SetMainFrame(CMDIFrameWnd* frame)
{
    m_mainFrame = frame;
    m_mainWindow = frame == nullptr ? nullptr : frame->GetSafeHwnd();
}

void HostState::TellCreated(AcApDocument* document) const
{
    observers.Tell([&](arxhost::IDocumentObserver& observer) { observer.DocumentCreated(document); });
}

void HostState::TellToBeDestroyed(AcApDocument* document) const
{
    observers.Tell([&](arxhost::IDocumentObserver& observer) { observer.DocumentToBeDestroyed(document); });
}

void HostState::TellActivated(AcApDocument* document) const
{
    observers.Tell([&](arxhost::IDocumentObserver& observer) { observer.DocumentActivated(document); });
}

void HostState::TellViewChanged(AcApDocument* document) const
{
    observers.Tell([&](arxhost::IDocumentObserver& observer) { observer.ViewChanged(document); });
}

void HostState::TellHighlightChanged(AcApDocument* document) const
{
    observers.Tell([&](arxhost::IDocumentObserver& observer) { observer.HighlightChanged(document); });
}

void HostState::TellPickfirstChanged(AcApDocument* document) const
{
    observers.Tell([&](arxhost::IDocumentObserver& observer) { observer.PickfirstChanged(document); });
    editorReactors.Tell([](AcEditorReactor& reactor) { reactor.pickfirstModified(); });
}

void HostState::TellContentsChanged(AcApDocument* document) const
{
    observers.Tell([&](arxhost::IDocumentObserver& observer) { observer.ContentsChanged(document); });
}

void HostState::Reset()
{
    SetUi(nullptr);
    m_printSink = nullptr;
    SetMainFrame(nullptr);
    observers.Clear();
    editorReactors.Clear();
}

} // namespace arxed
