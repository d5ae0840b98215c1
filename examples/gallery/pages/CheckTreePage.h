// The check tree: layers and blocks, some of them disabled or fixed, and what
// the tree tells its parent.
#pragma once

#include "../GalleryPage.h"

// [show]
#include <StateTreeCtrl.h>
// [end]

class CCheckTreePage : public CGalleryPage
{
public:
    static const wchar_t Description[];

    CCheckTreePage();

protected:
    DECLARE_MESSAGE_MAP()

    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;

    afx_msg void OnCheckChanged(NMHDR* header, LRESULT* result);
    afx_msg void OnTreeClicked(NMHDR* header, LRESULT* result);

private:
    HTREEITEM AddBranch(const wchar_t* name,
                        std::initializer_list<const wchar_t*> leaves);
    void Log(const CString& line);

    // [show]
    CStateTreeCtrl m_tree; // 对话框成员
    // [end]
    CListBox m_log;
};
