// The gallery's window: all controls in a tree, one of them at work, and the code that makes it.
//
// Modeless and owned by the host's frame; it deletes itself when it is closed, and opens next where it was.
// Ctrl+F and F3 go to the search; Enter and Down go from there to what it found. F6 and Ctrl+Tab go around tree, page
// and code, with Shift backwards. Esc leaves a cell that is edited, empties the search, then closes.
#pragma once

#include "GalleryPage.h"
#include "GalleryPages.h"

#include <CtrlResize.h>

#include <afxcmn.h>

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

    afx_msg void OnClose();
    afx_msg void OnDestroy();
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* info);
    afx_msg void OnSearchChange();
    afx_msg void OnTreeSelection(NMHDR* notification, LRESULT* result);
    afx_msg LRESULT OnKeepFocus(WPARAM wParam, LPARAM lParam);

    DECLARE_MESSAGE_MAP()

private:
    CGalleryDlg() = default;

    void SetUpLayout();
    void MakeFonts();
    void FillTree();
    void AddFoundPages();
    HTREEITEM GroupItem(const wchar_t* group);
    const GalleryEntry* EntryOf(HTREEITEM item) const;
    HTREEITEM ItemOf(const GalleryEntry& entry) const;
    void OpenPage(const GalleryEntry& entry);
    void PlacePage();
    bool TakeKey(UINT key);
    bool LeaveCell();
    void GoToSearch();
    void GoToFound();
    void GoToNextPane(bool back);
    int PaneWithFocus() const;
    CWnd* FirstControlOf(int pane) const;

    static CGalleryDlg* s_current;

    CTreeCtrl m_tree;
    CEdit m_search;
    CEdit m_code;
    CFont m_titleFont;
    CFont m_codeFont;
    CCtrlResize m_resize;
    CSize m_smallestWindow;
    std::unique_ptr<CGalleryPage> m_page;
    const GalleryEntry* m_entry = nullptr; // of the page that is open
    bool m_filling = false;
};
