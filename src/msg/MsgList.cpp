#include "msg/MsgList.h"

#include "base/NoRedraw.h"
#include "msg/MsgImages.h"
#include "msg/MsgViewLayout.h"
#include "res/resource.h"

namespace
{

struct Column
{
    const wchar_t* heading;
    int width; // pixels
};

const Column kColumns[CMsgList::COLUMNS] = {{L"类型", 60}, {L"时间", 60}, {L"源", 100}, {L"描述", 300}};

struct TypeLook
{
    const wchar_t* text;
    int image;
};

const TypeLook kInfoLook = {L"信息", 0};
const TypeLook kWarningLook = {L"警告", 2};
const TypeLook kErrorLook = {L"错误", 1};

const int kImagePixels = 18;

const TypeLook& LookOf(KTMsgWnd::EMsgType type)
{
    switch (type)
    {
    case KTMsgWnd::eInfo:
        return kInfoLook;
    case KTMsgWnd::eWarning:
        return kWarningLook;
    default:
        return kErrorLook;
    }
}

} // namespace

void CMsgList::SetUp()
{
    LoadImageStrip(m_images, IDB_LIST_IMAGES, kImagePixels);
    SetImageList(&m_images, LVSIL_SMALL);
    SetExtendedStyle(GetExtendedStyle() | LVS_EX_FULLROWSELECT | LVS_EX_INFOTIP);
    for (int i = 0; i < COLUMNS; ++i)
        InsertColumn(i, kColumns[i].heading, LVCFMT_LEFT, kColumns[i].width, i);
}

void CMsgList::ShowMessages(const CZNMsgArray& messages)
{
    CNoRedraw noRedraw(*this);
    const int count = static_cast<int>(messages.GetSize());
    DeleteAllItems();
    SetItemCount(count);
    for (int row = 0; row < count; ++row)
        InsertMessage(row, messages[row]);
}

int CMsgList::GetId(int row) const
{
    return static_cast<int>(GetItemData(row));
}

std::vector<int> CMsgList::GetSelectedIds() const
{
    std::vector<int> ids = GetSelectedRows();
    for (size_t i = 0; i < ids.size(); ++i)
        ids[i] = GetId(ids[i]);
    return ids;
}

std::vector<int> CMsgList::GetSelectedRows() const
{
    std::vector<int> rows;
    rows.reserve(GetSelectedCount());
    for (int row = GetNextItem(-1, LVNI_SELECTED); row >= 0; row = GetNextItem(row, LVNI_SELECTED))
        rows.push_back(row);
    return rows;
}

void CMsgList::DeleteRows(const std::vector<int>& rows)
{
    CNoRedraw noRedraw(*this);
    if (static_cast<int>(rows.size()) == GetItemCount())
    {
        DeleteAllItems();
        return;
    }
    for (size_t i = rows.size(); i-- > 0;)
        DeleteItem(rows[i]);
}

void CMsgList::SelectRow(int row)
{
    EnsureVisible(row, FALSE);
    SetItemState(row, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
}

void CMsgList::FitTextColumn()
{
    CRect client;
    GetClientRect(&client);
    SetColumnWidth(COLUMN_TEXT, DescriptionWidth(client.Width(), ::GetSystemMetrics(SM_CXVSCROLL)));
}

void CMsgList::InsertMessage(int row, const CZNMsgData& message)
{
    const TypeLook& look = LookOf(message.type);
    InsertItem(LVIF_TEXT | LVIF_IMAGE | LVIF_PARAM, row, look.text, 0, 0, look.image, message.id);
    SetItemText(row, COLUMN_TIME, message.time);
    SetItemText(row, COLUMN_GROUP, message.group);
    SetItemText(row, COLUMN_TEXT, message.text);
}
