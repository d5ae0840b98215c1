#include "MessagesPage.h"

#include "../GalleryIds.h"

#include <dbapserv.h>
#include <dbents.h>
#include <dbsymtb.h>

const wchar_t CMessagesPage::Description[] =
    L"任何模块都可以向消息面板报告信息、警告和错误，并附带有关的对象和范围。"
    L"添加消息不会弹出面板，全部添加之后再显示。";

namespace
{

const wchar_t kGroup[] = L"控件库示例";

// The first object of the drawing that has an area; false when there is no
// drawing or none in it.
bool FindObject(AcArray<AcDbObjectId>& objects, AcDbExtents& area)
{
    AcDbDatabase* const drawing =
        acdbHostApplicationServices()->workingDatabase();
    AcDbBlockTableRecord* space = NULL;
    if (drawing == NULL || acdbOpenObject(space, drawing->currentSpaceId(),
                                          AcDb::kForRead) != Acad::eOk)
        return false;
    AcDbBlockTableRecordIterator* iterator = NULL;
    space->newIterator(iterator);
    for (; objects.isEmpty() && !iterator->done(); iterator->step())
    {
        AcDbEntity* entity = NULL;
        if (iterator->getEntity(entity, AcDb::kForRead) != Acad::eOk)
            continue;
        if (entity->getGeomExtents(area) == Acad::eOk)
            objects.append(entity->objectId());
        entity->close();
    }
    delete iterator;
    space->close();
    return !objects.isEmpty();
}

} // namespace

BEGIN_MESSAGE_MAP(CMessagesPage, CGalleryPage)
    ON_BN_CLICKED(IDC_MESSAGES_INFO, &CMessagesPage::OnInfo)
    ON_BN_CLICKED(IDC_MESSAGES_WARNING, &CMessagesPage::OnWarning)
    ON_BN_CLICKED(IDC_MESSAGES_ERROR, &CMessagesPage::OnError)
    ON_BN_CLICKED(IDC_MESSAGES_SHOW, &CMessagesPage::OnShowPalette)
    ON_BN_CLICKED(IDC_MESSAGES_HIDE, &CMessagesPage::OnHidePalette)
    ON_BN_CLICKED(IDC_MESSAGES_REMOVE, &CMessagesPage::OnRemove)
    ON_BN_CLICKED(IDC_MESSAGES_REMOVE_ALL, &CMessagesPage::OnRemoveAll)
END_MESSAGE_MAP()

CMessagesPage::CMessagesPage() : CGalleryPage(IDD_MESSAGES_PAGE) {}

BOOL CMessagesPage::OnInitDialog()
{
    CGalleryPage::OnInitDialog();
    CheckDlgButton(IDC_MESSAGES_OBJECT, BST_CHECKED);
    ShowCount();
    return TRUE;
}

void CMessagesPage::OnInfo()
{
    Add(KTMsgWnd::eInfo, L"图形已检查");
}

void CMessagesPage::OnWarning()
{
    Add(KTMsgWnd::eWarning, L"线宽应为 0.50");
}

void CMessagesPage::OnError()
{
    Add(KTMsgWnd::eError, L"图层名称不符合规定");
}

// [show]
void CMessagesPage::OnShowPalette()
{
    KTMsgWnd::ShowMsgWnd(true);
}
// [end]

void CMessagesPage::OnHidePalette()
{
    KTMsgWnd::ShowMsgWnd(false);
}

// [show]
void CMessagesPage::OnRemove()
{
    KTMsgWnd::RemoveMsg(kGroup, true); // false：只移除当前图形的消息
    KTMsgWnd::UpdateMsgWnd();
    ShowCount();
}
// [end]

void CMessagesPage::OnRemoveAll()
{
    KTMsgWnd::RemoveAllMsg();
    KTMsgWnd::UpdateMsgWnd();
    ShowCount();
}

// [show]
void CMessagesPage::Add(KTMsgWnd::EMsgType type, const wchar_t* text)
{
    AcArray<AcDbObjectId> objects; // 消息涉及的对象，可以没有
    AcDbExtents area;              // 消息涉及的范围，可以没有
    const bool wanted =
        IsDlgButtonChecked(IDC_MESSAGES_OBJECT) == BST_CHECKED;
    const bool found = wanted && FindObject(objects, area);
    const bool isBound =
        IsDlgButtonChecked(IDC_MESSAGES_BOUND) == BST_CHECKED;

    KTMsgWnd::AddMsg(type, kGroup, text, isBound, &objects,
                     found ? &area : NULL);
    KTMsgWnd::UpdateMsgWnd(); // 面板已打开时刷新
    ShowCount();
}
// [end]

void CMessagesPage::ShowCount()
{
    CString text;
    // [show]
    text.Format(L"本组消息数: %d", KTMsgWnd::GetMsgCount(kGroup));
    // [end]
    SetDlgItemText(IDC_MESSAGES_COUNT, text);
}
