// What the store offers inside the module.
#include "StoreFixture.h"

#include <numeric>

namespace
{

class MessageStore : public StoreFixture
{
protected:
    static void AddMany(int count)
    {
        for (int i = 0; i < count; ++i)
            Add(i % 2 == 0 ? L"even" : L"odd", std::to_wstring(i).c_str());
    }

    static Texts Groups()
    {
        CStringArray groups;
        Store().CollectVisibleGroups(groups);
        Texts texts;
        for (INT_PTR i = 0; i < groups.GetSize(); ++i)
            texts.push_back(groups[i].GetString());
        return texts;
    }
};

} // namespace

TEST_F(MessageStore, IsMadeOnFirstUseAndStaysTheSame)
{
    CZNMsgManager& store = Store();
    EXPECT_EQ(0, store.GetCount());
    Add(L"g", L"t");
    EXPECT_EQ(&store, &CZNMsgManager::Instance());
    EXPECT_EQ(1, store.GetCount());
}

TEST_F(MessageStore, StartsAgainAtOneAfterItWasDestroyed)
{
    AddMany(3);
    CZNMsgManager::DestroyInstance();
    EXPECT_EQ(0, Store().GetCount());
    Add(L"g", L"t");
    EXPECT_EQ(1, Last().id);
}

TEST_F(MessageStore, DestroyingTwiceDoesNoHarm)
{
    CZNMsgManager::DestroyInstance();
    CZNMsgManager::DestroyInstance();
    EXPECT_EQ(0, Store().GetCount());
}

TEST_F(MessageStore, KeepsTheOrderOfAdding)
{
    AddMany(1000);
    CZNMsgArray messages;
    Store().CollectVisible(messages);
    ASSERT_EQ(1000, messages.GetSize());
    for (int i = 0; i < 1000; ++i)
    {
        EXPECT_EQ(i + 1, messages[i].id);
        EXPECT_EQ(std::to_wstring(i), messages[i].text.GetString());
    }
}

TEST_F(MessageStore, FindsByIdentifier)
{
    AddMany(5);
    CZNMsgData data;
    ASSERT_TRUE(Store().Find(3, data));
    EXPECT_STREQ(L"2", data.text);
    ASSERT_TRUE(Store().Find(1, data));
    ASSERT_TRUE(Store().Find(5, data));
    EXPECT_STREQ(L"4", data.text);
}

TEST_F(MessageStore, DoesNotFindWhatIsNotThere)
{
    CZNMsgData data;
    data.id = 77;
    EXPECT_FALSE(Store().Find(1, data));
    AddMany(3);
    EXPECT_FALSE(Store().Find(0, data));
    EXPECT_FALSE(Store().Find(4, data));
    EXPECT_FALSE(Store().Find(-1, data));
    EXPECT_EQ(77, data.id);
}

TEST_F(MessageStore, ReceivesCopies)
{
    AddMany(1);
    CZNMsgData data;
    ASSERT_TRUE(Store().Find(1, data));
    data.text = L"changed";
    EXPECT_EQ(Texts{L"0"}, VisibleTexts());
}

TEST_F(MessageStore, RemovesByIdentifierOnce)
{
    AddMany(3);
    EXPECT_TRUE(Store().Remove(2));
    EXPECT_FALSE(Store().Remove(2));
    EXPECT_EQ((Texts{L"0", L"2"}), VisibleTexts());
    EXPECT_EQ(0, Store().CountVisible(L"odd"));
    EXPECT_EQ(2, Store().CountVisible(L"even"));
    CZNMsgData data;
    EXPECT_TRUE(Store().Find(3, data));
}

TEST_F(MessageStore, RemovesManyByIdentifierInAnyOrder)
{
    AddMany(6);
    Store().Remove({6, 99, 1, 3, 3});
    EXPECT_EQ((Texts{L"1", L"3", L"4"}), VisibleTexts());
    EXPECT_EQ(2, Store().CountVisible(L"odd"));
    EXPECT_EQ(1, Store().CountVisible(L"even"));
}

TEST_F(MessageStore, RemovesByGroupKeepingTheOrderOfTheRest)
{
    AddMany(7);
    EXPECT_TRUE(Store().RemoveGroup(L"EVEN", true));
    EXPECT_EQ((Texts{L"1", L"3", L"5"}), VisibleTexts());
    EXPECT_EQ(0, Store().CountVisible(L"even"));
}

TEST_F(MessageStore, RemovesByDocument)
{
    AcApDocument* const first = arxhost::NewDocument();
    Add(L"g", L"first", true);
    Add(L"g", L"everywhere");
    AcApDocument* const second = arxhost::NewDocument();
    Add(L"g", L"second", true);

    EXPECT_TRUE(Store().RemoveDocument(first, false));
    EXPECT_EQ((Texts{L"everywhere", L"second"}), VisibleTexts());
    EXPECT_FALSE(Store().RemoveDocument(first, false));
    EXPECT_TRUE(Store().RemoveDocument(first, true));
    EXPECT_EQ(Texts{L"second"}, VisibleTexts());
    EXPECT_TRUE(Store().RemoveDocument(second, true));
    EXPECT_EQ(0, Store().GetCount());
}

TEST_F(MessageStore, RemovesWhatBelongsToNoDocument)
{
    arxhost::NewDocument();
    Add(L"g", L"of a drawing", true);
    Add(L"g", L"everywhere");
    EXPECT_TRUE(Store().RemoveDocument(NULL, false));
    EXPECT_EQ(Texts{L"of a drawing"}, VisibleTexts());
    EXPECT_FALSE(Store().RemoveDocument(NULL, true));
    EXPECT_EQ(1, Store().CountVisible(L"g"));
}

TEST_F(MessageStore, CollectsTheVisibleOfAGroup)
{
    arxhost::NewDocument();
    Add(L"Check", L"hidden", true);
    arxhost::NewDocument();
    Add(L"check", L"one", true);
    Add(L"other", L"two", true);
    Add(L"CHECK", L"three");
    CZNMsgArray messages;
    EXPECT_TRUE(Store().CollectVisible(L"cHeck", messages));
    EXPECT_EQ((Texts{L"one", L"three"}), TextsOf(messages));
}

TEST_F(MessageStore, CollectingANullOrUnknownGroupCopiesNothing)
{
    Add(L"", L"without a group");
    CZNMsgArray messages;
    EXPECT_FALSE(Store().CollectVisible(static_cast<const wchar_t*>(NULL), messages));
    EXPECT_EQ(0, messages.GetSize());
    EXPECT_FALSE(Store().CollectVisible(L"unknown", messages));
    EXPECT_TRUE(Store().CollectVisible(L"", messages));
    EXPECT_EQ(1, messages.GetSize());
}

TEST_F(MessageStore, CollectingReplacesWhatTheArrayHeld)
{
    CZNMsgArray messages;
    messages.SetSize(5);
    AddMany(2);
    Store().CollectVisible(messages);
    EXPECT_EQ((Texts{L"0", L"1"}), TextsOf(messages));
    EXPECT_TRUE(Store().CollectVisible(L"odd", messages));
    EXPECT_EQ(Texts{L"1"}, TextsOf(messages));
    EXPECT_FALSE(Store().CollectVisible(L"unknown", messages));
    EXPECT_EQ(0, messages.GetSize());
}

TEST_F(MessageStore, ListsGroupsNewestFirstSpelledAsInTheNewestMessage)
{
    Add(L"beta", L"1");
    Add(L"Alpha", L"2");
    Add(L"BETA", L"3");
    Add(L"gamma", L"4");
    Add(L"alpha", L"5");
    EXPECT_EQ((Texts{L"alpha", L"gamma", L"BETA"}), Groups());
}

TEST_F(MessageStore, ListsGroupsOfVisibleMessagesOnly)
{
    arxhost::NewDocument();
    Add(L"hidden", L"1", true);
    arxhost::NewDocument();
    Add(L"shown", L"2", true);
    Add(L"", L"3");
    EXPECT_EQ((Texts{L"", L"shown"}), Groups());
}

TEST_F(MessageStore, RecordsAreCopiedDeeply)
{
    CZNMsgData first;
    first.objectIds.append(AcDbObjectId());
    CZNMsgData second(first);
    first.objectIds.append(AcDbObjectId());
    EXPECT_EQ(1, second.objectIds.length());
    second = first;
    EXPECT_EQ(2, second.objectIds.length());
}

TEST_F(MessageStore, TellsThatRecordsWereRemoved)
{
    AddMany(4);
    const unsigned int before = Store().GetRemovals();
    AddMany(1);
    EXPECT_EQ(before, Store().GetRemovals());
    Store().Remove(1);
    EXPECT_NE(before, Store().GetRemovals());
    const unsigned int afterOne = Store().GetRemovals();
    Store().RemoveGroup(L"odd", true);
    EXPECT_NE(afterOne, Store().GetRemovals());
    const unsigned int afterGroup = Store().GetRemovals();
    Store().RemoveAll();
    EXPECT_NE(afterGroup, Store().GetRemovals());
}

// 200,000 additions and removals in one sitting: a quadratic step anywhere would show as a test that times out.
TEST_F(MessageStore, HoldsManyMessages)
{
    const int count = 200000;
    AddMany(count);
    EXPECT_EQ(count / 2, Store().CountVisible(L"odd"));
    CZNMsgData data;
    EXPECT_TRUE(Store().Find(count, data));
    std::vector<int> ids(count / 4);
    std::iota(ids.begin(), ids.end(), 1);
    Store().Remove(ids);
    EXPECT_EQ(count - count / 4, Store().GetCount());
    EXPECT_TRUE(Store().RemoveGroup(L"odd", true));
    EXPECT_EQ(count / 2 - count / 8, Store().GetCount());
    AddMany(1);
    EXPECT_EQ(count + 1, Last().id);
}
