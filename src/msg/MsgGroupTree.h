// The tree of message groups: a root that stands for all messages, and one child per group.
//
// The group of a child is kept beside the item, so that names of any length come back as they were given.
#pragma once

#include <afxwin.h>
#include <afxcmn.h>

class CMsgGroupTree : public CTreeCtrl
{
public:
    // Attaches the images of root and groups from the module's resources; the control must exist.
    void LoadImages();

    // Replaces everything. Selects the group that equals `wanted` without regard to letter case, else the root.
    void ShowGroups(const CStringArray& groups, const CString& wanted);

    // The selected group; "" when nothing or the root is selected.
    CString GetSelectedGroup() const;

    // Whether all messages are meant: nothing or the root is selected.
    bool ShowsAll() const;

    // Takes the group's item away, if there is one.
    void RemoveGroup(const CString& group);

private:
    HTREEITEM InsertGroup(HTREEITEM root, INT_PTR index);
    CString GroupOf(HTREEITEM item) const;

    CImageList m_images;
    CStringArray m_groups;
};
