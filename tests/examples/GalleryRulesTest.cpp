// What the gallery's search finds, and where its controls lie.
#include "gallery/GalleryFilter.h"
#include "gallery/GalleryLayout.h"
#include "gallery/GalleryPages.h"

#include <gtest/gtest.h>

namespace
{

const GalleryEntry kPage = {L"sort-list", L"列表", L"可排序列表", L"单击 Column 标题即可排序", L"int code;", nullptr};

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
                                         SearchRow{"the code", L"int", false},
                                         SearchRow{"the end of one text and the start of the next", L"表列", false}));

TEST(GalleryLayout, ControlStaysMovesAndGrowsAsItsAnchorSays)
{
    const CRect place(10, 20, 110, 220);
    const CSize growth(30, 50);
    EXPECT_EQ(place, AnchoredRect(place, GALLERY_STAY, growth));
    EXPECT_EQ(CRect(10, 20, 140, 220), AnchoredRect(place, GALLERY_GROW_WIDTH, growth));
    EXPECT_EQ(CRect(10, 20, 110, 270), AnchoredRect(place, GALLERY_GROW_HEIGHT, growth));
    EXPECT_EQ(CRect(10, 70, 110, 270), AnchoredRect(place, GALLERY_MOVE_DOWN, growth));
    EXPECT_EQ(CRect(10, 70, 140, 270), AnchoredRect(place, GALLERY_MOVE_DOWN | GALLERY_GROW_WIDTH, growth));
}
