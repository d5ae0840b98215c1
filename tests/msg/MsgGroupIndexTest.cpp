// Counting without walking: names fold letter case, documents are apart, texts are shared.
#include <gtest/gtest.h>

#include "msg/MsgGroupIndex.h"

namespace
{

// The index never looks into a document: any address does.
AcApDocument* const kFirst = reinterpret_cast<AcApDocument*>(0x10);
AcApDocument* const kSecond = reinterpret_cast<AcApDocument*>(0x20);

} // namespace

TEST(MsgGroupIndex, CountsOwnAndUnboundMessages)
{
    CMsgGroupIndex index;
    index.Add(L"g", kFirst);
    index.Add(L"G", NULL);
    index.Add(L"g", kSecond);
    EXPECT_EQ(2, index.CountVisible(L"g", kFirst));
    EXPECT_EQ(2, index.CountVisible(L"g", kSecond));
    EXPECT_EQ(1, index.CountVisible(L"g", NULL));
    EXPECT_EQ(0, index.CountVisible(L"h", kFirst));
}

TEST(MsgGroupIndex, ForgetsAGroupWithItsLastMessage)
{
    CMsgGroupIndex index;
    index.Add(L"g", kFirst);
    index.Add(L"g", kFirst);
    index.Remove(L"G", kFirst);
    EXPECT_TRUE(index.Contains(L"g"));
    EXPECT_EQ(1, index.CountVisible(L"g", kFirst));
    index.Remove(L"g", kFirst);
    EXPECT_FALSE(index.Contains(L"g"));
}

TEST(MsgGroupIndex, RemovingWhatIsNotCountedDoesNoHarm)
{
    CMsgGroupIndex index;
    index.Remove(L"g", kFirst);
    index.Add(L"g", kFirst);
    index.Remove(L"g", kSecond);
    EXPECT_EQ(1, index.CountVisible(L"g", kFirst));
}

TEST(MsgGroupIndex, MessagesOfOneSpellingShareTheText)
{
    CMsgGroupIndex index;
    const CString first = index.Add(L"group", kFirst);
    const CString second = index.Add(L"group", kSecond);
    EXPECT_EQ(first.GetString(), second.GetString());
}

TEST(MsgGroupIndex, KeepsEverySpelling)
{
    CMsgGroupIndex index;
    EXPECT_STREQ(L"Group", index.Add(L"Group", kFirst));
    EXPECT_STREQ(L"GROUP", index.Add(L"GROUP", kFirst));
}

TEST(MsgGroupIndex, ClearsEverything)
{
    CMsgGroupIndex index;
    index.Add(L"g", NULL);
    index.Clear();
    EXPECT_FALSE(index.Contains(L"g"));
    EXPECT_EQ(0, index.CountVisible(L"g", NULL));
}
