// The tab sheet under a real mouse.
#include "TabSheetFixture.h"

namespace
{

class TabSheetInput : public TabSheetFixture
{
protected:
    void SetUp() override
    {
        ShowPages();
        m_owner.SetForegroundWindow();
    }

    bool ClickTab(int tab)
    {
        CPoint point = MiddleOfTab(tab);
        m_sheet.ClientToScreen(&point);
        return ClickMouseUntil(point, [this, tab] { return Shown() == tab; });
    }
};

} // namespace

TEST_F(TabSheetInput, ClicksShowThePagesOfTheirTabs)
{
    EXPECT_TRUE(ClickTab(2));
    EXPECT_EQ(2, m_sheet.GetCurSel());
    EXPECT_TRUE(ClickTab(1));
    EXPECT_TRUE(ClickTab(0));
    EXPECT_EQ(0, m_sheet.GetCurSel());
}
