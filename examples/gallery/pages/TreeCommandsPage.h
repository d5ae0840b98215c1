// A tree of named entries with the five usual commands on a combo button.
#pragma once

#include "../GalleryPage.h"

// [show]
#include <ComboButton.h>
#include <ComboButtonIMPItem.h>
#include <MFCCommonTree.h>
#include <MFCUtils.h>
// [end]

class CTreeCommandsPage : public CGalleryPage
{
public:
    static const wchar_t Description[];

    CTreeCommandsPage();

protected:
    DECLARE_MESSAGE_MAP()

    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;

    afx_msg LRESULT OnNew(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnCopyFrom(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnEdit(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnRename(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnDelete(WPARAM wParam, LPARAM lParam);
    afx_msg void OnEndRename(NMHDR* header, LRESULT* result);

private:
    void Add(const CString& name);
    void Tell(const CString& text) { SetDlgItemText(m_noticeId, text); }

    const int m_noticeId;
    // [show]
    CMFCCommonTree m_tree;
    CComboButton m_button;
    MFCUtils::CComboButtonIMPItem m_new;
    MFCUtils::CComboButtonIMPItem m_copyFrom;
    MFCUtils::CComboButtonIMPItem m_edit;
    MFCUtils::CComboButtonIMPItem m_rename;
    MFCUtils::CComboButtonIMPItem m_delete;
    // [end]
};
