// The icon tree: marks between the image and the label of an item.
#pragma once

#include "../GalleryPage.h"

// [show]
#include <AddedIconTreeCtrl.h>
#include <MFCUtils.h>
#include <TreeItemImages.h>
// [end]

class CIconTreePage : public CGalleryPage
{
public:
    static const wchar_t Description[];

    CIconTreePage();

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;

private:
    HTREEITEM Add(const wchar_t* name, HTREEITEM parent,
                  std::initializer_list<int> marks);
    void LoadMarks();

    // [show]
    CImageList m_marks; // 须与树同在
    CAddedIconTreeCtrl m_tree;
    // [end]
};
