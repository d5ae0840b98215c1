// The exported message functions as a client module calls them.
#include "StoreFixture.h"

#include "Drawing.h"
#include "Wait.h"

#include <cwctype>

namespace
{

class MessageService : public StoreFixture
{
};

} // namespace

TEST_F(MessageService, TypesHaveTheValuesThatClientsStore)
{
    EXPECT_EQ(0, KTMsgWnd::eInfo);
    EXPECT_EQ(1, KTMsgWnd::eWarning);
    EXPECT_EQ(2, KTMsgWnd::eError);
}

TEST_F(MessageService, RefusesNullAndEmptyTextsWithoutUsingAnIdentifier)
{
    EXPECT_FALSE(KTMsgWnd::AddMsg(KTMsgWnd::eInfo, L"g", NULL, false, NULL, NULL));
    EXPECT_FALSE(KTMsgWnd::AddMsg(KTMsgWnd::eInfo, L"g", L"", false, NULL, NULL));
    EXPECT_EQ(0, KTMsgWnd::GetMsgCount(L"g"));
    Add(L"g", L"first");
    EXPECT_EQ(1, Last().id);
}

TEST_F(MessageService, WarningWithoutGroupIsVisibleEverywhereAndCountsUnderTheEmptyName)
{
    EXPECT_TRUE(KTMsgWnd::AddMsg(KTMsgWnd::eWarning, NULL, L"text", false, NULL, NULL));
    const CZNMsgData data = Last();
    EXPECT_EQ(KTMsgWnd::eWarning, data.type);
    EXPECT_STREQ(L"", data.group);
    EXPECT_TRUE(data.document == NULL);
    EXPECT_EQ(1, KTMsgWnd::GetMsgCount(L""));
    EXPECT_EQ(0, KTMsgWnd::GetMsgCount(NULL));
    arxhost::NewDocument();
    EXPECT_EQ(1, KTMsgWnd::GetMsgCount(L""));
}

TEST_F(MessageService, GroupsThatDifferInLetterCaseCountTogether)
{
    Add(L"Check", L"one");
    Add(L"CHECK", L"two");
    EXPECT_EQ(2, KTMsgWnd::GetMsgCount(L"check"));
    EXPECT_EQ(0, KTMsgWnd::GetMsgCount(L"checks"));
}

TEST_F(MessageService, LetterCaseOfEveryScriptIsDisregarded)
{
    const wchar_t* const pairs[][2] = {
        {L"ПРОВЕРКА", L"проверка"}, {L"Ä图层", L"ä图层"}, {L"ＣＨＥＣＫ", L"ｃｈｅｃｋ"}};
    for (const auto& pair : pairs)
    {
        Add(pair[0], L"one");
        Add(pair[1], L"two");
        EXPECT_EQ(2, KTMsgWnd::GetMsgCount(pair[0]));
        EXPECT_EQ(2, KTMsgWnd::GetMsgCount(pair[1]));
        CZNMsgArray messages;
        Store().CollectVisible(pair[0], messages);
        EXPECT_EQ(2, messages.GetSize());
        EXPECT_TRUE(KTMsgWnd::RemoveMsg(pair[0], true));
        EXPECT_EQ(0, Store().GetCount());
    }
}

TEST_F(MessageService, RemovingInTheCurrentDocumentKeepsMessagesOfNoDocument)
{
    arxhost::NewDocument();
    Add(L"check", L"everywhere");
    EXPECT_FALSE(KTMsgWnd::RemoveMsg(L"CHECK", false));
    EXPECT_EQ(1, KTMsgWnd::GetMsgCount(L"check"));
}

TEST_F(MessageService, RemovingInTheCurrentDocumentWithoutAnyKeepsMessagesOfNoDocument)
{
    Add(L"check", L"everywhere");
    EXPECT_FALSE(KTMsgWnd::RemoveMsg(L"check", false));
    EXPECT_EQ(1, KTMsgWnd::GetMsgCount(L"check"));
}

TEST_F(MessageService, RemovingInTheCurrentDocumentTakesItsMessagesOnly)
{
    AcApDocument* const first = arxhost::NewDocument();
    Add(L"check", L"of the first", true);
    arxhost::NewDocument();
    Add(L"Check", L"of the second", true);
    Add(L"other", L"of another group", true);
    EXPECT_TRUE(KTMsgWnd::RemoveMsg(L"check", false));
    EXPECT_EQ(Texts{L"of another group"}, VisibleTexts());
    arxhost::SetCurrentDocument(first);
    EXPECT_EQ(Texts{L"of the first"}, VisibleTexts());
}

TEST_F(MessageService, RemovingInAllDocumentsTakesEveryMessageOfTheGroup)
{
    arxhost::NewDocument();
    Add(L"check", L"of the first", true);
    arxhost::NewDocument();
    Add(L"Check", L"of the second", true);
    Add(L"CHECK", L"everywhere");
    Add(L"other", L"kept");
    EXPECT_TRUE(KTMsgWnd::RemoveMsg(L"cHECK", true));
    EXPECT_EQ(1, Store().GetCount());
    EXPECT_EQ(Texts{L"kept"}, VisibleTexts());
    EXPECT_FALSE(KTMsgWnd::RemoveMsg(L"check", true));
}

TEST_F(MessageService, RemovingANullGroupRemovesNothing)
{
    Add(NULL, L"kept");
    EXPECT_FALSE(KTMsgWnd::RemoveMsg(NULL, true));
    EXPECT_EQ(1, KTMsgWnd::GetMsgCount(L""));
    EXPECT_TRUE(KTMsgWnd::RemoveMsg(L"", true));
}

TEST_F(MessageService, IdentifiersGoOnRisingAfterEverythingIsRemoved)
{
    Add(L"g", L"one");
    Add(L"g", L"two");
    KTMsgWnd::RemoveAllMsg();
    EXPECT_EQ(0, KTMsgWnd::GetMsgCount(L"g"));
    Add(L"g", L"three");
    EXPECT_EQ(3, Last().id);
}

TEST_F(MessageService, RemovingEverythingReachesEveryDocument)
{
    AcApDocument* const first = arxhost::NewDocument();
    Add(L"g", L"one", true);
    arxhost::NewDocument();
    KTMsgWnd::RemoveAllMsg();
    arxhost::SetCurrentDocument(first);
    EXPECT_EQ(0, KTMsgWnd::GetMsgCount(L"g"));
    EXPECT_EQ(0, Store().GetCount());
}

TEST_F(MessageService, BoundMessagesCountInTheirDocumentOnly)
{
    AcApDocument* const first = arxhost::NewDocument();
    Add(L"check", L"bound", true);
    EXPECT_EQ(1, KTMsgWnd::GetMsgCount(L"check"));
    arxhost::NewDocument();
    EXPECT_EQ(0, KTMsgWnd::GetMsgCount(L"check"));
    arxhost::SetCurrentDocument(first);
    EXPECT_EQ(1, KTMsgWnd::GetMsgCount(L"check"));
}

TEST_F(MessageService, MessagesOfAClosedDocumentStayUnseenUntilTheyAreRemoved)
{
    AcApDocument* const closed = arxhost::NewDocument();
    Add(L"check", L"bound", true);
    arxhost::CloseDocument(closed);
    arxhost::NewDocument();
    EXPECT_EQ(0, KTMsgWnd::GetMsgCount(L"check"));
    EXPECT_EQ(1, Store().GetCount());
    EXPECT_TRUE(KTMsgWnd::RemoveMsg(L"check", true));
    EXPECT_EQ(0, Store().GetCount());
}

TEST_F(MessageService, BindingWithoutADocumentMakesTheMessageVisibleEverywhere)
{
    Add(L"check", L"early", true);
    EXPECT_EQ(1, KTMsgWnd::GetMsgCount(L"check"));
    arxhost::NewDocument();
    EXPECT_EQ(1, KTMsgWnd::GetMsgCount(L"check"));
}

TEST_F(MessageService, ObjectsAreCopiedInOrder)
{
    arxhost::NewDocument();
    AcArray<AcDbObjectId> ids;
    ids.append(AddLine());
    ids.append(AddLine());
    ASSERT_TRUE(KTMsgWnd::AddMsg(KTMsgWnd::eError, L"g", L"t", true, &ids, NULL));
    const AcDbObjectId first = ids[0];
    ids.removeAll();
    const CZNMsgData data = Last();
    ASSERT_EQ(2, data.objectIds.length());
    EXPECT_TRUE(data.objectIds[0] == first);
    EXPECT_FALSE(data.objectIds[1] == first);
    EXPECT_FALSE(data.hasExtents);
}

TEST_F(MessageService, AnEmptyListOfObjectsMeansNone)
{
    const AcArray<AcDbObjectId> none;
    ASSERT_TRUE(KTMsgWnd::AddMsg(KTMsgWnd::eError, L"g", L"t", false, &none, NULL));
    EXPECT_TRUE(Last().objectIds.isEmpty());
}

TEST_F(MessageService, ExtentsAreCopied)
{
    AcDbExtents extents(AcGePoint3d(1, 2, 3), AcGePoint3d(4, 5, 6));
    ASSERT_TRUE(KTMsgWnd::AddMsg(KTMsgWnd::eError, L"g", L"t", false, NULL, &extents));
    extents.addPoint(AcGePoint3d(100, 100, 100));
    const CZNMsgData data = Last();
    ASSERT_TRUE(data.hasExtents);
    EXPECT_EQ(1, data.extents.minPoint().x);
    EXPECT_EQ(6, data.extents.maxPoint().z);
}

TEST_F(MessageService, TimeIsTheLocalTimeOfAdding)
{
    const CString before = CTime::GetCurrentTime().Format(L"%H:%M:%S");
    Add(L"g", L"t");
    const CString after = CTime::GetCurrentTime().Format(L"%H:%M:%S");
    const CString time = Last().time;
    ASSERT_EQ(8, time.GetLength());
    EXPECT_EQ(L':', time[2]);
    EXPECT_EQ(L':', time[5]);
    EXPECT_TRUE(std::iswdigit(time[0]) && std::iswdigit(time[7]));
    EXPECT_TRUE(time == before || time == after || before > after);
}

TEST_F(MessageService, TimeGoesOn)
{
    Add(L"g", L"t");
    const CString first = Last().time;
    ASSERT_TRUE(WaitFor([&first] { return CTime::GetCurrentTime().Format(L"%H:%M:%S") != first; }));
    Add(L"g", L"t");
    EXPECT_STRNE(first, Last().time);
}

TEST_F(MessageService, TextsComeBackUnharmed)
{
    const std::wstring longText(100000, L'字');
    const Texts texts = {L"100%s%d%n", L"line\r\nfeed\n", L"\U0001F600 pair", longText};
    for (const std::wstring& text : texts)
        Add(text.c_str(), text.c_str());
    EXPECT_EQ(texts, VisibleTexts());
    for (const std::wstring& text : texts)
        EXPECT_EQ(1, KTMsgWnd::GetMsgCount(text.c_str()));
}
