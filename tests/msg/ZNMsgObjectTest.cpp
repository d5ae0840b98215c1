// The message object: what is reported while it lives, and the three ways of presenting it.
#include "MessageBoxAnswer.h"
#include "ViewerFixture.h"
#include "msg/ZNMsgObject.h"

using ZNKTPub::CZNMsgObject;
using ZNKTPub::CZNMsgTracker;
using ZNKTPub::MSGDATA;

namespace
{

const CMsgCallback::EMsgType kUnknownType = static_cast<CMsgCallback::EMsgType>(7);

struct Reported
{
    CMsgCallback::EMsgType type;
    const wchar_t* text;
};

struct TextRow
{
    const char* name;
    std::vector<Reported> messages;
    const wchar_t* expected;
};

const TextRow kRows[] = {
    {"one information", {{CMsgCallback::eInfo, L"I"}}, L"信息:I"},
    {"one warning", {{CMsgCallback::eWarning, L"W"}}, L"警告:W"},
    {"one error", {{CMsgCallback::eError, L"E"}}, L"错误:E"},
    {"the last message stands alone", {{CMsgCallback::eInfo, L"A"}, {CMsgCallback::eError, L"B"}}, L"错误:B"},
    {"the last of three",
     {{CMsgCallback::eError, L"A"}, {CMsgCallback::eWarning, L"B"}, {CMsgCallback::eInfo, L"C"}},
     L"信息:C"},
    {"one of no known type", {{kUnknownType, L"U"}}, L"U"},
    {"two of no known type", {{kUnknownType, L"U"}, {kUnknownType, L"V"}}, L"U\nV"},
    {"no known type behind a warning",
     {{CMsgCallback::eInfo, L"A"}, {CMsgCallback::eWarning, L"B"}, {kUnknownType, L"U"}, {kUnknownType, L"V"}},
     L"警告:B\nU\nV"},
    {"no known type before an error", {{kUnknownType, L"U"}, {CMsgCallback::eError, L"E"}}, L"错误:E"},
    {"doubled per cent sign", {{CMsgCallback::eInfo, L"100%%"}}, L"信息:100%"},
    {"directives without arguments", {{CMsgCallback::eInfo, L"%s %n %d %5.2f"}}, L"信息:%s %n %d %5.2f"},
    {"lone per cent signs", {{CMsgCallback::eInfo, L"% 50% 的 %"}}, L"信息:% 50% 的 %"},
};

class PrintedText : public arxhost::IPrintSink
{
public:
    PrintedText() { arxhost::SetPrintSink(this); }
    ~PrintedText() { arxhost::SetPrintSink(nullptr); }
    void Print(const ACHAR* piece) override
    {
        text += piece;
        ++calls;
    }

    std::wstring text;
    int calls = 0;
};

class MsgObject : public ViewerFixture
{
protected:
    ~MsgObject() override { EXPECT_EQ(0, CZNMsgTracker::GetInstance()->GetCount()); }

    static void Report(CMsgCallback::EMsgType type, const wchar_t* text)
    {
        ASSERT_TRUE(ZNKTPub::ReportMsg(type, L"g", text));
    }

    static void Report(const MSGDATA& data)
    {
        CZNMsgTracker& tracker = *CZNMsgTracker::GetInstance();
        tracker.GetMSGCLCT(tracker.GetCount() - 1)->push_back(data);
    }

    // What the box says; the user presses OK.
    static std::wstring Box(CZNMsgObject& object)
    {
        const MessageBoxAnswer answer(IDOK);
        object.ShowMessageBox(NULL);
        if (answer.Boxes().size() != 1)
            return L"<no box>";
        EXPECT_EQ(L"Tevrin提示", answer.Boxes()[0].caption);
        EXPECT_EQ(1, answer.Boxes()[0].buttons);
        EXPECT_TRUE(answer.Boxes()[0].icon == NULL);
        return answer.Boxes()[0].text;
    }

    static std::wstring Line(CZNMsgObject& object)
    {
        const PrintedText printed;
        object.ShowCommandLine();
        return printed.text;
    }
};

} // namespace

TEST_F(MsgObject, CollectsWhatIsReportedWhileItLives)
{
    EXPECT_FALSE(ZNKTPub::ReportMsg(CMsgCallback::eInfo, L"g", L"before"));
    {
        const CZNMsgObject object;
        EXPECT_FALSE(object.HasMsg());
        ASSERT_NE(nullptr, object.Messages());
        EXPECT_TRUE(object.Messages()->empty());
        Report(CMsgCallback::eWarning, L"during");
        EXPECT_TRUE(object.HasMsg());
        ASSERT_EQ(1u, object.Messages()->size());
        EXPECT_STREQ(L"during", object.Messages()->front().text);
    }
    EXPECT_FALSE(ZNKTPub::ReportMsg(CMsgCallback::eInfo, L"g", L"after"));
}

TEST_F(MsgObject, TheInnerObjectReceivesWhatIsReportedWhileItLives)
{
    const CZNMsgObject outer;
    Report(CMsgCallback::eInfo, L"outer 1");
    {
        const CZNMsgObject inner;
        Report(CMsgCallback::eInfo, L"inner");
        EXPECT_EQ(1u, inner.Messages()->size());
        EXPECT_EQ(1u, outer.Messages()->size()) << "and its address is still good";
    }
    Report(CMsgCallback::eInfo, L"outer 2");
    EXPECT_EQ(2u, outer.Messages()->size());
}

TEST_F(MsgObject, DestructionPopsExactlyOneCollection)
{
    CZNMsgTracker& tracker = *CZNMsgTracker::GetInstance();
    {
        const CZNMsgObject outer;
        {
            const CZNMsgObject inner;
            EXPECT_EQ(2, tracker.GetCount());
        }
        EXPECT_EQ(1, tracker.GetCount());
    }
    EXPECT_EQ(0, tracker.GetCount());
}

TEST_F(MsgObject, AssignmentSharesOneCollectionAndEachStillPopsOne)
{
    CZNMsgTracker& tracker = *CZNMsgTracker::GetInstance();
    {
        CZNMsgObject first;
        CZNMsgObject second;
        EXPECT_EQ(&second, &(second = first));
        EXPECT_EQ(first.Messages(), second.Messages());
        Report(CMsgCallback::eInfo, L"to the top, which nobody refers to");
        EXPECT_FALSE(first.HasMsg());
        EXPECT_EQ(2, tracker.GetCount());
    }
    EXPECT_EQ(0, tracker.GetCount());
}

TEST_F(MsgObject, MessageBoxSaysTheText)
{
    for (const TextRow& row : kRows)
    {
        CZNMsgObject object;
        for (const Reported& message : row.messages)
            Report(message.type, message.text);
        EXPECT_EQ(row.expected, Box(object)) << row.name;
    }
}

TEST_F(MsgObject, CommandLineSaysTheText)
{
    for (const TextRow& row : kRows)
    {
        CZNMsgObject object;
        for (const Reported& message : row.messages)
            Report(message.type, message.text);
        EXPECT_EQ(row.expected, Line(object)) << row.name;
    }
}

TEST_F(MsgObject, MessageBoxBelongsToTheGivenParent)
{
    CZNMsgObject object;
    Report(CMsgCallback::eInfo, L"text");
    const MessageBoxAnswer answer(IDOK);
    object.ShowMessageBox(m_frame.Wnd().m_hWnd);
    ASSERT_EQ(1u, answer.Boxes().size());
    EXPECT_EQ(m_frame.Wnd().m_hWnd, answer.Boxes()[0].owner);
}

TEST_F(MsgObject, WithoutMessagesNothingIsPresented)
{
    CZNMsgObject object;
    const MessageBoxAnswer answer(IDOK);
    const PrintedText printed;
    object.ShowMessageBox(NULL);
    object.ShowCommandLine();
    object.ShowMsgPanel();
    EXPECT_TRUE(answer.Boxes().empty());
    EXPECT_EQ(0, printed.calls);
    EXPECT_EQ(nullptr, CMsgViewWnd::Instance(false));
    EXPECT_EQ(0, Store().GetCount());
}

TEST_F(MsgObject, EveryWayOfPresentingEmptiesTheCollection)
{
    CZNMsgObject object;
    Report(CMsgCallback::eInfo, L"one");
    EXPECT_EQ(L"信息:one", Box(object));
    EXPECT_FALSE(object.HasMsg());
    Report(CMsgCallback::eInfo, L"two");
    EXPECT_EQ(L"信息:two", Line(object)) << "more reports may follow";
    EXPECT_FALSE(object.HasMsg());
    Report(CMsgCallback::eInfo, L"three");
    object.ShowMsgPanel();
    EXPECT_FALSE(object.HasMsg());
    EXPECT_EQ((Texts{L"three"}), VisibleTexts());
}

TEST_F(MsgObject, PanelAddsEveryMessageInOrderAndIsShown)
{
    CZNMsgObject object;
    Report(CMsgCallback::eWarning, L"first");
    Report(CMsgCallback::eError, L"second");
    object.ShowMsgPanel();
    EXPECT_EQ((Texts{L"first", L"second"}), VisibleTexts());
    ASSERT_NE(nullptr, CMsgViewWnd::Instance(false));
    EXPECT_TRUE(CMsgViewWnd::Instance(false)->IsShown());
    EXPECT_EQ(2, Rows());
}

TEST_F(MsgObject, PanelKeepsWhatWasReported)
{
    AcArray<AcDbObjectId> ids;
    ids.append(AcDbObjectId());
    const AcDbExtents extents(AcGePoint3d(1, 2, 0), AcGePoint3d(3, 4, 0));
    CZNMsgObject object;
    ZNKTPub::ReportMsg(CMsgCallback::eError, L"group", L"full 100%s", false, &ids, &extents);
    object.ShowMsgPanel();
    const CZNMsgData data = Last();
    EXPECT_EQ(KTMsgWnd::eError, data.type);
    EXPECT_STREQ(L"group", data.group);
    EXPECT_STREQ(L"full 100%s", data.text);
    EXPECT_EQ(1, data.objectIds.length());
    EXPECT_TRUE(data.hasExtents);
    EXPECT_EQ(3, data.extents.maxPoint().x);
    EXPECT_EQ(nullptr, data.document);
}

TEST_F(MsgObject, PanelLeavesOutAnAreaThatWasNotGiven)
{
    CZNMsgObject object;
    Report(CMsgCallback::eInfo, L"text");
    object.ShowMsgPanel();
    EXPECT_FALSE(Last().hasExtents);
    EXPECT_TRUE(Last().objectIds.isEmpty());
}

TEST_F(MsgObject, PanelBindsAMessageOfAnyDrawingToTheCurrentOne)
{
    AcApDocument* const first = arxhost::NewDocument();
    CZNMsgObject object;
    ZNKTPub::ReportMsg(CMsgCallback::eInfo, L"g", L"of the first", true);
    EXPECT_EQ(first, object.Messages()->front().document);
    AcApDocument* const second = arxhost::NewDocument();
    ASSERT_EQ(second, CZNMsgManager::CurrentDocument());
    object.ShowMsgPanel();
    EXPECT_EQ(second, Last().document);
}

TEST_F(MsgObject, PanelBindsAMessageOfNoDrawingToNone)
{
    ASSERT_NE(nullptr, arxhost::NewDocument());
    CZNMsgObject object;
    ZNKTPub::ReportMsg(CMsgCallback::eInfo, L"g", L"of no drawing", false);
    object.ShowMsgPanel();
    EXPECT_EQ(nullptr, Last().document);
}

TEST_F(MsgObject, PanelGivesNewIdentifiersAndTimes)
{
    Add(L"g", L"already there");
    MSGDATA data;
    data.id = 500;
    data.text = L"old";
    data.time = L"00:00:99";
    CZNMsgObject object;
    Report(data);
    object.ShowMsgPanel();
    EXPECT_EQ(2, Last().id);
    EXPECT_STRNE(L"00:00:99", Last().time);
}

TEST_F(MsgObject, PanelLeavesOutARecordWithoutText)
{
    CZNMsgObject object;
    Report(MSGDATA());
    EXPECT_TRUE(object.HasMsg());
    object.ShowMsgPanel();
    EXPECT_EQ(0, Store().GetCount());
    EXPECT_FALSE(object.HasMsg());
}
