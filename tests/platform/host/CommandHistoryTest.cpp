// The commands typed so far.
#include "host/CommandHistory.h"

#include <gtest/gtest.h>

using arxhost::CommandHistory;

TEST(CommandHistory, BrowsesBackAndForward)
{
    CommandHistory history;
    history.Add(L"ZOOM E");
    history.Add(L"ERASE");
    EXPECT_EQ(L"ERASE", history.Previous());
    EXPECT_EQ(L"ZOOM E", history.Previous());
    EXPECT_EQ(L"ZOOM E", history.Previous()) << "stays at the oldest";
    EXPECT_EQ(L"ERASE", history.Next());
    EXPECT_EQ(L"", history.Next());
}

TEST(CommandHistory, SameLineTwiceIsKeptOnce)
{
    CommandHistory history;
    history.Add(L"ZOOM");
    history.Add(L"ERASE");
    history.Add(L"ERASE");
    EXPECT_EQ(L"ERASE", history.Previous());
    EXPECT_EQ(L"ZOOM", history.Previous());
}

TEST(CommandHistory, NewLineEndsBrowsing)
{
    CommandHistory history;
    history.Add(L"ZOOM");
    history.Add(L"ERASE");
    history.Previous();
    history.Previous();
    history.Add(L"PAN");
    EXPECT_EQ(L"PAN", history.Previous());
    EXPECT_EQ(L"PAN", history.Last());
}

TEST(CommandHistory, EmptyHistoryAnswersEmptyLines)
{
    CommandHistory history;
    EXPECT_EQ(L"", history.Previous());
    EXPECT_EQ(L"", history.Next());
    EXPECT_EQ(L"", history.Last());
}

TEST(CommandHistory, OldestLinesAreForgottenBeyondTheLimit)
{
    CommandHistory history;
    for (std::size_t i = 0; i <= CommandHistory::limit; ++i)
        history.Add(L"LINE" + std::to_wstring(i));
    std::wstring oldest;
    for (std::size_t i = 0; i <= CommandHistory::limit; ++i)
        oldest = history.Previous();
    EXPECT_EQ(L"LINE1", oldest);
}
