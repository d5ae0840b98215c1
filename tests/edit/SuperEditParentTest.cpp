// What the parent of a validating edit is told and asked.
#include "EditFixture.h"

namespace
{

const COLORREF kYellow = RGB(255, 255, 128);
const COLORREF kPink = RGB(255, 196, 196);
const COLORREF kBlue = RGB(190, 190, 255);

class SuperEditParent : public EditFixture
{
};

} // namespace

TEST_F(SuperEditParent, ParentSeesEveryChange)
{
    m_parent.changes = 0;
    Type(L"ab");
    EXPECT_EQ(2, m_parent.changes);
}

TEST_F(SuperEditParent, ParentIsToldWhenTheVerdictFlips)
{
    m_edit.SetValidCharSet(VVE_DECIMAL, NULL);
    m_edit.SetWindowText(L"1");
    m_parent.validity.clear();
    m_edit.SetWindowText(L"2");
    EXPECT_TRUE(m_parent.validity.empty());
    m_edit.SetWindowText(L"x");
    ASSERT_EQ(1u, m_parent.validity.size());
    EXPECT_EQ(m_edit.m_hWnd, m_parent.validity[0].window);
    EXPECT_EQ(EditParent::kEditId, m_parent.validity[0].controlId);
    EXPECT_EQ(VVB_INVALID, m_parent.validity[0].status);
    EXPECT_EQ(0, m_parent.validity[0].valid);
    m_edit.SetWindowText(L"3");
    ASSERT_EQ(2u, m_parent.validity.size());
    EXPECT_EQ(VVB_VALID, m_parent.validity[1].status);
    EXPECT_EQ(1, m_parent.validity[1].valid);
}

TEST_F(SuperEditParent, MessageNumbersAreThoseOfTheInterface)
{
    EXPECT_EQ(32769, WM_VVE_VALIDATE);
    EXPECT_EQ(32770, WM_VVE_VALIDITY);
}

TEST_F(SuperEditParent, ParentJudgesTheTextWithTheStatusBefore)
{
    m_edit.SetWindowText(L"a");
    m_edit.SetCustomValidation(1);
    m_parent.answer = VVB_INCOMPLETE;
    m_parent.askedStatus.clear();
    m_edit.SetWindowText(L"ab");
    ASSERT_FALSE(m_parent.askedStatus.empty());
    EXPECT_EQ(VVB_VALID, m_parent.askedStatus.front());
    EXPECT_EQ(L"ab", m_parent.askedText);
    EXPECT_EQ(0, m_edit.IsValid());
    EXPECT_EQ(kYellow, Colour());
    EXPECT_EQ(VVB_INCOMPLETE, m_parent.askedStatus.back());
}

TEST_F(SuperEditParent, ParentIsNotAskedWhileValidationIsDisabled)
{
    m_edit.SetCustomValidation(1);
    m_edit.SetDisableValidation(1);
    m_parent.askedStatus.clear();
    m_edit.DoValidation(0);
    EXPECT_TRUE(m_parent.askedStatus.empty());
}

TEST_F(SuperEditParent, WhetherTheParentAnsweredCountsUntilItIsAskedAgain)
{
    m_edit.SetCustomValidation(1);
    m_edit.SetWindowText(L"x");
    m_edit.CheckFloat();
    EXPECT_EQ(1, m_edit.IsValidSyntax()) << "it did not answer, so nothing is wrong";
    m_parent.answer = VVB_VALID;
    m_edit.DoValidation(0);
    m_edit.CheckFloat();
    EXPECT_EQ(0, m_edit.IsValidSyntax());
}

TEST_F(SuperEditParent, CustomVerdictsHaveTheirColoursAndCanCountAsValid)
{
    m_edit.SetCustomValidation(1);
    m_parent.answer = VVB_CUSTOM1;
    EXPECT_EQ(kPink, ColourOf(L"a"));
    EXPECT_EQ(0, m_edit.IsValid());
    m_parent.answer = VVB_CUSTOM2;
    EXPECT_EQ(kBlue, ColourOf(L"b"));
    m_edit.SetCustomErrorIsValid(2, 1);
    EXPECT_EQ(kBlue, ColourOf(L"c"));
    EXPECT_EQ(1, m_edit.IsValid());
}

TEST_F(SuperEditParent, CustomVerdictsAreNumberedFromOneToTwo)
{
    int valid = 7;
    EXPECT_EQ(1, m_edit.GetCustomErrorIsValid(1, valid));
    EXPECT_EQ(0, valid);
    m_edit.SetCustomErrorIsValid(2, 1);
    EXPECT_EQ(1, m_edit.GetCustomErrorIsValid(2, valid));
    EXPECT_EQ(1, valid);
    for (const int which : {0, 3, -1, 1000})
    {
        valid = 7;
        m_edit.SetCustomErrorIsValid(which, 1);
        EXPECT_EQ(0, m_edit.GetCustomErrorIsValid(which, valid)) << which;
        EXPECT_EQ(7, valid) << which;
    }
    EXPECT_EQ(1, m_edit.GetCustomErrorIsValid(1, valid));
    EXPECT_EQ(0, valid);
}
