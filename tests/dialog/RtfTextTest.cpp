// RTF as bytes: escapes, pieces of any size, texts that grow.
#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <string>
#include <vector>

#include "dialog/RtfText.h"

namespace
{

std::string ReadAll(const std::wstring& text, LONG piece)
{
    CRtfReader reader(text.c_str(), static_cast<int>(text.size()));
    std::string all;
    std::vector<BYTE> buffer(static_cast<size_t>(piece) + 1, 0xEE);
    for (LONG count = reader.Read(buffer.data(), piece); count > 0; count = reader.Read(buffer.data(), piece))
    {
        EXPECT_LE(count, piece) << "at most what was asked for";
        EXPECT_EQ(0xEE, buffer[static_cast<size_t>(piece)]) << "nothing behind the buffer";
        all.append(reinterpret_cast<const char*>(buffer.data()), static_cast<size_t>(count));
    }
    EXPECT_EQ(0, reader.Read(buffer.data(), piece)) << "the end stays the end";
    return all;
}

struct EscapeRow
{
    const char* name;
    const wchar_t* text;
    const char* bytes;
};

const EscapeRow kEscapes[] = {
    {"plain ASCII", L"{\\rtf1 a~}", "{\\rtf1 a~}"},
    {"the last ASCII character", L"\x7F", "\x7F"},
    {"the first beyond ASCII", L"\x80", "\\u128?"},
    {"a Latin letter", L"\xE9", "\\u233?"},
    {"a Chinese character", L"\x4E2D", "\\u20013?"},
    {"the last positive number", L"\x7FFF", "\\u32767?"},
    {"the first negative number", L"\x8000", "\\u-32768?"},
    {"the last unit", L"\xFFFF", "\\u-1?"},
    {"a pair of surrogates", L"\xD83D\xDE00", "\\u-10179?\\u-8704?"},
    {"between ASCII", L"a\x4E2Dz", "a\\u20013?z"},
    {"nothing", L"", ""},
};

} // namespace

TEST(RtfReader, CharactersBeyondAsciiBecomeEscapes)
{
    for (const EscapeRow& row : kEscapes)
        EXPECT_EQ(row.bytes, ReadAll(row.text, 100)) << row.name;
}

TEST(RtfReader, PiecesOfAnySizeMakeTheSameWhole)
{
    for (const EscapeRow& row : kEscapes)
    {
        for (const LONG piece : {1, 2, 3, 7, 4096})
            EXPECT_EQ(row.bytes, ReadAll(row.text, piece)) << row.name << " by " << piece;
    }
}

TEST(RtfReader, FillsTheBufferAsFarAsTheTextReaches)
{
    CRtfReader reader(L"abcdef", 6);
    BYTE buffer[8] = {};
    EXPECT_EQ(4, reader.Read(buffer, 4));
    EXPECT_EQ(2, reader.Read(buffer, 4));
    EXPECT_EQ('e', buffer[0]);
    EXPECT_EQ(0, reader.Read(buffer, 4));
}

TEST(RtfReader, AskedForNothingItGivesNothing)
{
    CRtfReader reader(L"a", 1);
    BYTE buffer[1] = {};
    EXPECT_EQ(0, reader.Read(buffer, 0));
    EXPECT_EQ(1, reader.Read(buffer, 1));
}

TEST(RtfReader, ReadsTheLengthGivenAndNotUpToAZero)
{
    EXPECT_EQ(std::string("a\0b", 3), ReadAll(std::wstring(L"a\0b", 3), 2));
    CRtfReader reader(L"abc", 2);
    BYTE buffer[8] = {};
    EXPECT_EQ(2, reader.Read(buffer, 8));
}

TEST(AppendRtf, AppendsPieceByPiece)
{
    CString text(L"{");
    AppendRtf(text, reinterpret_cast<const BYTE*>("\\rtf1"), 5);
    AppendRtf(text, reinterpret_cast<const BYTE*>(""), 0);
    AppendRtf(text, reinterpret_cast<const BYTE*>("}more"), 1);
    EXPECT_STREQ(L"{\\rtf1}", text);
}

TEST(AppendRtf, KeepsZerosAndHighBytes)
{
    CString text;
    const BYTE bytes[] = {'a', 0, 0xE9};
    AppendRtf(text, bytes, 3);
    ASSERT_EQ(3, text.GetLength());
    EXPECT_EQ(0, text[1]);
    EXPECT_EQ(0xE9, text[2]);
}

// The RTF of a long text of lines does not move while it is written.
TEST(AppendRtf, StaysWhereItIsInTheRoomThatWasMadeForIt)
{
    CString text;
    const int characters = 100000;
    ReserveRtf(text, characters);
    const wchar_t* const before = text;
    const BYTE piece[100] = {};
    for (int i = 0; i < (characters + characters / 5) / 100; ++i)
        AppendRtf(text, piece, 100);
    EXPECT_EQ(before, text.GetString());
    EXPECT_LT(text.GetAllocLength(), characters + characters / 3) << "little room stays unused";
}

TEST(AppendRtf, RoomForNoTextAtAllMakesNoTrouble)
{
    for (const int characters : {0, -1, INT_MIN})
    {
        CString text(L"{");
        ReserveRtf(text, characters);
        AppendRtf(text, reinterpret_cast<const BYTE*>("}"), 1);
        EXPECT_STREQ(L"{}", text);
    }
}

TEST(AppendRtf, MovesTheTextSeldomWhileItGrows)
{
    CString text;
    int moves = 0;
    const BYTE piece[100] = {};
    for (int i = 0; i < 10000; ++i)
    {
        const wchar_t* const before = text;
        AppendRtf(text, piece, 100);
        moves += before != text.GetString();
    }
    EXPECT_EQ(1000000, text.GetLength());
    EXPECT_LT(moves, 40) << "each move copies everything so far";
}
