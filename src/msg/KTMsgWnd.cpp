#include "msg/KTMsgWnd.h"

#include "msg/MsgViewWnd.h"
#include "msg/ZNMsgManager.h"

namespace KTMsgWnd
{

bool AddMsg(EMsgType type, const wchar_t* group, const wchar_t* text, bool bindToDocument,
            const AcArray<AcDbObjectId>* objectIds, const AcDbExtents* extents)
{
    return CZNMsgManager::Instance().Add(type, group, text, bindToDocument, objectIds, extents);
}

bool RemoveMsg(const wchar_t* group, bool allDocuments)
{
    return CZNMsgManager::Instance().RemoveGroup(group, allDocuments);
}

void RemoveAllMsg()
{
    CZNMsgManager::Instance().RemoveAll();
}

int GetMsgCount(const wchar_t* group)
{
    return CZNMsgManager::Instance().CountVisible(group);
}

bool ShowMsgWnd(bool show)
{
    CMsgViewWnd* const set = CMsgViewWnd::Instance(show);
    if (set == NULL)
        return false;
    if (show)
    {
        set->Refresh();
        return set->IsShown();
    }
    const bool wasShown = set->IsShown();
    set->Show(false);
    return wasShown;
}

void UpdateMsgWnd()
{
    CMsgViewWnd* const set = CMsgViewWnd::Instance(false);
    if (set != NULL)
        set->Refresh();
}

} // namespace KTMsgWnd
