// The date and time picker, and the calendar.
#include "ControlFixture.h"

#include <afxdtctl.h>

class DateTimePicker : public ControlFixture
{
protected:
    void SetUp() override
    {
        ControlFixture::SetUp();
        ASSERT_TRUE(m_picker.Create(Visible | DTS_SHOWNONE, CRect(10, 10, 210, 40), &m_parent, ControlId));
    }
    void TearDown() override
    {
        m_picker.DestroyWindow();
        ControlFixture::TearDown();
    }

    CDateTimeCtrl m_picker;
};

class Calendar : public ControlFixture
{
};

TEST_F(DateTimePicker, IsAPickerWithItsIdentifier)
{
    wchar_t name[32] = L"";
    ::GetClassNameW(m_picker.m_hWnd, name, 32);
    EXPECT_STREQ(DATETIMEPICK_CLASSW, name);
    EXPECT_EQ(ControlId, m_picker.GetDlgCtrlID());
    EXPECT_TRUE(m_picker.IsKindOf(RUNTIME_CLASS(CDateTimeCtrl)));
    CObject* const made = RUNTIME_CLASS(CDateTimeCtrl)->CreateObject();
    EXPECT_TRUE(made != nullptr && made->IsKindOf(RUNTIME_CLASS(CDateTimeCtrl)));
    delete made;
}

TEST_F(DateTimePicker, ShowsNowAtFirst)
{
    const CTime before = CTime::GetCurrentTime();
    CDateTimeCtrl fresh;
    ASSERT_TRUE(fresh.Create(Visible, m_place, &m_parent, ControlId + 1));
    const CTime after = CTime::GetCurrentTime();
    CTime shown;
    ASSERT_EQ(static_cast<DWORD>(GDT_VALID), fresh.GetTime(shown));
    EXPECT_TRUE(before <= shown && shown <= after);
    fresh.DestroyWindow();
}

TEST_F(DateTimePicker, GivesBackTheMomentThatWasSet)
{
    const CTime moment(2016, 5, 7, 10, 30, 15);
    ASSERT_TRUE(m_picker.SetTime(&moment));
    CTime shown;
    ASSERT_EQ(static_cast<DWORD>(GDT_VALID), m_picker.GetTime(shown));
    EXPECT_TRUE(moment == shown);
    SYSTEMTIME parts = {};
    ASSERT_EQ(static_cast<DWORD>(GDT_VALID), m_picker.GetTime(&parts));
    EXPECT_EQ(2016, parts.wYear);
    EXPECT_EQ(5, parts.wMonth);
    EXPECT_EQ(7, parts.wDay);
    EXPECT_EQ(10, parts.wHour);
    EXPECT_EQ(30, parts.wMinute);
    EXPECT_EQ(15, parts.wSecond);
}

TEST_F(DateTimePicker, TakesPartsThatNoMomentCanExpress)
{
    SYSTEMTIME early = {};
    early.wYear = 1850;
    early.wMonth = 2;
    early.wDay = 3;
    ASSERT_TRUE(m_picker.SetTime(&early));
    SYSTEMTIME shown = {};
    ASSERT_EQ(static_cast<DWORD>(GDT_VALID), m_picker.GetTime(&shown));
    EXPECT_EQ(1850, shown.wYear);
}

TEST_F(DateTimePicker, NullClearsTheBoxAndLeavesTheMomentAlone)
{
    ASSERT_TRUE(m_picker.SetTime(static_cast<const CTime*>(nullptr)));
    CTime untouched(5);
    EXPECT_EQ(static_cast<DWORD>(GDT_NONE), m_picker.GetTime(untouched));
    EXPECT_TRUE(CTime(5) == untouched);
    const CTime moment(2016, 5, 7, 0, 0, 0);
    m_picker.SetTime(&moment);
    ASSERT_TRUE(m_picker.SetTime());
    EXPECT_EQ(static_cast<DWORD>(GDT_NONE), m_picker.GetTime(untouched));
}

TEST_F(DateTimePicker, RefusesAMomentThatIsNone)
{
    const CTime invalid(static_cast<__time64_t>(-1));
    EXPECT_FALSE(m_picker.SetTime(&invalid));
}

TEST_F(DateTimePicker, KeepsItsRange)
{
    CTime least(5);
    CTime most(5);
    EXPECT_EQ(0u, m_picker.GetRange(&least, &most));
    EXPECT_TRUE(CTime() == least && CTime() == most);
    const CTime first(2010, 1, 1, 0, 0, 0);
    const CTime last(2020, 1, 1, 0, 0, 0);
    ASSERT_TRUE(m_picker.SetRange(&first, &last));
    EXPECT_EQ(static_cast<DWORD>(GDTR_MIN | GDTR_MAX), m_picker.GetRange(&least, &most));
    EXPECT_TRUE(first == least && last == most);
    ASSERT_TRUE(m_picker.SetRange(&first, nullptr));
    EXPECT_EQ(static_cast<DWORD>(GDTR_MIN), m_picker.GetRange(&least, &most));
    EXPECT_TRUE(CTime() == most);
}

TEST_F(DateTimePicker, TakesAFormatAndGoesBackToItsOwn)
{
    EXPECT_TRUE(m_picker.SetFormat(L"yyyy-MM-dd HH:mm"));
    EXPECT_TRUE(m_picker.SetFormat(nullptr));
}

TEST_F(DateTimePicker, ShowsItsCalendarOnlyWhileItIsDroppedDown)
{
    const auto isShown = [this] {
        const CMonthCalCtrl* const calendar = m_picker.GetMonthCalCtrl();
        return calendar != nullptr && ::IsWindowVisible(calendar->m_hWnd);
    };
    EXPECT_FALSE(isShown());
    CRect client;
    m_picker.GetClientRect(&client);
    const int insideOfTheArrow = 5;
    m_picker.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON,
                         MAKELPARAM(client.right - insideOfTheArrow, client.CenterPoint().y));
    EXPECT_TRUE(WaitFor(isShown));
}

TEST_F(DateTimePicker, ColoursOfTheCalendarAreKept)
{
    m_picker.SetMonthCalColor(MCSC_TITLEBK, RGB(1, 2, 3));
    EXPECT_EQ(RGB(1, 2, 3), m_picker.GetMonthCalColor(MCSC_TITLEBK));
    EXPECT_EQ(RGB(1, 2, 3), m_picker.SetMonthCalColor(MCSC_TITLEBK, RGB(4, 5, 6)));
}

TEST_F(DateTimePicker, FontOfTheCalendarIsBorrowed)
{
    CFont font;
    font.CreatePointFont(120, L"Tahoma");
    m_picker.SetMonthCalFont(font);
    ASSERT_NE(nullptr, m_picker.GetMonthCalFont());
    EXPECT_EQ(font.GetSafeHandle(), m_picker.GetMonthCalFont()->GetSafeHandle());
}

TEST_F(Calendar, SelectsADay)
{
    CMonthCalCtrl calendar;
    ASSERT_TRUE(calendar.Create(Visible, m_place, &m_parent, ControlId));
    const CTime day(2016, 5, 7, 0, 0, 0);
    ASSERT_TRUE(calendar.SetCurSel(day));
    CTime selected;
    ASSERT_TRUE(calendar.GetCurSel(selected));
    EXPECT_TRUE(day == selected);
    calendar.DestroyWindow();
}

TEST_F(Calendar, SelectsADistanceOfDays)
{
    CMonthCalCtrl calendar;
    ASSERT_TRUE(calendar.Create(Visible | MCS_MULTISELECT, m_place, &m_parent, ControlId));
    ASSERT_TRUE(calendar.SetMaxSelCount(10));
    EXPECT_EQ(10, calendar.GetMaxSelCount());
    const CTime first(2016, 5, 7, 0, 0, 0);
    const CTime last(2016, 5, 9, 0, 0, 0);
    ASSERT_TRUE(calendar.SetSelRange(first, last));
    CTime selectedFirst;
    CTime selectedLast;
    ASSERT_TRUE(calendar.GetSelRange(selectedFirst, selectedLast));
    EXPECT_EQ(7, selectedFirst.GetDay());
    EXPECT_EQ(9, selectedLast.GetDay());
    calendar.DestroyWindow();
}

TEST_F(Calendar, KeepsRangeTodayAndFirstDayOfTheWeek)
{
    CMonthCalCtrl calendar;
    ASSERT_TRUE(calendar.Create(Visible, m_place, &m_parent, ControlId));
    const CTime first(2010, 1, 1, 0, 0, 0);
    ASSERT_TRUE(calendar.SetRange(&first, nullptr));
    CTime least;
    CTime most(5);
    EXPECT_EQ(static_cast<DWORD>(GDTR_MIN), calendar.GetRange(&least, &most));
    EXPECT_TRUE(first == least && CTime() == most);
    const CTime today(2016, 5, 7, 0, 0, 0);
    calendar.SetToday(&today);
    CTime known;
    ASSERT_TRUE(calendar.GetToday(known));
    EXPECT_EQ(2016, known.GetYear());
    EXPECT_EQ(7, known.GetDay());
    int former = -1;
    calendar.SetFirstDayOfWeek(2);
    calendar.SetFirstDayOfWeek(3, &former);
    EXPECT_EQ(2, former);
    BOOL local = FALSE;
    EXPECT_EQ(3, calendar.GetFirstDayOfWeek(&local));
    EXPECT_TRUE(local);
    calendar.DestroyWindow();
}

TEST_F(Calendar, SizesItselfAtAPoint)
{
    CMonthCalCtrl calendar;
    ASSERT_TRUE(calendar.Create(Visible, CPoint(10, 20), &m_parent, ControlId));
    CRect needed;
    ASSERT_TRUE(calendar.GetMinReqRect(&needed));
    CRect place;
    calendar.GetWindowRect(&place);
    EXPECT_EQ(needed.Size(), place.Size());
    calendar.DestroyWindow();
}
