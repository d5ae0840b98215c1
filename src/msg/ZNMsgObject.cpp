#include "msg/ZNMsgObject.h"

#include <acutads.h>

#include "msg/KTMsgWnd.h"

namespace
{

const wchar_t kCaption[] = L"Tevrin提示";

// Null for a type that is none of the three.
const wchar_t* PrefixOf(int type)
{
    switch (type)
    {
    case CMsgCallback::eInfo:
        return L"信息:";
    case CMsgCallback::eWarning:
        return L"警告:";
    case CMsgCallback::eError:
        return L"错误:";
    default:
        return NULL;
    }
}

void AddToStore(const ZNKTPub::MSGDATA& data)
{
    KTMsgWnd::AddMsg(static_cast<KTMsgWnd::EMsgType>(data.type), data.group, data.text, data.document != NULL,
                     &data.objectIds, data.hasExtents ? &data.extents : NULL);
}

} // namespace

namespace ZNKTPub
{

CZNMsgObject::CZNMsgObject() : m_messages(NULL)
{
    CZNMsgTracker* const tracker = CZNMsgTracker::GetInstance();
    m_messages = tracker->GetMSGCLCT(tracker->PushMSGCLCT());
}

CZNMsgObject::~CZNMsgObject()
{
    if (m_messages != NULL)
        CZNMsgTracker::GetInstance()->PopMSGCLCT();
}

CZNMsgObject& CZNMsgObject::operator=(const CZNMsgObject& other)
{
    m_messages = other.m_messages;
    return *this;
}

const std::vector<MSGDATA>* CZNMsgObject::Messages() const
{
    return m_messages;
}

bool CZNMsgObject::HasMsg() const
{
    return m_messages != NULL && !m_messages->empty();
}

void CZNMsgObject::ShowMessageBox(HWND parent)
{
    if (!HasMsg())
        return;
    const CString text = BuildText();
    MFCUtils::ShowMsg(parent, kCaption, 0, text);
    m_messages->clear();
}

void CZNMsgObject::ShowCommandLine()
{
    if (!HasMsg())
        return;
    const CString text = BuildText();
    acutPrintf(text);
    m_messages->clear();
}

void CZNMsgObject::ShowMsgPanel()
{
    if (!HasMsg())
        return;
    for (size_t i = 0; i < m_messages->size(); ++i)
        AddToStore((*m_messages)[i]);
    KTMsgWnd::ShowMsgWnd(true);
    m_messages->clear();
}

// A prefix replaces what came before it, so that the user reads the final message: what the suite's users know.
CString CZNMsgObject::BuildText() const
{
    CString text;
    for (size_t i = 0; i < m_messages->size(); ++i)
    {
        const MSGDATA& data = (*m_messages)[i];
        const wchar_t* const prefix = PrefixOf(data.type);
        if (prefix != NULL)
            text = prefix;
        text += data.text;
        if (i + 1 < m_messages->size())
            text += L'\n';
    }
    return text;
}

} // namespace ZNKTPub
