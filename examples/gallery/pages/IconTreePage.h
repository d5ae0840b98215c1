// The icon tree: marks between the image and the label of an item.
#pragma once

#include "../GalleryPage.h"

#include <AddedIconTreeCtrl.h>

class CIconTreePage : public CGalleryPage
{
public:
    static const wchar_t Description[];
    static const wchar_t Code[];

    CIconTreePage();

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;

private:
    HTREEITEM Add(const wchar_t* name, HTREEITEM parent, std::initializer_list<int> marks);
    void LoadMarks();

    CImageList m_marks;
    CAddedIconTreeCtrl m_tree;
};
