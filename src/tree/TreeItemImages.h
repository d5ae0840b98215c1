// The row of icons that a CAddedIconTreeCtrl shows between the image and the label of an item, from left to right.
// A value: copies are independent. It never owns an icon or an image list.
#pragma once

#include <afxwin.h>
#include <afxtempl.h>

#include "base/ZnktApi.h"

class ZNKT_API CTreeItemImages
{
public:
    // Where an entry comes from. Any other value but 0 counts as the tree's list.
    enum
    {
        IMG_ICONHANDLE = 0, // an icon of the caller, which has to live as long as the entry is shown
        IMG_TREELIST = 1,   // an index in the tree's normal image list
        IMG_ADDEDLIST = 2   // an index in the added image list
    };

    CTreeItemImages();
    CTreeItemImages(const CTreeItemImages& source);
    CTreeItemImages& operator=(const CTreeItemImages& source);

    // Add an entry at the right end. Entries that turn out to be no icon when they are drawn take no room.
    void AddIcon(HICON icon);
    void AddImage(int index, unsigned int source = IMG_TREELIST);

    int GetCount() const;

    // What an entry was added with; `entry` from 0 to GetCount() - 1. The icon is null for an entry of a list.
    unsigned int GetSource(int entry) const;
    HICON GetIcon(int entry) const;
    int GetIndex(int entry) const;

private:
    void Add(ULONGLONG image, unsigned int source);

    CArray<ULONGLONG, ULONGLONG> m_arrImages;
    CArray<unsigned int, unsigned int> m_arrSources;
};
