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

// The control takes longer to take one row out of thousands than to put a row in: from so many rows on, the list is
// filled anew with those that stay, unless they are far more.
const size_t kManyRows = 256;
const size_t kStayingPerGoing = 8;

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
    const size_t staying = static_cast<size_t>(GetItemCount()) - rows.size();
    const bool refill = staying == 0 || (rows.size() >= kManyRows && staying <= rows.size() * kStayingPerGoing);
    if (!refill)
    {
        DeleteOneByOne(rows);
        return;
    }
    const int top = GetTopIndex();
    RefillWithout(rows);
    if (GetItemCount() > 0)
    {
        // A list that was empty in between may have forgotten how far it was scrolled.
        CRect first;
        GetItemRect(0, &first, LVIR_BOUNDS);
        Scroll(CSize(0, (top - GetTopIndex()) * first.Height()));
    }
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

CMsgList::Row CMsgList::CopyRow(int row) const
{
    LVITEM item = {};
    item.mask = LVIF_IMAGE | LVIF_PARAM;
    item.iItem = row;
    GetItem(&item);

    Row content;
    content.image = item.iImage;
    content.id = static_cast<int>(item.lParam);
    for (int column = 0; column < COLUMNS; ++column)
        content.texts[column] = GetItemText(row, column);
    return content;
}

void CMsgList::InsertRow(int row, const Row& content)
{
    InsertItem(LVIF_TEXT | LVIF_IMAGE | LVIF_PARAM, row, content.texts[COLUMN_TYPE], 0, 0, content.image, content.id);
    for (int column = COLUMN_TIME; column < COLUMNS; ++column)
        SetItemText(row, column, content.texts[column]);
}

void CMsgList::InsertMessage(int row, const CZNMsgData& message)
{
    const TypeLook& look = LookOf(message.type);
    Row content;
    content.image = look.image;
    content.id = message.id;
    content.texts[COLUMN_TYPE] = look.text;
    content.texts[COLUMN_TIME] = message.time;
    content.texts[COLUMN_GROUP] = message.group;
    content.texts[COLUMN_TEXT] = message.text;
    InsertRow(row, content);
}

void CMsgList::DeleteOneByOne(const std::vector<int>& rows)
{
    CNoRedraw noRedraw(*this);
    for (size_t i = rows.size(); i-- > 0;)
        DeleteItem(rows[i]);
}

void CMsgList::RefillWithout(const std::vector<int>& rows)
{
    std::vector<Row> staying;
    staying.reserve(static_cast<size_t>(GetItemCount()) - rows.size());
    size_t going = 0;
    for (int row = 0; row < GetItemCount(); ++row)
    {
        if (going < rows.size() && rows[going] == row)
            ++going;
        else
            staying.push_back(CopyRow(row));
    }
    CNoRedraw noRedraw(*this);
    DeleteAllItems();
    SetItemCount(static_cast<int>(staying.size()));
    for (size_t i = 0; i < staying.size(); ++i)
        InsertRow(static_cast<int>(i), staying[i]);
}
