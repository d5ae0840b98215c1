// A tree whose items have check boxes that follow each other: checking an item checks its whole subtree, and every
// ancestor shows whether all, some or none of its children are checked.
//
//     CStateTreeCtrl m_tree;                         // DDX_Control, or Create
//     const HTREEITEM layer = m_tree.InsertItem(L"0");
//     m_tree.InsertItem(L"轴线", layer);
//     m_tree.SetCheck(layer, 1);
//     m_tree.EnableCheck(locked, 0);                 // nobody checks this one
//
//     ON_NOTIFY(STATETREEN_CHECKCHANGED, IDC_TREE, &CMyDlg::OnCheckChanged)   // NMSTATETREECHECK; see CheckStates.h
//
// The check value of an item is its state image (CheckStates.h): GetItemState and SetItemState read and write it
// without the propagation. The tree makes the pictures of the boxes itself and replaces the state image list when its
// first notification comes, that is before it is painted. Its parent must be a window of the framework, because
// NM_CLICK and TVN_KEYDOWN are reflected; the parent gets STATETREEN_CLICK and STATETREEN_CHECKCHANGED in their place
// and may change or destroy the tree in both. TVS_CHECKBOXES is added where it is missing.
//
// Null items are accepted and do nothing.
#pragma once

#include <afxwin.h>
#include <afxcmn.h>

#include "base/ZnktApi.h"
#include "tree/CheckStates.h"

class CToggleGuard;

class ZNKT_API CStateTreeCtrl : public CTreeCtrl
{
public:
    CStateTreeCtrl();
    virtual ~CStateTreeCtrl();

    // Gives an item and all below it a box that can be checked, unchecked (1), or the sign of a disabled one (0). What
    // was checked before is lost; ancestors stay as they are.
    void EnableCheck(HTREEITEM hItem, int bEnable);

    // Lets relatives change an item and all below it again (1), which unchecks them, or fixes them (0). Ancestors stay
    // as they are.
    void EnableChangeOtherItemState(HTREEITEM hItem, int bEnable);

    // Checks (1) or unchecks (0) an item with its subtree, and recomputes its ancestors. A fixed item becomes an
    // ordinary one. Answers 0 and changes nothing where the item is disabled, otherwise whether the item could be set.
    int SetCheck(HTREEITEM hItem, int bCheck);

    // The next item of any tree in depth-first pre-order; null after the last.
    static HTREEITEM GetNextTreeItem(const CTreeCtrl& tree, HTREEITEM hItem);

protected:
    DECLARE_MESSAGE_MAP()

    virtual void PreSubclassWindow();
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);

    void ChangeChildItemState(HTREEITEM hItem, int bCheck);
    void ChangeParentItemState(HTREEITEM hItem);
    // The caller deletes the bitmap.
    CBitmap* CreateCheckBoxBitmap(int nState);

    afx_msg void OnClick(NMHDR* notification, LRESULT* result);
    afx_msg void OnKeydown(NMHDR* notification, LRESULT* result);

private:
    CStateTreeCtrl(const CStateTreeCtrl&);
    CStateTreeCtrl& operator=(const CStateTreeCtrl&);

    enum
    {
        IMAGES = 6
    };

    void CreateImageList();
    void DrawImages();
    void AddImage(int index, int value);
    void ReassertImageList(int fewest);

    int GetValue(HTREEITEM item) const;
    int GetValue(HTREEITEM item, bool& mayHaveChildren) const;
    BOOL SetValue(HTREEITEM item, int value);
    void SetSubtree(HTREEITEM item, int value);
    int FindParentValue(HTREEITEM parent, int knownChildValue);

    HTREEITEM FindToggled(UINT message, WPARAM wParam, LPARAM lParam) const;
    void WatchChange(UINT message, LPARAM lParam);

    CImageList m_imageList;
    int m_bImageListCreated;
    CBitmap* m_pBitmaps[IMAGES];
    CToggleGuard* m_toggleGuard; // of the innermost input message that is being worked on
    bool m_nativeCountsChildren; // nobody told the tree which items have children
    unsigned int m_deletions;    // number of items that were deleted
};
