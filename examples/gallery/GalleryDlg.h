// The gallery's window: all controls in a tree, one of them at work, and the code that makes it.
//
// Modeless and owned by the host's frame; it deletes itself when it is closed. Ctrl+F goes to the search, Esc closes.
#pragma once

#include "GalleryPages.h"

#include <afxcmn.h>

#include <map>
#include <memory>

class CGalleryDlg : public CDialog
{
public:
    // The window that is open, created and shown if there is none. Null when it could not be created.
    static CGalleryDlg* Show();
    // Closes the window if it is open.
    static void Close();

    void ShowPage(const GalleryEntry& entry);

    BOOL PreTranslateMessage(MSG* message) override;

protected:
    BOOL OnInitDialog() override;
    void OnOK() override;
    void OnCancel() override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    void PostNcDestroy() override;

    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* info);
    afx_msg void OnSearchChange();
    afx_msg void OnTreeSelection(NMHDR* notification, LRESULT* result);
    afx_msg LRESULT OnKeepFocus(WPARAM wParam, LPARAM lParam);

    DECLARE_MESSAGE_MAP()

private:
    CGalleryDlg() = default;

    void RememberPlaces();
    void MakeFonts();
    void FillTree();
    HTREEITEM GroupItem(const wchar_t* group);
    const GalleryEntry* EntryOf(HTREEITEM item) const;
    HTREEITEM ItemOf(const GalleryEntry& entry) const;
    void OpenPage(const GalleryEntry& entry);
    void PlacePage();
    void GoToSearch();

    static CGalleryDlg* s_current;

    CTreeCtrl m_tree;
    CEdit m_search;
    CFont m_titleFont;
    CFont m_codeFont;
    std::map<int, CRect> m_places; // of the controls in the smallest window, in client coordinates
    CSize m_smallestClient;
    CSize m_smallestWindow;
    std::unique_ptr<CGalleryPage> m_page;
    const GalleryEntry* m_entry = nullptr; // of the page that is open
    bool m_filling = false;
};
