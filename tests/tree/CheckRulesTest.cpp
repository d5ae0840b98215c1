// The rules of check values as tables.
#include "tree/CheckRules.h"

#include <gtest/gtest.h>

#include <vector>

namespace
{

const std::vector<int> kAllValues = {STATE_NONE,    STATE_UNCHECKED, STATE_CHECKED,
                                     STATE_PARTIAL, STATE_DISABLED,  STATE_FIXED};

int ParentOf(const std::vector<int>& children)
{
    CChildCount count;
    for (int child : children)
        count.Add(child);
    return count.ParentValue();
}

} // namespace

TEST(CheckRules, TheValuesAreTheStateImages)
{
    EXPECT_EQ((std::vector<int>{0, 1, 2, 3, 4, 5}), kAllValues);
}

TEST(CheckRules, CheckedIsTwoAndUncheckedOne)
{
    EXPECT_EQ(2, CheckedValue(true));
    EXPECT_EQ(1, CheckedValue(false));
}

TEST(CheckRules, WhatHappensToADescendant)
{
    struct Row
    {
        const char* name;
        int value;
        int target;
        bool set;
        bool descend;
    };
    const Row rows[] = {
        {"no box, to checked", 0, 2, true, true},     {"no box, to unchecked", 0, 1, true, true},
        {"unchecked, to checked", 1, 2, true, true},  {"unchecked already", 1, 1, false, false},
        {"checked already", 2, 2, false, false},      {"checked, to unchecked", 2, 1, true, true},
        {"partial, to checked", 3, 2, true, true},    {"partial, to unchecked", 3, 1, true, true},
        {"disabled, to checked", 4, 2, false, false}, {"disabled, to unchecked", 4, 1, false, false},
        {"fixed, to checked", 5, 2, false, true},     {"fixed, to unchecked", 5, 1, false, true},
    };
    for (const Row& row : rows)
    {
        const ChildRule rule = RuleForChild(row.value, row.target);
        EXPECT_EQ(row.set, rule.set) << row.name;
        EXPECT_EQ(row.descend, rule.descend) << row.name;
    }
}

TEST(CheckRules, WhatTheChildrenMakeOfTheirParent)
{
    struct Row
    {
        const char* name;
        std::vector<int> children;
        int parent;
    };
    const Row rows[] = {
        {"no children", {}, 1},
        {"one unchecked", {1}, 1},
        {"one without a box", {0}, 1},
        {"one checked", {2}, 2},
        {"one partial counts as both", {3}, 3},
        {"one disabled counts as none", {4}, 1},
        {"one fixed counts as none", {5}, 1},
        {"disabled and fixed", {4, 5, 4}, 1},
        {"all checked", {2, 2, 2}, 2},
        {"all unchecked", {1, 1}, 1},
        {"checked and unchecked", {2, 1}, 3},
        {"unchecked and checked", {1, 2}, 3},
        {"checked and no box", {2, 0}, 3},
        {"checked, the rest disabled", {4, 2, 4}, 2},
        {"checked, the rest fixed", {5, 2}, 2},
        {"unchecked, the rest disabled", {4, 1}, 1},
        {"partial among checked", {2, 3, 2}, 3},
        {"partial among unchecked", {1, 3}, 3},
    };
    for (const Row& row : rows)
        EXPECT_EQ(row.parent, ParentOf(row.children)) << row.name;
}

TEST(CheckRules, TheCountIsDecidedWhenBothKindsWereSeen)
{
    CChildCount count;
    for (int value : {4, 5, 2, 2})
    {
        count.Add(value);
        EXPECT_FALSE(count.IsDecided());
    }
    count.Add(1);
    EXPECT_TRUE(count.IsDecided());
    CChildCount partial;
    partial.Add(3);
    EXPECT_TRUE(partial.IsDecided());
}

TEST(CheckRules, AToggleChecksOnlyWhatIsUnchecked)
{
    const bool expected[] = {true, true, false, false, false, false};
    for (int value : kAllValues)
        EXPECT_EQ(expected[value], ChecksWhenToggled(value)) << value;
}

TEST(CheckRules, TheBoxesOfDisabledAndFixedItemsTakeNoClicks)
{
    const bool expected[] = {true, true, true, true, false, false};
    for (int value : kAllValues)
        EXPECT_EQ(expected[value], TakesClicks(value)) << value;
}
