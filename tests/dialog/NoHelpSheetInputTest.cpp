// The property sheet without Help under a real mouse.
#include "NoHelpSheetFixture.h"

#include "RealMouse.h"

class NoHelpSheetInput : public NoHelpSheetFixture
{
protected:
    template<class CONDITION>
    bool ClickUntil(int id, CONDITION condition)
    {
        CRect rect;
        sheet.GetDlgItem(id)->GetWindowRect(&rect);
        return ClickMouseUntil(rect.CenterPoint(), condition);
    }

    bool Told(const char* event)
    {
        all += log.Take();
        return all.find(event) != std::string::npos;
    }

    std::string all;
};

TEST_F(NoHelpSheetInput, AClickOnTheMovedApplyButtonAppliesEveryPage)
{
    ASSERT_TRUE(sheet.Run([this] {
        log.Take();
        EXPECT_TRUE(ClickUntil(ID_APPLY_NOW, [this] { return Told("Third ok"); }));
        EXPECT_EQ(0u, all.find("First apply, First ok, Second apply, Second ok, Third apply, Third ok"));
        EXPECT_TRUE(sheet.ContinueModal());
    }));
}

TEST_F(NoHelpSheetInput, AClickOnTheMovedOkButtonEndsTheSheet)
{
    sheet.SetShowApply(false);
    ASSERT_TRUE(sheet.Run([this] { EXPECT_TRUE(ClickUntil(IDOK, [this] { return !sheet.ContinueModal(); })); }));
    EXPECT_TRUE(Told("Third ok"));
}
