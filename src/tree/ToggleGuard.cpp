#include "tree/ToggleGuard.h"

CToggleGuard::CToggleGuard(CTreeCtrl& tree, CToggleGuard*& innermost, HTREEITEM item)
    : m_tree(&tree), m_innermost(&innermost), m_outer(innermost), m_item(item),
      m_wanted(tree.GetItemState(item, TVIS_STATEIMAGEMASK) & TVIS_STATEIMAGEMASK)
{
    innermost = this;
}

CToggleGuard::~CToggleGuard()
{
    if (m_tree == NULL)
        return;
    *m_innermost = m_outer;
    if (m_item == NULL || !::IsWindow(m_tree->m_hWnd))
        return;
    if ((m_tree->GetItemState(m_item, TVIS_STATEIMAGEMASK) & TVIS_STATEIMAGEMASK) != m_wanted)
        m_tree->SetItemState(m_item, m_wanted, TVIS_STATEIMAGEMASK);
}

void CToggleGuard::KeepNew(CToggleGuard* innermost, const TVITEM& change)
{
    if ((change.mask & TVIF_STATE) == 0)
        return;
    const UINT mask = change.stateMask & TVIS_STATEIMAGEMASK;
    for (CToggleGuard* guard = innermost; guard != NULL; guard = guard->m_outer)
    {
        if (guard->m_item == change.hItem)
            guard->m_wanted = (guard->m_wanted & ~mask) | (change.state & mask);
    }
}

void CToggleGuard::Forget(CToggleGuard* innermost, HTREEITEM item)
{
    for (CToggleGuard* guard = innermost; guard != NULL; guard = guard->m_outer)
    {
        if (guard->m_item == item)
            guard->m_item = NULL;
    }
}

void CToggleGuard::Abandon(CToggleGuard* innermost)
{
    for (CToggleGuard* guard = innermost; guard != NULL; guard = guard->m_outer)
        guard->m_tree = NULL;
}
