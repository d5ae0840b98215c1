// The check tree: layers and blocks, some of them disabled or fixed, and what the tree tells its parent.
#pragma once

#include "../GalleryPage.h"

#include <StateTreeCtrl.h>

class CCheckTreePage : public CGalleryPage
{
public:
    static const wchar_t Description[];
    static const wchar_t Code[];

    CCheckTreePage();

protected:
    DECLARE_MESSAGE_MAP()

    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;

    afx_msg void OnCheckChanged(NMHDR* header, LRESULT* result);
    afx_msg void OnTreeClicked(NMHDR* header, LRESULT* result);

private:
    HTREEITEM AddBranch(const wchar_t* name, std::initializer_list<const wchar_t*> leaves);
    void Log(const CString& line);

    CStateTreeCtrl m_tree;
    CListBox m_log;
};
