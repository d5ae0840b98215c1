#include "tree/CheckRules.h"

int CheckedValue(bool check)
{
    return check ? STATE_CHECKED : STATE_UNCHECKED;
}

ChildRule RuleForChild(int value, int target)
{
    const bool skipped = value == target || value == STATE_DISABLED;
    const ChildRule rule = {!skipped && value != STATE_FIXED, !skipped};
    return rule;
}

bool ChecksWhenToggled(int value)
{
    return value == STATE_NONE || value == STATE_UNCHECKED;
}

bool TakesClicks(int value)
{
    return value != STATE_DISABLED && value != STATE_FIXED;
}

void CChildCount::Add(int value)
{
    if (value == STATE_NONE || value == STATE_UNCHECKED || value == STATE_PARTIAL)
        m_unchecked = true;
    if (value == STATE_CHECKED || value == STATE_PARTIAL)
        m_checked = true;
}

int CChildCount::ParentValue() const
{
    if (!m_checked)
        return STATE_UNCHECKED;
    return m_unchecked ? STATE_PARTIAL : STATE_CHECKED;
}
