// The rules of the wait dialog that need no window: which lines are shown, the time, sizes and places.
#include "suite/ZNWaitDlgDll/WaitLayout.h"
#include "suite/ZNWaitDlgDll/WaitText.h"

#include <gtest/gtest.h>

using namespace wait;

namespace
{

std::wstring Numbered(int first, int last)
{
    std::wstring text;
    for (int i = first; i <= last; ++i)
        text += (i == first ? L"" : L"\n") + std::to_wstring(i);
    return text;
}

Metrics MetricsOf(int dpi)
{
    Metrics metrics;
    metrics.dpi = dpi;
    metrics.headingHeight = 18 * dpi / 96;
    metrics.lineHeight = 16 * dpi / 96;
    return metrics;
}

const RECT kScreen = {0, 0, 1280, 960};
const SIZE kSize = {400, 200};

} // namespace

TEST(WaitText, KeepsTheLastLines)
{
    struct Row
    {
        const char* name;
        std::wstring text;
        std::wstring kept;
    };
    const Row rows[] = {
        {"empty", L"", L""},
        {"one line", L"one", L"one"},
        {"two lines", L"one\ntwo", L"one\ntwo"},
        {"an empty line at the end", L"one\n", L"one\n"},
        {"empty lines between", L"\n\na", L"\n\na"},
        {"line ends of two characters", L"one\r\ntwo\r\n", L"one\ntwo\n"},
        {"as many as fit", Numbered(1, kMostLines), Numbered(1, kMostLines)},
        {"one more", Numbered(1, kMostLines + 1), Numbered(2, kMostLines + 1)},
        {"thousands", Numbered(1, 10000), Numbered(10001 - kMostLines, 10000)},
        {"per cent signs", L"%s %n\n%% %", L"%s %n\n%% %"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(row.kept, LastLines(row.text.c_str())) << row.name;
}

TEST(WaitText, FindsTheEndOfATextOfAnyLengthAtAnyAddress)
{
    const std::wstring text(40, L'x');
    for (size_t offset = 0; offset < 16; ++offset)
    {
        for (size_t length = 0; length + offset <= text.size(); ++length)
        {
            std::wstring copy = text;
            copy[offset + length < copy.size() ? offset + length : copy.size() - 1] = L'\0';
            const wchar_t* const begin = copy.c_str() + offset;
            EXPECT_EQ(std::wstring(begin), LastLines(begin)) << offset << "+" << length;
        }
    }
}

TEST(WaitText, NullIsNoText)
{
    EXPECT_EQ(L"", LastLines(nullptr));
}

TEST(WaitText, CutsLinesThatNoWindowCouldShow)
{
    const std::wstring most(kLongestLine, L'x');
    EXPECT_EQ(most, LastLines(most.c_str()));
    EXPECT_EQ(L"a\n" + most + L"\nb", LastLines((L"a\n" + most + L"yyy\nb").c_str()));
}

TEST(WaitText, CountsLines)
{
    EXPECT_EQ(0, CountLines(L""));
    EXPECT_EQ(1, CountLines(L"a"));
    EXPECT_EQ(2, CountLines(L"a\n"));
    EXPECT_EQ(3, CountLines(L"a\n\nb"));
}

TEST(WaitText, TellsTheTime)
{
    EXPECT_EQ(L"\u5DF2\u7528\u65F6\u95F4 0:00", ElapsedText(999));
    EXPECT_EQ(L"\u5DF2\u7528\u65F6\u95F4 0:12", ElapsedText(12345));
    EXPECT_EQ(L"\u5DF2\u7528\u65F6\u95F4 59:59", ElapsedText(3599999));
    EXPECT_EQ(L"\u5DF2\u7528\u65F6\u95F4 1:00:00", ElapsedText(3600000));
    EXPECT_EQ(L"\u5DF2\u7528\u65F6\u95F4 27:46:40", ElapsedText(100000000));
}

TEST(WaitLayout, GrowsByOneLineHeightALine)
{
    const Metrics metrics = MetricsOf(96);
    const Layout two = LayOut(metrics, 2);
    const Layout three = LayOut(metrics, 3);
    EXPECT_EQ(two.size.cy + metrics.lineHeight, three.size.cy);
    EXPECT_EQ(two.size.cx, three.size.cx);
    EXPECT_EQ(3 * metrics.lineHeight, three.lines.bottom - three.lines.top);
}

TEST(WaitLayout, HasRoomForOneLineFromTheStart)
{
    EXPECT_EQ(LayOut(MetricsOf(96), 1).size.cy, LayOut(MetricsOf(96), 0).size.cy);
}

TEST(WaitLayout, GrowsWithTheResolutionOfTheScreen)
{
    EXPECT_EQ(15, Scaled(10, 144));
    const Layout usual = LayOut(MetricsOf(96), 2);
    const Layout fine = LayOut(MetricsOf(192), 2);
    EXPECT_EQ(2 * usual.size.cx, fine.size.cx);
    EXPECT_EQ(2 * usual.size.cy, fine.size.cy);
    EXPECT_EQ(2 * usual.cancel.top, fine.cancel.top);
}

TEST(WaitLayout, PlacesNothingOverAnotherThing)
{
    for (int dpi : {96, 120, 144, 192})
    {
        for (int lines : {0, 1, kMostLines})
        {
            const Layout layout = LayOut(MetricsOf(dpi), lines);
            EXPECT_LT(layout.heading.bottom, layout.lines.top);
            EXPECT_LT(layout.lines.bottom, layout.bar.top);
            EXPECT_LT(layout.bar.bottom, layout.footer.top);
            EXPECT_LT(layout.elapsed.right, layout.cancel.left);
            EXPECT_GE(layout.cancel.top, layout.footer.top);
            EXPECT_LE(layout.cancel.bottom, layout.footer.bottom);
            EXPECT_EQ(layout.size.cy, layout.footer.bottom);
            EXPECT_EQ(layout.size.cx, layout.footer.right);
        }
    }
}

TEST(WaitLayout, IsCentredAndStaysOnTheScreen)
{
    struct Row
    {
        const char* name;
        RECT over;
        POINT expected;
    };
    const Row rows[] = {
        {"in the middle", {100, 100, 900, 700}, {300, 300}},   {"smaller window", {600, 400, 700, 450}, {450, 325}},
        {"at the left edge", {-300, 100, 100, 500}, {0, 200}}, {"below the screen", {400, 900, 800, 1300}, {400, 760}},
        {"right above", {1200, -300, 1600, 0}, {880, 0}},
    };
    for (const Row& row : rows)
    {
        const POINT place = CentredOver(row.over, kSize, kScreen);
        EXPECT_EQ(row.expected.x, place.x) << row.name;
        EXPECT_EQ(row.expected.y, place.y) << row.name;
    }
}

TEST(WaitLayout, AWindowLargerThanTheScreenKeepsItsUpperLeftCorner)
{
    const POINT place = CentredOver(kScreen, {2000, 1200}, kScreen);
    EXPECT_EQ(0, place.x);
    EXPECT_EQ(0, place.y);
}

TEST(WaitLayout, TheBarMovesFromLeftToRightAndComesAgain)
{
    const int width = 300;
    Span former = MovingPart(width, 0);
    EXPECT_EQ(former.left, former.right) << "it enters";
    for (unsigned long long time = 50; time < 1800; time += 50)
    {
        const Span span = MovingPart(width, time);
        EXPECT_GE(span.left, former.left) << time;
        EXPECT_GT(span.left + span.right, former.left + former.right) << time;
        EXPECT_GE(span.left, 0);
        EXPECT_LE(span.right, width);
        former = span;
    }
    EXPECT_EQ(0, MovingPart(width, 1800).right);
}
