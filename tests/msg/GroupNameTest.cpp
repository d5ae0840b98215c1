// When group names are the same, and that nothing changes their order.
#include "msg/GroupName.h"

#include <gtest/gtest.h>

#include <clocale>
#include <string>
#include <vector>

namespace
{

struct Pair
{
    const char* name;
    const wchar_t* left;
    const wchar_t* right;
};

const Pair kSame[] = {
    {"both empty", L"", L""},
    {"letter case", L"Check", L"cHECK"},
    {"the ends of the alphabet", L"az", L"AZ"},
    {"no letters", L"图层检查 100%_[1]", L"图层检查 100%_[1]"},
    {"letters between others", L"图层Check检查", L"图层cHECK检查"},
    {"accents", L"ÄÉØ", L"äéø"},
    {"Cyrillic", L"ПРОВЕРКА", L"проверка"},
    {"Greek", L"ΈΛΕΓΧΟΣ", L"έλεγχοσ"},
    {"full width", L"ＣＨＥＣＫ", L"ｃｈｅｃｋ"},
};

// Left comes before right.
const Pair kOrdered[] = {
    {"the beginning of another", L"Check", L"checks"},
    {"empty", L"", L"a"},
    {"another letter", L"apple", L"BANANA"},
    {"a sign between capitals and small letters", L"az", L"A_"},
    {"an accent", L"e", L"É"},
    {"a blank at the end", L"a", L"a "},
    {"sharp s, which has no capital of one letter", L"MASSE", L"Maße"},
};

} // namespace

TEST(GroupName, LetterCaseMakesNoDifference)
{
    for (const Pair& pair : kSame)
    {
        EXPECT_EQ(0, CompareGroupNames(pair.left, pair.right)) << pair.name;
        EXPECT_EQ(0, CompareGroupNames(pair.right, pair.left)) << pair.name;
        EXPECT_FALSE(GroupNameLess()(pair.left, pair.right)) << pair.name;
    }
}

TEST(GroupName, OtherNamesHaveAnOrder)
{
    for (const Pair& pair : kOrdered)
    {
        EXPECT_LT(CompareGroupNames(pair.left, pair.right), 0) << pair.name;
        EXPECT_GT(CompareGroupNames(pair.right, pair.left), 0) << pair.name;
        EXPECT_TRUE(GroupNameLess()(pair.left, pair.right)) << pair.name;
        EXPECT_FALSE(GroupNameLess()(pair.right, pair.left)) << pair.name;
    }
}

// An order that changed with the locale would lose groups that are kept by name.
TEST(GroupName, TheLocaleOfTheRuntimeMakesNoDifference)
{
    const std::string before = std::setlocale(LC_ALL, NULL);
    for (const char* const locale : {"C", "German", "Turkish", "Russian"})
    {
        if (std::setlocale(LC_ALL, locale) == NULL)
            continue;
        for (const Pair& pair : kSame)
            EXPECT_EQ(0, CompareGroupNames(pair.left, pair.right)) << pair.name << " in " << locale;
        for (const Pair& pair : kOrdered)
            EXPECT_LT(CompareGroupNames(pair.left, pair.right), 0) << pair.name << " in " << locale;
    }
    std::setlocale(LC_ALL, before.c_str());
}
