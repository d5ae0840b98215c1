// A tree whose items can show a row of extra icons between their image and their label.
//
//     CAddedIconTreeCtrl m_tree;                     // DDX_Control, or Create
//     m_tree.SetAddedImageList(&m_marks);            // stays the owner's
//     CTreeItemImages icons;
//     icons.AddImage(MARK_LOCKED, CTreeItemImages::IMG_ADDEDLIST);
//     icons.AddIcon(m_warning);
//     m_tree.SetAddedIcons(item, icons);
//
// The tree paints the labels of all items itself, black on white, the selected one white on blue. An item is selected
// as soon as the left button is pressed on any part of its row that belongs to it.
//
// The entry of an item stays when the item is deleted, and a later item may get the same handle: whoever deletes items
// calls RemoveAddedIcons or RemoveAllAddedIcons. Null items and items that do not exist are accepted. After a change of
// icons the owner invalidates the tree.
#pragma once

#include <afxwin.h>
#include <afxcmn.h>
#include <afxtempl.h>

#include "base/ZnktApi.h"
#include "tree/TreeItemImages.h"

class CIconPainter;

class ZNKT_API CAddedIconTreeCtrl : public CTreeCtrl
{
    DECLARE_DYNAMIC(CAddedIconTreeCtrl)

public:
    CAddedIconTreeCtrl();
    virtual ~CAddedIconTreeCtrl();

    virtual BOOL PreTranslateMessage(MSG* message);

    // The list that entries of IMG_ADDEDLIST index. Not owned; it has to live as long as the tree may be painted, or to
    // be taken away by null.
    void SetAddedImageList(CImageList* pList);
    CImageList* GetAddedImageList() const;

    // Replaces the icons of an item.
    void SetAddedIcons(HTREEITEM hItem, const CTreeItemImages& images);
    // A copy; empty where the item has none.
    CTreeItemImages GetAddedIcons(HTREEITEM hItem);
    void RemoveAddedIcons(HTREEITEM hItem);
    void RemoveAllAddedIcons();

protected:
    DECLARE_MESSAGE_MAP()

    afx_msg void OnPaint();
    afx_msg void OnVScroll(UINT code, UINT position, CScrollBar* scrollBar);
    afx_msg void OnHScroll(UINT code, UINT position, CScrollBar* scrollBar);
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);

private:
    CAddedIconTreeCtrl(const CAddedIconTreeCtrl&);
    CAddedIconTreeCtrl& operator=(const CAddedIconTreeCtrl&);

    typedef CMap<HTREEITEM, HTREEITEM, CTreeItemImages, const CTreeItemImages&> AddedIcons;

    void PaintItems(CDC& dc);
    void PaintItem(CDC& dc, CIconPainter& icons, HTREEITEM item, const CString& text);
    int PaintIcons(CIconPainter& icons, HTREEITEM item, CPoint place);
    int PaintEntry(CIconPainter& icons, const CTreeItemImages& images, int entry, CPoint place);
    void InvalidateAddedIcons();

    CImageList* m_pAddedImageList;
    AddedIcons m_mapAddedIcons;
};
