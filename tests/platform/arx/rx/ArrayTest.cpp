#include "acarray.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

typedef AcArray<int> Ints;
typedef AcArray<std::string, AcArrayObjectCopyReallocator<std::string>> Strings;

Ints Numbers(int count)
{
    Ints numbers;
    for (int i = 0; i < count; ++i)
    {
        numbers.append(i);
    }
    return numbers;
}

TEST(Array, StartsEmptyWithTheGrowLengthOfEight)
{
    const Ints numbers;
    EXPECT_TRUE(numbers.isEmpty());
    EXPECT_EQ(numbers.length(), 0);
    EXPECT_EQ(numbers.physicalLength(), 0);
    EXPECT_EQ(numbers.growLength(), 8);
}

TEST(Array, AppendGivesTheIndex)
{
    Ints numbers;
    EXPECT_EQ(numbers.append(7), 0);
    EXPECT_EQ(numbers.append(8), 1);
    EXPECT_EQ(numbers.last(), 8);
}

TEST(Array, GrowsByAtLeastTheGrowLength)
{
    Ints numbers(2, 10);
    EXPECT_EQ(numbers.physicalLength(), 2);
    numbers.append(1);
    numbers.append(2);
    EXPECT_EQ(numbers.physicalLength(), 2);
    numbers.append(3);
    EXPECT_GE(numbers.physicalLength(), 12);
}

TEST(Array, AppendsAnElementOfItself)
{
    Ints numbers = Numbers(8);
    numbers.setPhysicalLength(8);
    numbers.append(numbers[3]);
    EXPECT_EQ(numbers[8], 3);
    numbers.append(numbers);
    EXPECT_EQ(numbers.length(), 18);
    EXPECT_EQ(numbers[17], 3);
}

TEST(Array, InsertsAndRemovesInTheMiddle)
{
    Ints numbers = Numbers(4);
    numbers.insertAt(2, 9).insertAt(0, 8).insertAt(6, 7);
    const int expected[] = {8, 0, 1, 9, 2, 3, 7};
    ASSERT_EQ(numbers.length(), 7);
    for (int i = 0; i < 7; ++i)
    {
        EXPECT_EQ(numbers[i], expected[i]) << i;
    }
    numbers.removeAt(3).removeFirst().removeLast();
    EXPECT_TRUE(numbers == Numbers(4));
}

TEST(Array, RemovesASpan)
{
    Ints numbers = Numbers(6);
    numbers.removeSubArray(1, 4);
    ASSERT_EQ(numbers.length(), 2);
    EXPECT_EQ(numbers[1], 5);
    numbers.removeSubArray(1, 2);
    EXPECT_EQ(numbers.length(), 2);
}

TEST(Array, FindsByValue)
{
    Ints numbers = Numbers(5);
    int index = -7;
    EXPECT_EQ(numbers.find(3), 3);
    EXPECT_EQ(numbers.find(3, 4), -1);
    EXPECT_TRUE(numbers.contains(4));
    EXPECT_FALSE(numbers.find(99, index, 0));
    EXPECT_EQ(index, -7);
    EXPECT_TRUE(numbers.remove(2));
    EXPECT_FALSE(numbers.remove(2));
    EXPECT_EQ(numbers.length(), 4);
}

TEST(Array, CopiesAreDeep)
{
    Strings words;
    words.append("one");
    Strings copy(words);
    copy[0] = "two";
    EXPECT_EQ(words[0], "one");
    EXPECT_TRUE(words != copy);
}

TEST(Array, AssignmentKeepsALargeBuffer)
{
    Ints large(100);
    const int* const buffer = large.asArrayPtr();
    large = Numbers(3);
    EXPECT_EQ(large.asArrayPtr(), buffer);
    EXPECT_EQ(large.length(), 3);
    EXPECT_EQ(large.physicalLength(), 100);
}

TEST(Array, AssignmentTakesTheSourcesLengthWhenItMustGrow)
{
    Ints small(1);
    small = Numbers(5);
    EXPECT_EQ(small.physicalLength(), 5);
    Ints& same = small;
    small = same;
    EXPECT_TRUE(small == Numbers(5));
}

TEST(Array, MovesObjectsOneByOneOnRequest)
{
    Strings words;
    for (int i = 0; i < 50; ++i)
    {
        // Long and short texts: short ones point into themselves and must not be moved by bytes.
        words.insertAt(0, i % 2 == 0 ? "short" : std::string(100, 'x'));
    }
    words.removeAt(10).removeSubArray(20, 29);
    ASSERT_EQ(words.length(), 39);
    words.setAt(3, "set").swap(3, 38).reverse();
    EXPECT_EQ(words[0], "set");
}

TEST(Array, NewElementsAreZero)
{
    Ints numbers = Numbers(2);
    numbers.setLogicalLength(4);
    EXPECT_EQ(numbers[3], 0);
    numbers.setAll(6);
    EXPECT_EQ(numbers[0] + numbers[3], 12);
    numbers.removeAll();
    EXPECT_TRUE(numbers.isEmpty());
    EXPECT_GE(numbers.physicalLength(), 4);
}

TEST(Array, ShrinkingTheBufferDropsElements)
{
    Ints numbers = Numbers(6);
    numbers.setPhysicalLength(2);
    EXPECT_EQ(numbers.length(), 2);
    EXPECT_EQ(numbers.physicalLength(), 2);
    EXPECT_EQ(numbers[1], 1);
}

} // namespace
