// The list of messages: type, time, group and text. The item data of a row is the identifier of its message.
#pragma once

#include <vector>

#include <afxwin.h>
#include <afxcmn.h>

#include "msg/MsgData.h"

class CMsgList : public CListCtrl
{
public:
    enum
    {
        COLUMN_TYPE,
        COLUMN_TIME,
        COLUMN_GROUP,
        COLUMN_TEXT,
        COLUMNS
    };

    // Images, columns and style; the control must exist.
    void SetUp();

    // Replaces all rows, in the order given.
    void ShowMessages(const CZNMsgArray& messages);

    int GetId(int row) const;

    // The messages of the selected rows, first row first.
    std::vector<int> GetSelectedIds() const;

    // The selected rows, first row first.
    std::vector<int> GetSelectedRows() const;

    // Deletes these rows, which must rise. The others keep what they show, their order and the place of the scroll bar.
    // Where many go and some of the others are selected, these are selected no longer.
    void DeleteRows(const std::vector<int>& rows);

    // Selects and focuses the row and scrolls it into view.
    void SelectRow(int row);

    // Gives the text column what the others leave.
    void FitTextColumn();

private:
    // What a row is made of.
    struct Row
    {
        CString texts[COLUMNS];
        int image;
        int id;
    };

    Row CopyRow(int row) const;
    void InsertRow(int row, const Row& content);
    void InsertMessage(int row, const CZNMsgData& message);
    void DeleteOneByOne(const std::vector<int>& rows);
    void RefillWithout(const std::vector<int>& rows);

    CImageList m_images;
};
