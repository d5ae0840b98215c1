// What the gallery's search finds, and the code that it cuts out of sources.
#include "gallery/GalleryCode.h"
#include "gallery/GalleryFilter.h"
#include "gallery/GalleryPages.h"

#include <gtest/gtest.h>

namespace
{

const GalleryEntry kPage = {L"sort-list",
                            L"列表",
                            L"可排序列表",
                            L"单击 Column 标题即可排序",
                            L"#include <ZNSortListCtrl.h>\nm_list.SortColumn(1);",
                            nullptr};

struct SearchRow
{
    const char* what;
    const wchar_t* search;
    bool found;
};

class GallerySearch : public testing::TestWithParam<SearchRow>
{
};

} // namespace

TEST_P(GallerySearch, FindsThePage)
{
    EXPECT_EQ(GetParam().found, MatchesSearch(kPage, GetParam().search)) << GetParam().what;
}

INSTANTIATE_TEST_SUITE_P(Words, GallerySearch,
                         testing::Values(SearchRow{"nothing", L"", true}, SearchRow{"blanks", L" \t\x3000", true},
                                         SearchRow{"part of the title", L"排序列", true},
                                         SearchRow{"the group", L"列表", true},
                                         SearchRow{"the name in capitals", L"SORT", true},
                                         SearchRow{"a word of the description", L"column", true},
                                         SearchRow{"two words in any order", L"标题 sort", true},
                                         SearchRow{"two words parted by a wide blank", L"标题\x3000sort", true},
                                         SearchRow{"one word that is missing", L"sort 树", false},
                                         SearchRow{"a header", L"ZNSortListCtrl.h", true},
                                         SearchRow{"a function of the code", L"sortcol", true},
                                         SearchRow{"the middle of a name in the code", L"_list", false},
                                         SearchRow{"the end of a name in the code", L"ListCtrl.h", false},
                                         SearchRow{"a word of the text and one of the code", L"标题 m_list", true},
                                         SearchRow{"the end of one text and the start of the next", L"表列", false}));

namespace
{

struct CodeRow
{
    const char* what;
    const wchar_t* source;
    const wchar_t* shown;
};

class GalleryCode : public testing::TestWithParam<CodeRow>
{
};

} // namespace

TEST_P(GalleryCode, IsCutOutOfTheSource)
{
    EXPECT_STREQ(GetParam().shown, ShownLines(GetParam().source)) << GetParam().what;
}

INSTANTIATE_TEST_SUITE_P(
    Sources, GalleryCode,
    testing::Values(CodeRow{"nothing", L"", L""}, CodeRow{"no marks", L"int a;\nint b;\n", L""},
                    CodeRow{"one part", L"a\n// [show]\nb;\nc;\n// [end]\nd\n", L"b;\nc;\n"},
                    CodeRow{"two parts", L"// [show]\na;\n// [end]\nb;\n// [show]\nc;\n// [end]\n", L"a;\n\nc;\n"},
                    CodeRow{"indent that all lines have", L"  // [show]\n  if (a)\n    b;\n  // [end]\n",
                            L"if (a)\n  b;\n"},
                    CodeRow{"empty line in a part", L"  // [show]\n  a;\n\n  b;\n  // [end]\n", L"a;\n\nb;\n"},
                    CodeRow{"each part by its own indent",
                            L"// [show]\na;\n// [end]\n    // [show]\n    b;\n    // [end]\n", L"a;\n\nb;\n"},
                    CodeRow{"line ends of both kinds", L"// [show]\r\na;\r\n// [end]\r\n", L"a;\n"},
                    CodeRow{"the mark in other words", L"// about [show]\na;\n// [end]\n", L""},
                    CodeRow{"no end", L"// [show]\na;\n", L""}));
