#include "host/MainFrame.h"

#include "host/DrawingView.h"
#include "host/HostBridge.h"

namespace arxhost
{

HostBridge::HostBridge(MainFrame& frame) : m_frame(frame) {}

HostBridge::~HostBridge()
{
    Disconnect();
}

void HostBridge::Connect()
{
    m_connected = true;
    SetMainFrame(&m_frame);
    SetPrintSink(this);
    SetHostUi(this);
    AddObserver(this);
}

void HostBridge::Disconnect()
{
    if (!m_connected)
        return;
    m_connected = false;
    RemoveObserver(this);
    SetHostUi(nullptr);
    SetPrintSink(nullptr);
    SetMainFrame(nullptr);
}

void HostBridge::Print(const wchar_t* text)
{
    m_frame.Command().Print(text);
}

bool HostBridge::GetString(const wchar_t* prompt, bool /*wholeLine*/, std::wstring& answer)
{
    return !m_frame.IsUnattended() && m_frame.Command().Ask(prompt, answer);
}

PointReply HostBridge::GetPoint(const wchar_t* prompt, std::wstring& typed, AcGePoint2d& picked)
{
    const DrawingView* view = m_frame.ViewOf(acDocManager->curDocument());
    if (view == NULL || m_frame.IsUnattended())
        return PointReply::GivenUp;
    return m_frame.Command().AskPoint(prompt, *view, typed, picked);
}

CView* HostBridge::CurrentView()
{
    return m_frame.ViewOf(acDocManager->curDocument());
}

bool HostBridge::SelectObjects(ObjectIds& ids)
{
    DrawingView* view = m_frame.ActiveView();
    std::wstring answer;
    if (view == NULL || m_frame.IsUnattended() || !m_frame.Command().Ask(L"选择对象，回车结束：", answer))
        return false;
    ids = GetPickfirst(view->HostDocument());
    return true;
}

void HostBridge::InputPending()
{
    m_frame.PostMessage(pendingInputMessage);
}

void HostBridge::UpdateDisplay()
{
    if (DrawingView* view = m_frame.ActiveView())
        view->UpdateWindow();
}

bool HostBridge::SetProgressMeter(const wchar_t* label, int minimum, int maximum)
{
    if (maximum <= minimum)
        return false;
    m_progressMinimum = minimum;
    m_progressMaximum = maximum;
    m_frame.Status().SetMessage(label);
    m_frame.Status().SetProgress(0);
    return true;
}

bool HostBridge::SetProgressPosition(int position)
{
    if (m_progressMaximum <= m_progressMinimum || position < m_progressMinimum || position > m_progressMaximum)
        return false;
    m_frame.Status().SetProgress(double(position - m_progressMinimum) / (m_progressMaximum - m_progressMinimum));
    return true;
}

bool HostBridge::RestoreStatusBar()
{
    const AcApDocument* document = acDocManager->mdiActiveDocument();
    m_progressMinimum = m_progressMaximum = 0;
    m_frame.Status().SetProgress(-1);
    m_frame.Status().SetMessage(document != nullptr ? document->fileName() : L"");
    return true;
}

void HostBridge::DocumentCreated(AcApDocument* document)
{
    m_frame.DocumentCreated(document);
}

void HostBridge::DocumentToBeDestroyed(AcApDocument* document)
{
    m_frame.DocumentToBeDestroyed(document);
}

void HostBridge::DocumentActivated(AcApDocument* document)
{
    m_frame.DocumentActivated(document);
}

void HostBridge::ViewChanged(AcApDocument* document)
{
    if (DrawingView* view = m_frame.ViewOf(document))
        view->LookChanged();
}

void HostBridge::HighlightChanged(AcApDocument* document)
{
    ViewChanged(document);
}

void HostBridge::PickfirstChanged(AcApDocument* document)
{
    ViewChanged(document);
}

void HostBridge::ContentsChanged(AcApDocument* document)
{
    if (DrawingView* view = m_frame.ViewOf(document))
        view->ContentsChanged();
}

} // namespace arxhost
