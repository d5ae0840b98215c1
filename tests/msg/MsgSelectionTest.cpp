// What can be done with the selected messages.
#include "StoreFixture.h"

#include "msg/MsgSelection.h"

namespace
{

class MessageSelection : public StoreFixture
{
protected:
    // Identifiers: 1 nothing, 2 an area, 3 an object.
    MessageSelection()
    {
        const AcDbExtents extents(AcGePoint3d(0, 0, 0), AcGePoint3d(1, 1, 0));
        AcArray<AcDbObjectId> ids;
        ids.append(AcDbObjectId());
        Add(L"g", L"nothing");
        KTMsgWnd::AddMsg(KTMsgWnd::eInfo, L"g", L"area", false, NULL, &extents);
        KTMsgWnd::AddMsg(KTMsgWnd::eInfo, L"g", L"object", false, &ids, NULL);
    }

    CMsgSelection m_selection;
};

} // namespace

TEST_F(MessageSelection, OnlyMessagesWithAnAreaOrObjectsCanBeZoomedTo)
{
    EXPECT_FALSE(CMsgSelection::CanZoomTo(Store(), 1));
    EXPECT_TRUE(CMsgSelection::CanZoomTo(Store(), 2));
    EXPECT_TRUE(CMsgSelection::CanZoomTo(Store(), 3));
    EXPECT_FALSE(CMsgSelection::CanZoomTo(Store(), 4));
}

TEST_F(MessageSelection, HasObjectsWhenAnySelectedMessageHas)
{
    m_selection.Reset(Store(), {1, 2});
    EXPECT_FALSE(m_selection.HasObjects());
    m_selection.Change(Store(), 3, true);
    EXPECT_TRUE(m_selection.HasObjects());
    m_selection.Change(Store(), 1, false);
    EXPECT_TRUE(m_selection.HasObjects());
    m_selection.Change(Store(), 3, false);
    EXPECT_FALSE(m_selection.HasObjects());
}

TEST_F(MessageSelection, MessagesThatAreGoneCountForNothing)
{
    m_selection.Reset(Store(), {1, 3});
    EXPECT_FALSE(m_selection.IsOutdated(Store()));
    Store().Remove(3);
    ASSERT_TRUE(m_selection.IsOutdated(Store()));
    m_selection.Reset(Store(), {1, 3});
    EXPECT_FALSE(m_selection.HasObjects());
    EXPECT_FALSE(m_selection.IsOutdated(Store()));
}
