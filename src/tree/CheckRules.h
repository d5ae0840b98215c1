// How check values of a tree depend on each other. No window is needed.
#pragma once

#include "tree/CheckStates.h"

// What checking (or unchecking) an item means for one of its descendants.
struct ChildRule
{
    bool set;     // it gets the new value itself
    bool descend; // its children are looked at as well
};

// The value that an item gets when it is checked or unchecked.
int CheckedValue(bool check);

// A descendant that has the new value already is skipped with all below it, because its subtree is taken to agree with
// it; so is a disabled one. A fixed one keeps its own value, but its descendants do not.
ChildRule RuleForChild(int value, int target);

// Whether a click or the space bar checks an item of that value; otherwise they uncheck it. A partial one is unchecked.
bool ChecksWhenToggled(int value);

// Whether the box of an item of that value takes clicks.
bool TakesClicks(int value);

// Counts children to find the value of their parent.
class CChildCount
{
public:
    CChildCount() : m_unchecked(false), m_checked(false) {}

    // A partial child counts as both, a disabled or fixed one as neither.
    void Add(int value);

    // More children cannot change the result any more.
    bool IsDecided() const { return m_unchecked && m_checked; }

    // Unchecked where no child counts.
    int ParentValue() const;

private:
    bool m_unchecked;
    bool m_checked;
};
