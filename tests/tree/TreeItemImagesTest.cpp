// The value that holds the added icons of an item.
#include "tree/TreeItemImages.h"

#include <gtest/gtest.h>

namespace
{

HICON SomeIcon()
{
    return reinterpret_cast<HICON>(static_cast<ULONG_PTR>(0x123456789AULL));
}

} // namespace

TEST(TreeItemImages, IsEmptyAtFirst)
{
    EXPECT_EQ(0, CTreeItemImages().GetCount());
}

TEST(TreeItemImages, TheSourcesHaveTheirNumbers)
{
    EXPECT_EQ(0, CTreeItemImages::IMG_ICONHANDLE);
    EXPECT_EQ(1, CTreeItemImages::IMG_TREELIST);
    EXPECT_EQ(2, CTreeItemImages::IMG_ADDEDLIST);
}

TEST(TreeItemImages, KeepsEntriesInTheOrderInWhichTheyWereAdded)
{
    CTreeItemImages images;
    images.AddIcon(SomeIcon());
    images.AddImage(7);
    images.AddImage(3, CTreeItemImages::IMG_ADDEDLIST);
    ASSERT_EQ(3, images.GetCount());
    EXPECT_EQ(0u, images.GetSource(0));
    EXPECT_EQ(SomeIcon(), images.GetIcon(0)) << "all 64 bits";
    EXPECT_EQ(1u, images.GetSource(1));
    EXPECT_EQ(7, images.GetIndex(1));
    EXPECT_EQ(2u, images.GetSource(2));
    EXPECT_EQ(3, images.GetIndex(2));
}

TEST(TreeItemImages, AnIndexIsNoIcon)
{
    CTreeItemImages images;
    images.AddImage(7);
    EXPECT_EQ(nullptr, images.GetIcon(0));
}

TEST(TreeItemImages, NegativeIndicesAndUnknownSourcesAreKept)
{
    CTreeItemImages images;
    images.AddImage(-1);
    images.AddImage(2, 99);
    EXPECT_EQ(-1, images.GetIndex(0));
    EXPECT_EQ(99u, images.GetSource(1));
}

TEST(TreeItemImages, AnIndexIsNeverTakenForAHandle)
{
    CTreeItemImages images;
    images.AddImage(2, CTreeItemImages::IMG_ICONHANDLE);
    EXPECT_EQ(1u, images.GetSource(0));
}

TEST(TreeItemImages, CopiesAreIndependent)
{
    CTreeItemImages first;
    first.AddImage(1);
    CTreeItemImages second(first);
    second.AddImage(2);
    CTreeItemImages third;
    third.AddIcon(SomeIcon());
    third = second;
    second.AddImage(3);
    EXPECT_EQ(1, first.GetCount());
    EXPECT_EQ(3, second.GetCount());
    ASSERT_EQ(2, third.GetCount());
    EXPECT_EQ(1u, third.GetSource(0));
    EXPECT_EQ(2, third.GetIndex(1));
}

TEST(TreeItemImages, IsAssignedToItself)
{
    CTreeItemImages images;
    images.AddImage(5);
    CTreeItemImages& same = images;
    images = same;
    ASSERT_EQ(1, images.GetCount());
    EXPECT_EQ(5, images.GetIndex(0));
}

TEST(TreeItemImages, ManyEntriesAreKept)
{
    CTreeItemImages images;
    for (int i = 0; i < 100; ++i)
        images.AddImage(i);
    ASSERT_EQ(100, images.GetCount());
    EXPECT_EQ(0, images.GetIndex(0));
    EXPECT_EQ(99, images.GetIndex(99));
}
