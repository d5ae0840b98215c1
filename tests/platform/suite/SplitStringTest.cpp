#include <ZnQFCBaseU.h>

#include <gtest/gtest.h>

namespace
{
struct Row
{
    const char* name;
    const wchar_t* text;
    std::vector<const wchar_t*> parts;
};

const Row kRows[] = {
    {"no separator", L"abc", {L"abc"}},
    {"three parts", L"a;b;c", {L"a", L"b", L"c"}},
    {"empty part between", L"a;;b", {L"a", L"", L"b"}},
    {"separator at both ends", L";a;", {L"", L"a", L""}},
    {"separator alone", L";", {L"", L""}},
    {"blanks are kept", L" a ; b", {L" a ", L" b"}},
    {"Chinese", L"线;圆", {L"线", L"圆"}},
    {"empty text", L"", {}},
    {"null text", nullptr, {}},
};
} // namespace

TEST(SplitString, CutsAtEverySeparator)
{
    for (const Row& row : kRows)
    {
        CStringArray parts;
        parts.Add(L"left over");
        Tevrin::SplitString(row.text, L';', parts);
        ASSERT_EQ(int(row.parts.size()), int(parts.GetSize())) << row.name;
        for (size_t i = 0; i < row.parts.size(); ++i)
            EXPECT_STREQ(row.parts[i], parts[int(i)]) << row.name;
    }
}

TEST(SplitString, ASeparatorOfZeroLeavesTheTextWhole)
{
    CStringArray parts;
    Tevrin::SplitString(L"a;b", L'\0', parts);
    ASSERT_EQ(1, int(parts.GetSize()));
    EXPECT_STREQ(L"a;b", parts[0]);
}
