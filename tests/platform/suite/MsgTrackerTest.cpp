// Collections of messages: the top one receives what is reported.
#include "DrawingFixture.h"

#include <ZNKTPub.h>

#include <gtest/gtest.h>

using ZNKTPub::CZNMsgTracker;
using ZNKTPub::MSGDATA;

namespace
{

class MsgTracker : public testing::Test
{
protected:
    ~MsgTracker() override { arxhost::Reset(); }

    bool Add(const wchar_t* text) { return m_tracker.AddMsg(CMsgCallback::eInfo, L"g", text, false, nullptr, nullptr); }

    CZNMsgTracker m_tracker;
};

} // namespace

TEST_F(MsgTracker, PushReturnsRisingIndices)
{
    EXPECT_EQ(0, m_tracker.PushMSGCLCT());
    EXPECT_EQ(1, m_tracker.PushMSGCLCT());
    EXPECT_EQ(2, m_tracker.GetCount());
    m_tracker.PopMSGCLCT();
    EXPECT_EQ(1, m_tracker.PushMSGCLCT());
}

TEST_F(MsgTracker, TheTopCollectionReceivesReports)
{
    m_tracker.PushMSGCLCT();
    EXPECT_TRUE(Add(L"outer"));
    m_tracker.PushMSGCLCT();
    EXPECT_TRUE(Add(L"inner"));
    ASSERT_EQ(1u, m_tracker.GetMSGCLCT(0)->size());
    ASSERT_EQ(1u, m_tracker.GetMSGCLCT(1)->size());
    EXPECT_STREQ(L"outer", m_tracker.GetMSGCLCT(0)->front().text);
    EXPECT_STREQ(L"inner", m_tracker.GetMSGCLCT(1)->front().text);
}

TEST_F(MsgTracker, PopReturnsTheTopCollectionByValue)
{
    m_tracker.PushMSGCLCT();
    Add(L"one");
    Add(L"two");
    const CZNMsgTracker::Collection popped = m_tracker.PopMSGCLCT();
    ASSERT_EQ(2u, popped.size());
    EXPECT_STREQ(L"two", popped[1].text);
    EXPECT_EQ(0, m_tracker.GetCount());
}

TEST_F(MsgTracker, PopOfAnEmptyStackReturnsAnEmptyCollection)
{
    EXPECT_TRUE(m_tracker.PopMSGCLCT().empty());
    EXPECT_TRUE(m_tracker.PopMSGCLCT().empty());
    EXPECT_EQ(0, m_tracker.PushMSGCLCT());
}

TEST_F(MsgTracker, ACollectionKeepsItsAddressWhileOthersComeAndGo)
{
    m_tracker.PushMSGCLCT();
    Add(L"kept");
    const CZNMsgTracker::Collection* const first = m_tracker.GetMSGCLCT(0);
    const int many = 1000;
    for (int i = 0; i < many; ++i)
        m_tracker.PushMSGCLCT();
    EXPECT_EQ(first, m_tracker.GetMSGCLCT(0));
    for (int i = 0; i < many; ++i)
        m_tracker.PopMSGCLCT();
    EXPECT_EQ(first, m_tracker.GetMSGCLCT(0));
    EXPECT_STREQ(L"kept", first->front().text);
}

TEST_F(MsgTracker, ThereIsNoCollectionOutsideTheStack)
{
    EXPECT_EQ(nullptr, m_tracker.GetMSGCLCT(0));
    m_tracker.PushMSGCLCT();
    EXPECT_NE(nullptr, m_tracker.GetMSGCLCT(0));
    EXPECT_EQ(nullptr, m_tracker.GetMSGCLCT(1));
    EXPECT_EQ(nullptr, m_tracker.GetMSGCLCT(-1));
}

TEST_F(MsgTracker, WithoutACollectionNothingIsReported)
{
    EXPECT_FALSE(Add(L"unheard"));
    m_tracker.PushMSGCLCT();
    EXPECT_TRUE(m_tracker.GetMSGCLCT(0)->empty());
}

TEST_F(MsgTracker, NullAndEmptyTextsAreRefused)
{
    m_tracker.PushMSGCLCT();
    EXPECT_FALSE(Add(nullptr));
    EXPECT_FALSE(Add(L""));
    EXPECT_TRUE(m_tracker.GetMSGCLCT(0)->empty());
    EXPECT_TRUE(Add(L"x"));
    EXPECT_EQ(1, m_tracker.GetMSGCLCT(0)->front().id) << "a refused message takes no identifier";
}

TEST_F(MsgTracker, ARecordHoldsWhatWasReported)
{
    AcApDocument* const document = arxhost::NewDocument();
    AcArray<AcDbObjectId> ids;
    ids.append(AcDbObjectId());
    const AcDbExtents extents(AcGePoint3d(1, 2, 0), AcGePoint3d(3, 4, 0));
    m_tracker.PushMSGCLCT();
    const CString before = CTime::GetCurrentTime().Format(L"%H:%M:%S");
    m_tracker.AddMsg(CMsgCallback::eError, L"group", L"text", true, &ids, &extents);
    const CString after = CTime::GetCurrentTime().Format(L"%H:%M:%S");
    m_tracker.AddMsg(CMsgCallback::eWarning, nullptr, L"plain", false, nullptr, nullptr);
    const MSGDATA& full = m_tracker.GetMSGCLCT(0)->at(0);
    const MSGDATA& plain = m_tracker.GetMSGCLCT(0)->at(1);
    EXPECT_EQ(1, full.id);
    EXPECT_EQ(CMsgCallback::eError, full.type);
    EXPECT_STREQ(L"group", full.group);
    EXPECT_STREQ(L"text", full.text);
    EXPECT_TRUE(full.time == before || full.time == after) << full.time.GetString();
    EXPECT_EQ(1, full.objectIds.length());
    EXPECT_TRUE(full.hasExtents);
    EXPECT_EQ(3, full.extents.maxPoint().x);
    EXPECT_EQ(document, full.document);
    EXPECT_EQ(2, plain.id);
    EXPECT_STREQ(L"", plain.group);
    EXPECT_FALSE(plain.hasExtents);
    EXPECT_EQ(nullptr, plain.document);
    EXPECT_TRUE(plain.objectIds.isEmpty());
}

TEST_F(MsgTracker, ReportsGoToTheTrackerOfTheSuite)
{
    CZNMsgTracker& tracker = *CZNMsgTracker::GetInstance();
    EXPECT_FALSE(ZNKTPub::ReportMsg(CMsgCallback::eInfo, L"g", L"unheard"));
    const int index = tracker.PushMSGCLCT();
    EXPECT_TRUE(ZNKTPub::ReportMsg(CMsgCallback::eWarning, L"g", L"heard"));
    ASSERT_EQ(1u, tracker.GetMSGCLCT(index)->size());
    EXPECT_STREQ(L"heard", tracker.PopMSGCLCT().front().text);
}
