#include "tree/TreeWalk.h"

HTREEITEM CTreeWalk::First() const
{
    return FirstChild(m_tree, m_root);
}

HTREEITEM CTreeWalk::Next(HTREEITEM item, bool descend)
{
    const HTREEITEM child = descend ? m_tree.GetChildItem(item) : NULL;
    if (child != NULL)
    {
        m_ancestors.push_back(item);
        return child;
    }
    for (;;)
    {
        const HTREEITEM sibling = m_tree.GetNextSiblingItem(item);
        if (sibling != NULL || m_ancestors.empty())
            return sibling;
        item = m_ancestors.back();
        m_ancestors.pop_back();
    }
}

HTREEITEM FirstChild(const CTreeCtrl& tree, HTREEITEM parent)
{
    return parent == NULL ? tree.GetRootItem() : tree.GetChildItem(parent);
}
