// A browser control that is missing or does not do its part: the view fails to open, and nothing is left over.
#include "HtmlViewFixture.h"

#include "BrokenControl.h"

class BrokenBrowserControl : public HtmlViewFixture
{
protected:
    RecordingHtmlView view;
};

TEST_F(BrokenBrowserControl, AMissingControlFailsTheCreation)
{
    const BrokenControl missing(BrokenControl::Missing);
    EXPECT_FALSE(Create(view));
    EXPECT_EQ(nullptr, view.m_hWnd);
    EXPECT_EQ(nullptr, ::GetDlgItem(m_parent, ViewId));
    EXPECT_EQ(1, view.m_lastCalls);
    EXPECT_EQ(nullptr, view.m_pBrowserApp.p);
}

TEST_F(BrokenBrowserControl, AControlThatIsNoBrowserFailsTheCreationAndIsGivenBack)
{
    const BrokenControl noBrowser(BrokenControl::NoBrowser);
    EXPECT_FALSE(Create(view));
    EXPECT_EQ(nullptr, view.m_hWnd);
    EXPECT_EQ(1, noBrowser.Created());
    EXPECT_EQ(0, noBrowser.Alive());
}

TEST_F(BrokenBrowserControl, TheViewCanBeCreatedOnceTheControlIsThere)
{
    {
        const BrokenControl missing(BrokenControl::Missing);
        EXPECT_FALSE(Create(view));
    }
    EXPECT_TRUE(Create(view));
}
