// The sort arrow of CXTHeaderCtrl.
#include "ListFixture.h"

class Header : public ListFixture
{
protected:
    void SetUp() override
    {
        ListFixture::SetUp();
        ASSERT_TRUE(m_header.SubclassWindow(ListView_GetHeader(m_list.m_hWnd)));
    }

    void TearDown() override
    {
        m_header.UnsubclassWindow();
        ListFixture::TearDown();
    }

    int Arrow(int column) const
    {
        HDITEM item = {};
        item.mask = HDI_FORMAT;
        m_header.GetItem(column, &item);
        return item.fmt & (HDF_SORTUP | HDF_SORTDOWN);
    }

    CXTHeaderCtrl m_header;
};

TEST_F(Header, HasNoArrowAtFirst)
{
    EXPECT_EQ(-1, m_header.GetSortedCol());
    EXPECT_EQ(0, Arrow(0));
    EXPECT_EQ(0, Arrow(1));
}

TEST_F(Header, ShowsTheArrowOnTheSortedColumnAlone)
{
    EXPECT_EQ(-1, m_header.SetSortImage(0, TRUE));
    EXPECT_EQ(HDF_SORTUP, Arrow(0));
    EXPECT_EQ(0, m_header.SetSortImage(1, FALSE));
    EXPECT_EQ(0, Arrow(0));
    EXPECT_EQ(HDF_SORTDOWN, Arrow(1));
    EXPECT_EQ(1, m_header.GetSortedCol());
    EXPECT_FALSE(m_header.IsSortedAscending());
}

TEST_F(Header, TurnsTheArrowAround)
{
    m_header.SetSortImage(1, TRUE);
    m_header.SetSortImage(1, FALSE);
    EXPECT_EQ(HDF_SORTDOWN, Arrow(1));
    m_header.SetSortImage(1, TRUE);
    EXPECT_EQ(HDF_SORTUP, Arrow(1));
}

TEST_F(Header, MinusOneTakesTheArrowAway)
{
    m_header.SetSortImage(1, TRUE);
    EXPECT_EQ(1, m_header.SetSortImage(-1, TRUE));
    EXPECT_EQ(0, Arrow(1));
    EXPECT_EQ(-1, m_header.GetSortedCol());
}

TEST_F(Header, IgnoresColumnsThatAreNotThere)
{
    m_header.SetSortImage(1, TRUE);
    EXPECT_EQ(1, m_header.SetSortImage(2, TRUE));
    EXPECT_EQ(1, m_header.SetSortImage(-2, TRUE));
    EXPECT_EQ(HDF_SORTUP, Arrow(1));
}

TEST_F(Header, KeepsTextAndAlignmentOfTheColumns)
{
    m_header.SetSortImage(1, TRUE);
    wchar_t text[16] = {};
    HDITEM item = {};
    item.mask = HDI_TEXT | HDI_FORMAT;
    item.pszText = text;
    item.cchTextMax = 16;
    ASSERT_TRUE(m_header.GetItem(1, &item));
    EXPECT_STREQ(L"number", text);
    EXPECT_EQ(HDF_LEFT, item.fmt & HDF_JUSTIFYMASK);
}

TEST_F(Header, ClicksReachTheListsParent)
{
    CRect item;
    ASSERT_TRUE(m_header.GetItemRect(0, &item));
    const CPoint centre = item.CenterPoint();
    const LPARAM where = MAKELPARAM(centre.x, centre.y);
    m_header.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, where);
    m_header.SendMessage(WM_LBUTTONUP, 0, where);
    EXPECT_EQ(1, m_parent.HeaderClicks());
}
