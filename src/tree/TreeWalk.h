// Walks the subtree of an item in depth-first pre-order, without recursion and with as few messages as possible: in a
// large tree the messages are what takes the time.
//
//     CTreeWalk walk(tree, root);
//     for (HTREEITEM item = walk.First(); item != NULL; item = walk.Next(item))
//         ...
//
// The tree must keep its items while it is walked.
#pragma once

#include <vector>

#include <afxwin.h>
#include <afxcmn.h>

class CTreeWalk
{
public:
    // The items below `root`, which is not visited itself. Null walks the whole tree.
    CTreeWalk(const CTreeCtrl& tree, HTREEITEM root) : m_tree(tree), m_root(root) {}

    HTREEITEM First() const;

    // The item after the one that First or Next answered last, null at the end. Its children are left out where
    // `descend` is false.
    HTREEITEM Next(HTREEITEM item, bool descend = true);

private:
    CTreeWalk(const CTreeWalk&);
    CTreeWalk& operator=(const CTreeWalk&);

    const CTreeCtrl& m_tree;
    HTREEITEM m_root;
    std::vector<HTREEITEM> m_ancestors; // between the root and the item, both left out
};

// The first child of an item; the first item of the tree where `parent` is null.
HTREEITEM FirstChild(const CTreeCtrl& tree, HTREEITEM parent);
