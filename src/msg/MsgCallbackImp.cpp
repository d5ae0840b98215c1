#include "msg/MsgCallbackImp.h"

#include <rxmfcapi.h>
#include <ZNWaitDlgDll.h>

#include "msg/KTMsgWnd.h"
#include "msg/WaitDlgHolder.h"

CMsgCallbackImp::CMsgCallbackImp(CMsgCallbackManager* manager)
    : m_manager(manager), m_previous(NULL), m_waitDialog(NULL), m_cancelEnabled(false)
{
    if (m_manager != NULL)
        m_previous = m_manager->Register(this);
}

CMsgCallbackImp::CMsgCallbackImp(const CMsgCallbackImp& other)
    : CMsgCallback(other), m_manager(other.m_manager), m_previous(other.m_previous), m_waitDialog(other.m_waitDialog),
      m_cancelEnabled(other.m_cancelEnabled)
{
}

CMsgCallbackImp& CMsgCallbackImp::operator=(const CMsgCallbackImp& other)
{
    CMsgCallback::operator=(other);
    m_manager = other.m_manager;
    m_previous = other.m_previous;
    m_waitDialog = other.m_waitDialog;
    m_cancelEnabled = other.m_cancelEnabled;
    return *this;
}

// The former callback is current again before the dialog goes, so that nobody reports into a callback without one.
CMsgCallbackImp::~CMsgCallbackImp()
{
    if (m_manager != NULL)
        m_manager->Register(m_previous);
    delete m_waitDialog;
}

void CMsgCallbackImp::CreateWaitDlg(bool enableCancel)
{
    m_cancelEnabled = enableCancel;
    if (m_waitDialog != NULL)
        return;
    m_waitDialog = new CWaitDlgHolder;
    m_waitDialog->GetDialog().SetWatchWnd(adsw_acadMainWnd());
    m_waitDialog->GetDialog().SetEnableCancel(EnableCancel());
}

void CMsgCallbackImp::CloseWaitDlg()
{
    delete m_waitDialog;
    m_waitDialog = NULL;
}

void CMsgCallbackImp::WaitDlgPushMsg(const wchar_t* text)
{
    if (m_waitDialog != NULL)
        m_waitDialog->Push(text);
}

CString CMsgCallbackImp::WaitDlgPopMsg()
{
    if (m_waitDialog == NULL || m_waitDialog->IsEmpty())
        return CString();
    return m_waitDialog->Pop();
}

CString CMsgCallbackImp::WaitDlgGetLastMsg() const
{
    if (m_waitDialog == NULL || m_waitDialog->IsEmpty())
        return CString();
    return m_waitDialog->GetLast();
}

void CMsgCallbackImp::WaitDlgModiLastMsg(const wchar_t* text)
{
    if (m_waitDialog != NULL && !m_waitDialog->IsEmpty())
        m_waitDialog->SetLast(text);
}

bool CMsgCallbackImp::IsCanceled() const
{
    return m_waitDialog != NULL && m_waitDialog->GetDialog().GetIsCanceled() != 0;
}

bool CMsgCallbackImp::MsgWndShow(bool show)
{
    return KTMsgWnd::ShowMsgWnd(show);
}

void CMsgCallbackImp::MsgWndAddMsg(EMsgType type, const wchar_t* group, const wchar_t* text, bool bindToDocument,
                                   const AcArray<AcDbObjectId>* objectIds, const AcDbExtents* extents)
{
    KTMsgWnd::AddMsg(static_cast<KTMsgWnd::EMsgType>(type), group, text, bindToDocument, objectIds, extents);
}

bool CMsgCallbackImp::RemoveMsg(const wchar_t* group, bool allDocuments)
{
    return KTMsgWnd::RemoveMsg(group, allDocuments);
}

void CMsgCallbackImp::RemoveAllMsg()
{
    KTMsgWnd::RemoveAllMsg();
}

void CMsgCallbackImp::MsgWndUpdate()
{
    KTMsgWnd::UpdateMsgWnd();
}

int CMsgCallbackImp::GetMsgCount(const wchar_t* group)
{
    return KTMsgWnd::GetMsgCount(group);
}

bool CMsgCallbackImp::EnableCancel() const
{
    return m_cancelEnabled;
}
