// The editable list: every editor in one table of layers.
#pragma once

#include "../GalleryPage.h"

// [show]
#include <ZNListCtrl.h>
// [end]

class CEditableListPage : public CGalleryPage
{
public:
    static const wchar_t Description[];

    CEditableListPage();

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;

    DECLARE_MESSAGE_MAP()

    afx_msg void OnBeginEdit(NMHDR* header, LRESULT* result);
    afx_msg void OnEndEdit(NMHDR* header, LRESULT* result);
    afx_msg LRESULT OnPickColour(WPARAM row, LPARAM column);
    afx_msg void OnUp();
    afx_msg void OnDown();
    afx_msg void OnInsert();
    afx_msg void OnDelete();

private:
    void ShowChoice(const LVITEMW& cell, const wchar_t* const* choices,
                    int count);

    // [show]
    CZNListCtrl m_layers; // 对话框成员
    // [end]
};
