// The validating edit in a process whose numbers have a decimal comma.
#include "EditFixture.h"

#include "CommaLocale.h"

namespace
{

class SuperEditLocale : public EditFixture
{
protected:
    const CommaLocale m_comma;
};

} // namespace

TEST_F(SuperEditLocale, ValuesAreReadAndWrittenWithAPoint)
{
    m_edit.SetInputFloat(2.5, 0, 10, FALSE, TRUE, NULL);
    EXPECT_EQ(L"2.5", Text());
    EXPECT_EQ(1, m_edit.IsValid());
    EXPECT_EQ(2.5, m_edit.GetWindowValue());
    EXPECT_EQ(1, m_edit.SetWindowValue(0.125));
    EXPECT_EQ(0.125, m_edit.GetWindowValue());
    m_edit.SetWindowText(L"10.5");
    EXPECT_EQ(0, m_edit.IsValidValue()) << "the fraction counts for the limits";
}

TEST_F(SuperEditLocale, CommaStaysWrong)
{
    m_edit.SetInputFloat(2.5, 0, 10, FALSE, TRUE, NULL);
    m_edit.SetWindowText(L"1,5");
    EXPECT_EQ(0, m_edit.IsValidSyntax());
}

TEST_F(SuperEditLocale, FractionOfATextCountsWhenNewLimitsAreSet)
{
    m_edit.SetValidCharSet(VVE_FLOAT, NULL);
    m_edit.SetWindowText(L"1.5");
    m_edit.SetAllValue(1, 0, 1.25);
    EXPECT_EQ(L"1", Text());
}

TEST_F(SuperEditLocale, RangeOfATypeIsTheSame)
{
    EXPECT_EQ(0, CSuperEdit::CheckRange(VVE_FLOAT, L"0.000"));
    EXPECT_EQ(0, CSuperEdit::CheckRange(VVE_FLOAT, L"0.5"));
    EXPECT_EQ(-1, CSuperEdit::CheckRange(VVE_FLOAT, L"1.5e-400"));
    EXPECT_EQ(1, CSuperEdit::CheckRange(VVE_FLOAT, L"1.#INF"));
}

TEST_F(SuperEditLocale, TipShowsLimitsWithAPoint)
{
    m_edit.SetInputFloat(2.5, 0.5, 10, FALSE, TRUE, NULL);
    Enter();
    EXPECT_GE(m_edit.GetTipText().Find(L":0.5\n"), 0);
    EXPECT_EQ(-1, m_edit.GetTipText().Find(L','));
}
