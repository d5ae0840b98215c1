// The validating edit on a real parent: settings, character sets, keystrokes, edit commands, strange texts.
#include "EditFixture.h"

#include "MessageSpy.h"
#include "Wait.h"

#include <algorithm>

namespace
{

const COLORREF kRed = RGB(255, 0, 0);
const COLORREF kYellow = RGB(255, 255, 128);
const COLORREF kGreen = RGB(1, 200, 2);
const COLORREF kGrey = RGB(7, 77, 177);

COLORREF Window()
{
    return ::GetSysColor(COLOR_WINDOW);
}

class SuperEdit : public EditFixture
{
protected:
    std::wstring ValidChars() const
    {
        CString chars;
        m_edit.GetValidChars(chars);
        return chars.GetString();
    }
};

} // namespace

TEST_F(SuperEdit, BeginsWithTheDefaultsOfAPlainText)
{
    EXPECT_EQ(VVE_ALL, m_edit.GetValidSet());
    EXPECT_EQ(0, m_edit.GetTextMinLen());
    EXPECT_EQ(65535, m_edit.GetTextMaxLen());
    EXPECT_EQ(0, m_edit.GetEnableLengthCheck());
    EXPECT_EQ(0, m_edit.GetEnableRangeCheck());
    EXPECT_EQ(0, m_edit.GetEableValueCheck());
    EXPECT_EQ(0, m_edit.GetAllCharEntry());
    EXPECT_EQ(1, m_edit.GetEmptyValid());
    EXPECT_EQ(0, m_edit.GetDisableValidation());
    EXPECT_EQ(0, m_edit.GetCustomValidation());
    EXPECT_EQ(0, m_edit.GetEableTip());
    EXPECT_EQ(0.0001, m_edit.PrecValue());
    EXPECT_TRUE(m_edit.GetTipText().IsEmpty());
}

TEST_F(SuperEdit, FlagsAreKeptAsGiven)
{
    m_edit.SetEnableLengthCheck(1);
    m_edit.SetEnableRangeCheck(1);
    m_edit.SetEableValueCheck(1);
    m_edit.SetAllCharEntry(1);
    m_edit.SetEmptyValid(0);
    m_edit.SetDisableValidation(1);
    m_edit.SetCustomValidation(1);
    m_edit.SetEableTip(1);
    EXPECT_EQ(1, m_edit.GetEnableLengthCheck());
    EXPECT_EQ(1, m_edit.GetEnableRangeCheck());
    EXPECT_EQ(1, m_edit.GetEableValueCheck());
    EXPECT_EQ(1, m_edit.GetAllCharEntry());
    EXPECT_EQ(0, m_edit.GetEmptyValid());
    EXPECT_EQ(1, m_edit.GetDisableValidation());
    EXPECT_EQ(1, m_edit.GetCustomValidation());
    EXPECT_EQ(1, m_edit.GetEableTip());
}

TEST_F(SuperEdit, BeforeAValidationNothingIsValidButTheValue)
{
    TestedEdit edit;
    EXPECT_EQ(0, edit.IsValid());
    EXPECT_EQ(0, edit.IsValidSyntax());
    edit.SetEmptyValid(0);
    edit.SetEnableLengthCheck(1);
    EXPECT_EQ(0, edit.IsValidLength());
    edit.SetEableValueCheck(1);
    EXPECT_EQ(1, edit.IsValidValue());
}

// Character sets.

TEST_F(SuperEdit, SetBringsItsCharactersAndItsRangeCheck)
{
    for (int set = VVE_ALPHANUM; set <= VVE_FLOAT; ++set)
    {
        SCOPED_TRACE(set);
        m_edit.SetValidCharSet(static_cast<VVEset>(set), NULL);
        EXPECT_EQ(set, m_edit.GetValidSet());
        EXPECT_EQ(set >= VVE_DECIMAL ? 1 : 0, m_edit.GetEnableRangeCheck());
        EXPECT_FALSE(ValidChars().empty());
    }
    m_edit.SetValidCharSet(VVE_OCTAL, L"ignored");
    EXPECT_EQ(L"01234567", ValidChars());
}

TEST_F(SuperEdit, SetOfAnyCharacterForgetsTheTable)
{
    m_edit.SetValidCharSet(VVE_OCTAL, NULL);
    m_edit.SetValidCharSet(VVE_ALL, NULL);
    EXPECT_EQ(L"", ValidChars());
    EXPECT_EQ(0, m_edit.GetEnableRangeCheck());
}

TEST_F(SuperEdit, UnknownSetTakesEveryCharacter)
{
    m_edit.SetValidCharSet(static_cast<VVEset>(10), NULL);
    EXPECT_EQ(10, m_edit.GetValidSet());
    Type(L"@");
    EXPECT_EQ(L"@", Text());
    EXPECT_EQ(1, m_edit.IsValid());
}

TEST_F(SuperEdit, CustomSetTakesTheGivenCharacters)
{
    m_edit.SetValidCharSet(VVE_DECIMAL, NULL);
    m_edit.SetValidCharSet(VVE_CUSTOM, L"ba");
    EXPECT_EQ(VVE_CUSTOM, m_edit.GetValidSet());
    EXPECT_EQ(0, m_edit.GetEnableRangeCheck());
    EXPECT_EQ(L"ab", ValidChars());
}

TEST_F(SuperEdit, CustomSetWithoutCharactersOnlyClearsTheTable)
{
    m_edit.SetValidCharSet(VVE_DECIMAL, NULL);
    m_edit.SetValidCharSet(VVE_CUSTOM, NULL);
    EXPECT_EQ(VVE_DECIMAL, m_edit.GetValidSet());
    EXPECT_EQ(1, m_edit.GetEnableRangeCheck());
    EXPECT_EQ(L"", ValidChars());
    m_edit.SetValidCharSet(VVE_CUSTOM, L"");
    EXPECT_EQ(VVE_CUSTOM, m_edit.GetValidSet());
    EXPECT_EQ(0, m_edit.GetEnableRangeCheck());
}

TEST_F(SuperEdit, OwnCharactersLeaveSetAndRangeCheckAlone)
{
    m_edit.SetValidCharSet(VVE_DECIMAL, NULL);
    m_edit.SetValidChars(L"xy");
    EXPECT_EQ(L"xy", ValidChars());
    EXPECT_EQ(VVE_DECIMAL, m_edit.GetValidSet());
    EXPECT_EQ(1, m_edit.GetEnableRangeCheck());
    m_edit.SetValidChars(L"");
    EXPECT_EQ(L"", ValidChars());
    m_edit.SetValidChars(NULL);
    EXPECT_EQ(L"", ValidChars());
}

TEST_F(SuperEdit, SettingTheSetAloneLeavesTheCharacters)
{
    m_edit.SetValidChars(L"xy");
    m_edit.SetValidSet(VVE_HEX);
    EXPECT_EQ(VVE_HEX, m_edit.GetValidSet());
    EXPECT_EQ(L"xy", ValidChars());
    EXPECT_EQ(0, m_edit.GetEnableRangeCheck());
}

// Keystrokes.

TEST_F(SuperEdit, DefaultSetTakesAllKeystrokesAndIsAlwaysValid)
{
    Type(L"a1@ \x4E2D");
    EXPECT_EQ(L"a1@ \x4E2D", Text());
    EXPECT_EQ(1, m_edit.IsValid());
    EXPECT_EQ(VVB_VALID, Status());
}

TEST_F(SuperEdit, DefaultSetShowsTheEmptyBrushForAnEmptyText)
{
    m_edit.SetBrushColour(VVB_EMPTY, kGreen);
    m_edit.SetBrushColour(VVB_VALID, kGrey);
    EXPECT_EQ(kGreen, ColourOf(L""));
    EXPECT_EQ(1, m_edit.IsValid());
    EXPECT_EQ(kGrey, ColourOf(L"a"));
}

TEST_F(SuperEdit, WrongKeystrokeIsDropped)
{
    m_edit.SetValidCharSet(VVE_DECIMAL, NULL);
    Type(L"1a2");
    EXPECT_EQ(L"12", Text());
}

TEST_F(SuperEdit, ControlCharactersAlwaysPass)
{
    m_edit.SetValidCharSet(VVE_DECIMAL, NULL);
    Type(L"12\b");
    EXPECT_EQ(L"1", Text());
}

TEST_F(SuperEdit, ChineseCharacterPassesTheFilterAndIsJudgedByItsLowBits)
{
    m_edit.SetValidCharSet(VVE_DECIMAL, NULL);
    Type(L"\x4E2D");
    EXPECT_EQ(L"\x4E2D", Text());
    EXPECT_EQ(0, m_edit.IsValid());
    m_edit.SetWindowText(L"");
    Type(L"\x4E31");
    EXPECT_EQ(1, m_edit.IsValid());
}

TEST_F(SuperEdit, FilterIsOffWithAllCharEntryButValidationStays)
{
    m_edit.SetValidCharSet(VVE_DECIMAL, NULL);
    m_edit.SetAllCharEntry(1);
    Type(L"a");
    EXPECT_EQ(L"a", Text());
    EXPECT_EQ(0, m_edit.IsValid());
}

TEST_F(SuperEdit, FilterIsOffWhileValidationIsDisabled)
{
    m_edit.SetValidCharSet(VVE_DECIMAL, NULL);
    m_edit.SetDisableValidation(1);
    Type(L"a");
    EXPECT_EQ(L"a", Text());
    EXPECT_EQ(1, m_edit.IsValid());
}

// An input method hands its result over as WM_IME_CHAR, one message for each UTF-16 unit.
TEST_F(SuperEdit, TextOfAnInputMethodPassesTheFilterAndIsJudged)
{
    struct Row
    {
        const char* name;
        std::wstring typed;
        int valid;
    };
    const Row rows[] = {{"Chinese", L"\x4E2D", 0},
                        {"full-width digit", L"\xFF11", 0},
                        {"surrogate pair", L"\xD83D\xDE00", 0},
                        {"Chinese with the low bits of a digit", L"\x4E31", 1}};
    m_edit.SetValidCharSet(VVE_DECIMAL, NULL);
    for (const Row& row : rows)
    {
        SCOPED_TRACE(row.name);
        m_edit.SetWindowText(L"");
        for (const wchar_t unit : row.typed)
            m_edit.SendMessage(WM_IME_CHAR, unit, 1);
        EXPECT_TRUE(WaitFor([&] { return Text() == row.typed; }));
        EXPECT_EQ(row.valid, m_edit.IsValid());
    }
}

TEST_F(SuperEdit, LetterOfAnInputMethodIsFilteredToo)
{
    m_edit.SetValidCharSet(VVE_DECIMAL, NULL);
    m_edit.SendMessage(WM_IME_CHAR, L'a', 1);
    m_edit.SendMessage(WM_IME_CHAR, L'1', 1);
    EXPECT_TRUE(WaitFor([&] { return Text() == L"1"; }));
}

TEST_F(SuperEdit, UndoBringsTheVerdictOfTheFormerTextBack)
{
    m_edit.SetValidCharSet(VVE_DECIMAL, NULL);
    m_edit.SetWindowText(L"12");
    m_edit.SetSel(0, -1);
    m_edit.ReplaceSel(L"x", TRUE);
    EXPECT_EQ(0, m_edit.IsValid());
    m_edit.SendMessage(WM_COMMAND, 32773);
    EXPECT_EQ(L"12", Text());
    EXPECT_EQ(1, m_edit.IsValid());
}

// Edit commands.

TEST_F(SuperEdit, EditCommandsWorkOnTheText)
{
    m_edit.SetWindowText(L"one");
    m_edit.SendMessage(WM_COMMAND, 32778);
    int start = 0;
    int end = 0;
    m_edit.GetSel(start, end);
    EXPECT_EQ(0, start);
    EXPECT_EQ(3, end);
    EXPECT_EQ(m_edit.m_hWnd, ::GetFocus());
    m_edit.SendMessage(WM_COMMAND, 32774);
    EXPECT_EQ(L"", Text());
    m_edit.SendMessage(WM_COMMAND, 32776);
    m_edit.SendMessage(WM_COMMAND, 32776);
    EXPECT_EQ(L"oneone", Text());
    m_edit.SetSel(0, 1);
    m_edit.SendMessage(WM_COMMAND, 32775);
    m_edit.SendMessage(WM_COMMAND, 32777);
    EXPECT_EQ(L"neone", Text());
    m_edit.SendMessage(WM_COMMAND, 32773);
    EXPECT_EQ(L"oneone", Text());
    m_edit.SetSel(6, 6);
    m_edit.SendMessage(WM_COMMAND, 32776);
    EXPECT_EQ(L"oneoneo", Text());
}

TEST_F(SuperEdit, SelectingEverythingShowsTheCaret)
{
    m_edit.SetWindowText(std::wstring(300, L'W').c_str());
    m_edit.SetSel(0, 0);
    const MessageSpy spy(m_edit.m_hWnd, EM_SCROLLCARET);
    m_edit.SelectAll();
    EXPECT_EQ(1u, spy.Seen().size());
}

namespace
{

// A derived class has a command of its own and hears of those that the edit carries out.
class CommandedEdit : public CSuperEdit
{
public:
    std::vector<UINT> heard;

protected:
    afx_msg void OnEditCommand(UINT id) { heard.push_back(id); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CommandedEdit, CSuperEdit)
    ON_COMMAND_RANGE(32773, 32779, &CommandedEdit::OnEditCommand)
END_MESSAGE_MAP()

} // namespace

TEST_F(SuperEdit, EveryCommandGoesOnToTheBaseClass)
{
    CommandedEdit edit;
    ASSERT_TRUE(edit.Create(WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL, CRect(0, 0, 100, 20), &m_parent, 1));
    std::vector<UINT> sent;
    for (UINT id = 32773; id <= 32779; ++id)
    {
        edit.SendMessage(WM_COMMAND, id);
        sent.push_back(id);
    }
    EXPECT_EQ(sent, edit.heard);
    edit.DestroyWindow();
}

TEST_F(SuperEdit, SelectingEverythingWithoutAWindowLeavesTheFocusAlone)
{
    m_other.SetFocus();
    TestedEdit edit;
    edit.SelectAll();
    EXPECT_EQ(m_other.m_hWnd, ::GetFocus());
}

// Long and strange texts.

TEST_F(SuperEdit, PastingTextsAsLongAsTheLimitAndLongerStopsAtTheLimit)
{
    m_edit.SetValidCharSet(VVE_ALPHA, NULL);
    m_edit.SetTextLenMinMax(0, 65535);
    for (const size_t length : {65534u, 65535u, 65536u, 100000u})
    {
        m_edit.SetWindowText(L"");
        m_edit.ReplaceSel(std::wstring(length, L'a').c_str());
        EXPECT_EQ((std::min)(length, size_t(65535)), Text().size());
        EXPECT_EQ(1, m_edit.IsValid());
    }
}

TEST_F(SuperEdit, PastedLineFeedsAndUnpairedSurrogatesAreJudged)
{
    m_edit.SetValidCharSet(VVE_DECIMAL, NULL);
    for (const wchar_t* text : {L"1\n2", L"1\r\n2", L"\xD83D", L"1\xDC00"})
    {
        m_edit.SetWindowText(text);
        EXPECT_EQ(0, m_edit.IsValid()) << text;
    }
    m_edit.SetValidCharSet(VVE_ALL, NULL);
    m_edit.SetWindowText(L"\xDC00\xD83D");
    EXPECT_EQ(1, m_edit.IsValid());
    EXPECT_EQ(L"\xDC00\xD83D", Text());
}

TEST_F(SuperEdit, ValidatesTextsBeyondTheLengthThatCanBeTyped)
{
    m_edit.SetValidCharSet(VVE_ALPHA, NULL);
    const std::wstring text(70000, L'a');
    EXPECT_EQ(Window(), ColourOf(text.c_str()));
    EXPECT_EQ(1, m_edit.IsValid());
    m_edit.SetEnableLengthCheck(1);
    EXPECT_EQ(kYellow, Colour());
    EXPECT_EQ(1, m_edit.CheckLen());
}

TEST_F(SuperEdit, StrangeTextsAreJudgedLikeAnyOther)
{
    m_edit.SetInputFloat(1, 0, 10, FALSE, FALSE, NULL);
    for (const wchar_t* text : {L"NaN", L"INF", L"1,5", L"1\r\n2", L"\xD83D", L"\xFF11", L"\x00FF"})
        EXPECT_EQ(kRed, ColourOf(text)) << text;
}
