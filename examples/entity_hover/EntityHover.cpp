#include "EntityHover.h"

#include <CheckSpecMsgThread.h>

#include <dbobjptr.h>

#include <memory>

namespace entity_hover
{

namespace
{

const UINT kRestDelay = 200; // ms until a mouse that does not move rests
const UINT kFocusCheck = 20; // ms
const int kFocusChecks = 50; // as long may the window take to come up
const int kButtons[] = {VK_LBUTTON, VK_MBUTTON, VK_RBUTTON};

CPoint Cursor()
{
    CPoint cursor;
    ::GetCursorPos(&cursor);
    return cursor;
}

template<class ACTION>
void ForEachDocument(ACTION action)
{
    const std::unique_ptr<AcApDocumentIterator> documents(acDocManager->newAcApDocumentIterator());
    for (; !documents->done(); documents->step())
        action(documents->document());
}

CCheckSpecMsgThread* StartWindow()
{
    CWinThread* const thread =
        AfxBeginThread(RUNTIME_CLASS(CCheckSpecMsgThread), THREAD_PRIORITY_NORMAL, 0, CREATE_SUSPENDED);
    if (thread == nullptr)
        return nullptr;
    // Kept until its end has been waited for.
    thread->m_bAutoDelete = FALSE;
    thread->ResumeThread();
    return static_cast<CCheckSpecMsgThread*>(thread);
}

// The window that goes sends messages to the frame, its owner: they are answered meanwhile, and nothing else is done.
void EndWindow(CCheckSpecMsgThread* window)
{
    window->End();
    while (::MsgWaitForMultipleObjects(1, &window->m_hThread, FALSE, INFINITE, QS_SENDMESSAGE) == WAIT_OBJECT_0 + 1)
    {
        MSG message;
        ::PeekMessage(&message, nullptr, 0, 0, PM_NOREMOVE | PM_QS_SENDMESSAGE);
    }
    delete window;
}

} // namespace

CEntityHover* CEntityHover::s_running = nullptr;

void CEntityHover::Start()
{
    if (IsOn())
        return;
    m_window = StartWindow();
    if (!IsOn())
        return;
    s_running = this;
    acDocManager->addReactor(this);
    ForEachDocument([this](AcApDocument* document) { Watch(document); });
}

void CEntityHover::Stop()
{
    if (!IsOn())
        return;
    SetRestTimer(false);
    SetFocusTimer(false);
    ForEachDocument([this](AcApDocument* document) { Unwatch(document); });
    acDocManager->removeReactor(this);
    s_running = nullptr;
    m_memory.Forget();
    EndWindow(m_window);
    m_window = nullptr;
}

Acad::ErrorStatus CEntityHover::monitorInputPoint(const AcEdInputPoint& input, AcEdInputPointMonitorResult&)
{
    const AcDbObjectIdArray& picked = input.pickedEntities();
    m_document = input.document();
    m_entity = picked.isEmpty() ? AcDbObjectId::kNull : picked[0];
    m_cursor = Cursor();
    m_memory.MovedTo(m_cursor);
    SetRestTimer(!m_entity.isNull());
    return Acad::eOk;
}

void CEntityHover::documentCreated(AcApDocument* document)
{
    Watch(document);
}

void CEntityHover::documentToBeDestroyed(AcApDocument* document)
{
    Unwatch(document);
    if (document != m_document)
        return;
    SetRestTimer(false);
    m_document = nullptr;
    m_memory.Forget();
    m_window->ShowWindow(SW_HIDE);
}

void CALLBACK CEntityHover::OnRest(HWND, UINT, UINT_PTR, DWORD)
{
    if (s_running != nullptr)
        s_running->Rested();
}

void CALLBACK CEntityHover::OnFocusCheck(HWND, UINT, UINT_PTR, DWORD)
{
    if (s_running != nullptr)
        s_running->ReturnFocus();
}

void CEntityHover::Watch(AcApDocument* document)
{
    AcEdInputPointManager* const manager = document->inputPointManager();
    manager->turnOnForcedPick();
    manager->addPointMonitor(this);
}

void CEntityHover::Unwatch(AcApDocument* document)
{
    AcEdInputPointManager* const manager = document->inputPointManager();
    if (manager->removePointMonitor(this) == Acad::eOk)
        manager->turnOffForcedPick();
}

void CEntityHover::SetRestTimer(bool on)
{
    if (m_restTimer != 0)
        ::KillTimer(nullptr, m_restTimer);
    m_restTimer = on ? ::SetTimer(nullptr, 0, kRestDelay, &OnRest) : 0;
}

void CEntityHover::SetFocusTimer(bool on)
{
    if (m_focusTimer != 0)
        ::KillTimer(nullptr, m_focusTimer);
    m_focusTimer = on ? ::SetTimer(nullptr, 0, kFocusCheck, &OnFocusCheck) : 0;
    m_focusChecks = 0;
}

void CEntityHover::Rested()
{
    SetRestTimer(false);
    // Over the view the next move would have told; elsewhere the cursor has left it.
    if (m_document == nullptr || Cursor() != m_cursor || IsUserBusy())
        return;
    const AcDbEntityPointer entity(m_entity);
    if (entity.openStatus() != Acad::eOk)
        return;
    const Lines lines = PropertiesOf(*entity.object());
    if (m_memory.IsNews(lines, m_window->IsDlgShowed()))
        Post(lines);
}

bool CEntityHover::IsUserBusy() const
{
    for (int button : kButtons)
    {
        if (::GetAsyncKeyState(button) < 0)
            return true;
    }
    return !m_document->isQuiescent();
}

void CEntityHover::Post(const Lines& lines)
{
    CStringArray texts;
    for (const std::wstring& line : lines)
        texts.Add(line.c_str());
    m_focus = ::GetFocus();
    const bool comesUp = !m_window->IsDlgShowed();
    m_window->ShowMsg(texts);
    m_memory.Posted(lines, m_cursor);
    SetFocusTimer(comesUp && m_focus != nullptr);
}

// The window takes the focus when it comes up. What the user types goes on to where it went, mostly the command line.
void CEntityHover::ReturnFocus()
{
    const HWND window = ::GetForegroundWindow();
    const bool isTaken = ::GetWindowThreadProcessId(window, nullptr) == m_window->m_nThreadID;
    if (!isTaken && ++m_focusChecks < kFocusChecks)
        return;
    SetFocusTimer(false);
    if (!isTaken || !::IsWindow(m_focus))
        return;
    ::SetForegroundWindow(::GetAncestor(m_focus, GA_ROOT));
    ::SetFocus(m_focus);
    // An owned window stays before its owner, but Wine's display puts the frame on top until the window is ordered
    // anew.
    ::SetWindowPos(window, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_ASYNCWINDOWPOS);
}

} // namespace entity_hover
