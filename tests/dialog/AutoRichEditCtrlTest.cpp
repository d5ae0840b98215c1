// The rich edit: RTF in and out, formats of the selection and of its paragraphs.
#include "RichEditFixture.h"

#include "GdiCount.h"
#include "MessageBoxAnswer.h"

#include <algorithm>

class AutoRichEdit : public RichEditFixture
{
protected:
    bool IsBold(long start, long end)
    {
        const CHARFORMAT2 format = Format(start, end);
        return (format.dwMask & CFM_BOLD) != 0 && (format.dwEffects & CFE_BOLD) != 0;
    }
};

// RTF of that many characters, in lines that need no breaking.
CString Lines(int characters)
{
    const int lineLength = 32;
    const CString line = CString(L'x', lineLength - 1) + L"\\par ";
    CString rtf(L"{\\rtf1 ");
    rtf.Preallocate(characters * 2);
    for (int i = 0; i < characters / lineLength; ++i)
        rtf += line;
    rtf += CString(L'y', characters % lineLength);
    rtf += L"}";
    return rtf;
}

// RTF.

TEST_F(AutoRichEdit, RtfGoesInAndComesOut)
{
    EXPECT_TRUE(m_edit.SetRTF(L"{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 Arial;}}\\f0 plain {\\b bold} end}"));
    EXPECT_EQ(L"plain bold end", Text());
    EXPECT_TRUE(IsBold(6, 10));
    EXPECT_FALSE(IsBold(0, 5));
    const CString rtf = m_edit.GetRTF();
    EXPECT_EQ(0, rtf.Find(L"{\\rtf1"));
    CAutoRichEditCtrl copy(0);
    Create(copy);
    EXPECT_TRUE(copy.SetRTF(rtf));
    EXPECT_EQ(0u, Text(copy).find(L"plain bold end"));
    copy.SetSel(6, 10);
    EXPECT_TRUE(copy.HasFormat(CFM_BOLD, CFE_BOLD));
}

TEST_F(AutoRichEdit, RtfReplacesTheWholeText)
{
    SetText(L"former text");
    m_edit.SetSel(3, 5);
    EXPECT_TRUE(m_edit.SetRTF(L"{\\rtf1 new}"));
    EXPECT_EQ(L"new", Text());
}

TEST_F(AutoRichEdit, TheStringHandedInStaysAsItWas)
{
    const CString rtf(L"{\\rtf1 kept}");
    EXPECT_TRUE(m_edit.SetRTF(rtf));
    EXPECT_STREQ(L"{\\rtf1 kept}", rtf);
}

TEST_F(AutoRichEdit, CharactersBeyondAsciiAreShown)
{
    EXPECT_TRUE(m_edit.SetRTF(L"{\\rtf1\\ansi \x4E2D\x6587 \xE9}"));
    EXPECT_EQ(L"\x4E2D\x6587 \xE9", Text());
    CAutoRichEditCtrl copy(0);
    Create(copy);
    EXPECT_TRUE(copy.SetRTF(m_edit.GetRTF()));
    EXPECT_EQ(0u, Text(copy).find(L"\x4E2D\x6587 \xE9")) << "and come out as they went in";
}

TEST_F(AutoRichEdit, AnEmptyTextEmptiesTheControl)
{
    SetText(L"former text");
    EXPECT_TRUE(m_edit.SetRTF(L""));
    EXPECT_EQ(L"", Text());
    SetText(L"former text");
    EXPECT_TRUE(m_edit.SetRTF(static_cast<LPCTSTR>(NULL)));
    EXPECT_EQ(L"", Text());
}

TEST_F(AutoRichEdit, ATextThatIsNotRtfIsRefused)
{
    for (const wchar_t* text : {L"plain text", L"}", L"{", L"\\rtf1 x", L"<html></html>", L"\x4E2D"})
    {
        EXPECT_FALSE(m_edit.SetRTF(text)) << text;
        EXPECT_TRUE(m_edit.SetRTF(L"{\\rtf1 still works}"));
        EXPECT_EQ(L"still works", Text());
    }
}

TEST_F(AutoRichEdit, ATextThatIsCutOffAnywhereLeavesTheControlWorking)
{
    const CString whole(
        L"{\\rtf1\\ansi{\\fonttbl{\\f0\\fnil Arial;}}{\\colortbl;\\red255;}\\cf1 some {\\b bold \\'e9} text}");
    for (int length = 1; length < whole.GetLength(); ++length)
    {
        m_edit.SetRTF(whole.Left(length));
        ASSERT_TRUE(m_edit.SetRTF(whole)) << length;
        ASSERT_EQ(L"some bold \xE9 text", Text()) << length;
    }
}

TEST_F(AutoRichEdit, BracesAndWordsWithoutSenseAreSurvived)
{
    for (const wchar_t* body :
         {L"}}}}}}", L"\\nosuchword99999999999999999999 x", L"\\bin1000000 x", L"\\u99999999999? x", L"\\'zz x",
          L"\\fs-1 x", L"\\cf9999 x", L"\\f77 x", L"{\\fonttbl", L"\\"})
    {
        m_edit.SetRTF(CString(L"{\\rtf1") + body + L"}");
        EXPECT_TRUE(m_edit.SetRTF(L"{\\rtf1 fine}")) << body;
        EXPECT_EQ(L"fine", Text()) << body;
    }
}

TEST_F(AutoRichEdit, ATextLongerThanTheLimitForTypingIsNotCutOff)
{
    m_edit.LimitText(100);
    EXPECT_TRUE(m_edit.SetRTF(Lines(70000)));
    EXPECT_EQ(70000, m_edit.GetTextLengthEx(GTL_DEFAULT));
    EXPECT_GE(m_edit.GetLimitText(), 70000);
    m_edit.LimitText(1000000);
    EXPECT_TRUE(m_edit.SetRTF(L"{\\rtf1 short}"));
    EXPECT_EQ(1000000, m_edit.GetLimitText()) << "a limit that is wide enough stays";
}

TEST_F(AutoRichEdit, TenMegabytesGoIn)
{
    CString rtf(L"{\\rtf1 {\\*\\nosuchdestination ");
    rtf += CString(L'a', 10 << 20);
    rtf += L"}text}";
    EXPECT_TRUE(m_edit.SetRTF(rtf));
    EXPECT_EQ(L"text", Text());
}

TEST_F(AutoRichEdit, AMegabyteOfTextGoesInAndOut)
{
    const int length = (1 << 20) + 1; // ends in a line, as a break at the very end does not count everywhere
    EXPECT_TRUE(m_edit.SetRTF(Lines(length)));
    EXPECT_EQ(length, m_edit.GetTextLengthEx(GTL_DEFAULT));
    EXPECT_GE(m_edit.GetRTF().GetLength(), length);
}

TEST_F(AutoRichEdit, TheTextThatComesOutHasLittleUnusedRoom)
{
    for (const int length : {30001, 40001, 50001, 60001})
    {
        CAutoRichEditCtrl edit(0); // a new one each, as to replace a long text takes the control long
        Create(edit);
        edit.SetRTF(Lines(length));
        const CString rtf = edit.GetRTF();
        EXPECT_LT(rtf.GetAllocLength(), rtf.GetLength() / 2 * 3) << length;
    }
}

// Characters.

struct ToggleRow
{
    const char* name;
    void (CAutoRichEditCtrl::*toggle)();
    DWORD mask;
    DWORD effect;
};

const ToggleRow kToggles[] = {
    {"bold", &CAutoRichEditCtrl::ToggleBold, CFM_BOLD, CFE_BOLD},
    {"italic", &CAutoRichEditCtrl::ToggleItalic, CFM_ITALIC, CFE_ITALIC},
    {"underline", &CAutoRichEditCtrl::ToggleUnderline, CFM_UNDERLINE, CFE_UNDERLINE},
};

TEST_F(AutoRichEdit, TogglesTurnOnAndOff)
{
    for (const ToggleRow& row : kToggles)
    {
        SetText(L"some text");
        m_edit.SetSel(0, 4);
        EXPECT_FALSE(m_edit.HasFormat(row.mask, row.effect)) << row.name;
        (m_edit.*row.toggle)();
        EXPECT_TRUE(m_edit.HasFormat(row.mask, row.effect)) << row.name;
        EXPECT_EQ(0u, Format(5, 9).dwEffects & row.effect) << row.name << " beside the selection";
        (m_edit.*row.toggle)();
        EXPECT_FALSE(m_edit.HasFormat(row.mask, row.effect)) << row.name;
    }
}

TEST_F(AutoRichEdit, TogglesLeaveTheOtherFormatsAlone)
{
    SetText(L"text");
    m_edit.SetSel(0, 2);
    m_edit.ToggleItalic();
    m_edit.SetSel(0, 4);
    m_edit.SetFontSize(20);
    m_edit.ToggleBold();
    EXPECT_TRUE(Format(0, 2).dwEffects & CFE_ITALIC);
    EXPECT_FALSE(Format(2, 4).dwEffects & CFE_ITALIC);
    EXPECT_EQ(400, Format(0, 4).yHeight);
}

TEST_F(AutoRichEdit, ASelectionThatIsPartlyBoldBecomesBoldThroughout)
{
    SetText(L"abcdef");
    m_edit.SetSel(0, 3);
    m_edit.ToggleBold();
    m_edit.SetSel(0, 6);
    EXPECT_FALSE(Format(0, 6).dwMask & CFM_BOLD);
    EXPECT_FALSE(m_edit.HasFormat(CFM_BOLD, CFE_BOLD));
    m_edit.ToggleBold();
    EXPECT_TRUE(IsBold(0, 6));
    // The same with the plain part in front.
    SetText(L"abcdef");
    m_edit.SetSel(3, 6);
    m_edit.ToggleFormat(CFM_BOLD, CFE_BOLD);
    if (IsBold(0, 6))
        m_edit.ToggleBold();
    m_edit.SetSel(0, 6);
    m_edit.ToggleBold();
    EXPECT_TRUE(IsBold(0, 6));
}

TEST_F(AutoRichEdit, AnyEffectCanBeToggled)
{
    SetText(L"text");
    m_edit.SetSel(0, 4);
    m_edit.ToggleFormat(CFM_STRIKEOUT, CFE_STRIKEOUT);
    EXPECT_TRUE(m_edit.HasFormat(CFM_STRIKEOUT, CFE_STRIKEOUT));
    m_edit.ToggleFormat(CFM_STRIKEOUT, CFE_STRIKEOUT);
    EXPECT_FALSE(m_edit.HasFormat(CFM_STRIKEOUT, CFE_STRIKEOUT));
}

TEST_F(AutoRichEdit, AColourReplacesTheAutomaticOne)
{
    SetText(L"text");
    m_edit.SetSel(0, 2);
    EXPECT_TRUE(Format(0, 2).dwEffects & CFE_AUTOCOLOR);
    m_edit.SetColor(RGB(1, 2, 3));
    EXPECT_EQ(RGB(1, 2, 3), Format(0, 2).crTextColor);
    EXPECT_FALSE(Format(0, 2).dwEffects & CFE_AUTOCOLOR);
    EXPECT_TRUE(Format(2, 4).dwEffects & CFE_AUTOCOLOR);
}

TEST_F(AutoRichEdit, AColourThatTheUserChoosesReplacesTheAutomaticOne)
{
    SetText(L"text");
    m_edit.SetSel(0, 2);
    const MessageBoxAnswer accepted(IDOK);
    m_edit.SetColor();
    ASSERT_EQ(1u, accepted.Boxes().size());
    EXPECT_FALSE(Format(0, 2).dwEffects & CFE_AUTOCOLOR);
    EXPECT_TRUE(Format(2, 4).dwEffects & CFE_AUTOCOLOR);
}

TEST_F(AutoRichEdit, TheUserChoosesFromTheColourThatThereIs)
{
    SetText(L"text");
    m_edit.SetSel(0, 2);
    m_edit.SetColor(RGB(0, 128, 64));
    const MessageBoxAnswer accepted(IDOK);
    m_edit.SetColor();
    EXPECT_EQ(RGB(0, 128, 64), Format(0, 2).crTextColor);
}

TEST_F(AutoRichEdit, AUserWhoCancelsKeepsTheColour)
{
    SetText(L"text");
    m_edit.SetSel(0, 2);
    const MessageBoxAnswer cancelled(IDCANCEL);
    m_edit.SetColor();
    ASSERT_EQ(1u, cancelled.Boxes().size());
    EXPECT_TRUE(Format(0, 2).dwEffects & CFE_AUTOCOLOR);
}

TEST_F(AutoRichEdit, FontsAreNamed)
{
    SetText(L"text");
    m_edit.SetSel(0, 2);
    m_edit.SetFontName(L"Courier New");
    EXPECT_STREQ(L"Courier New", m_edit.GetFontName());
    EXPECT_STRNE(L"Courier New", Format(2, 4).szFaceName);
}

TEST_F(AutoRichEdit, FontNamesThatAreNoneChangeNothing)
{
    SetText(L"text");
    m_edit.SetSel(0, 4);
    m_edit.SetFontName(L"Arial");
    m_edit.SetFontName(NULL);
    m_edit.SetFontName(L"");
    EXPECT_STREQ(L"Arial", m_edit.GetFontName());
    m_edit.SetFontName(CString(L'f', 100));
    EXPECT_EQ(CString(L'f', LF_FACESIZE - 1), m_edit.GetFontName()) << "as much as a font name can have";
}

TEST_F(AutoRichEdit, SizesArePoints)
{
    SetText(L"text");
    m_edit.SetSel(0, 4);
    m_edit.SetFontSize(12);
    EXPECT_EQ(12, m_edit.GetFontSize());
    EXPECT_EQ(240, Format(0, 4).yHeight);
    CHARFORMAT2 half = {};
    half.dwMask = CFM_SIZE;
    half.yHeight = 210;
    m_edit.SetSelectionCharFormat(half);
    EXPECT_EQ(10, m_edit.GetFontSize()) << "rounded down";
}

TEST_F(AutoRichEdit, SizesThatNoTextCanHaveChangeNothing)
{
    SetText(L"text");
    m_edit.SetSel(0, 4);
    m_edit.SetFontSize(12);
    for (const int points : {0, -1, 1639, INT_MAX, INT_MIN})
    {
        m_edit.SetFontSize(points);
        EXPECT_EQ(12, m_edit.GetFontSize()) << points;
    }
    for (const int points : {1, 1638})
    {
        m_edit.SetFontSize(points);
        EXPECT_EQ(points, m_edit.GetFontSize());
    }
}

TEST_F(AutoRichEdit, FontNamesAreListed)
{
    const CStringArray& names = m_edit.EnumFontNames();
    const INT_PTR count = names.GetSize();
    EXPECT_GT(count, 0);
    bool found = false;
    for (INT_PTR i = 0; i < count; ++i)
    {
        EXPECT_FALSE(names[i].IsEmpty());
        found = found || names[i] == L"Tahoma";
    }
    EXPECT_TRUE(found);
    EXPECT_EQ(count, m_edit.EnumFontNames().GetSize()) << "asking again lists each once";
}

// Paragraphs.

TEST_F(AutoRichEdit, ParagraphsAreAligned)
{
    SetText(L"one\r\ntwo");
    m_edit.SetSel(1, 1);
    m_edit.AlignCenter();
    EXPECT_EQ(3, Paragraph(0).wAlignment);
    EXPECT_EQ(1, Paragraph(4).wAlignment) << "the other paragraph";
    m_edit.AlignRight();
    EXPECT_EQ(2, Paragraph(0).wAlignment);
    m_edit.AlignLeft();
    EXPECT_EQ(1, Paragraph(0).wAlignment);
}

TEST_F(AutoRichEdit, ABulletBringsAnOffsetWhereThereIsNone)
{
    SetText(L"one\r\ntwo");
    m_edit.SetSel(0, 0);
    EXPECT_FALSE(m_edit.HasBullet());
    m_edit.ToggleBullet();
    EXPECT_TRUE(m_edit.HasBullet());
    EXPECT_EQ(PFN_BULLET, Paragraph(0).wNumbering);
    EXPECT_EQ(4, Paragraph(0).dxOffset);
    EXPECT_EQ(0, Paragraph(4).wNumbering);
}

TEST_F(AutoRichEdit, ABulletThatBringsAnOffsetGivesAllParagraphsTheIndentOfTheFirst)
{
    SetText(L"one\r\ntwo");
    PARAFORMAT2 indented = {};
    indented.dwMask = PFM_STARTINDENT;
    indented.dxStartIndent = 200;
    m_edit.SetSel(4, 4);
    m_edit.SetParaFormat(indented);
    m_edit.SetSel(0, 7);
    m_edit.ToggleBullet();
    for (const long position : {0, 4})
    {
        EXPECT_EQ(PFN_BULLET, Paragraph(position).wNumbering) << position;
        EXPECT_EQ(4, Paragraph(position).dxOffset) << position;
        EXPECT_EQ(0, Paragraph(position).dxStartIndent) << position;
    }
}

TEST_F(AutoRichEdit, ABulletKeepsTheOffsetThatTheParagraphHas)
{
    SetText(L"one");
    PARAFORMAT2 indented = {};
    indented.dwMask = PFM_OFFSET | PFM_STARTINDENT;
    indented.dxOffset = 300;
    indented.dxStartIndent = 200;
    m_edit.SetParaFormat(indented);
    m_edit.ToggleBullet();
    EXPECT_EQ(300, Paragraph(0).dxOffset);
    EXPECT_EQ(200, Paragraph(0).dxStartIndent);
}

TEST_F(AutoRichEdit, TakingTheBulletAwayClearsOffsetAndIndent)
{
    SetText(L"one");
    PARAFORMAT2 indented = {};
    indented.dwMask = PFM_OFFSET | PFM_STARTINDENT | PFM_NUMBERING;
    indented.wNumbering = PFN_BULLET;
    indented.dxOffset = 300;
    indented.dxStartIndent = 200;
    m_edit.SetParaFormat(indented);
    m_edit.ToggleBullet();
    EXPECT_FALSE(m_edit.HasBullet());
    EXPECT_EQ(0, Paragraph(0).wNumbering);
    EXPECT_EQ(0, Paragraph(0).dxOffset);
    EXPECT_EQ(0, Paragraph(0).dxStartIndent);
}

TEST_F(AutoRichEdit, OtherNumberingBecomesABullet)
{
    SetText(L"one");
    PARAFORMAT2 numbered = {};
    numbered.dwMask = PFM_NUMBERING;
    numbered.wNumbering = PFN_ARABIC;
    m_edit.SetParaFormat(numbered);
    EXPECT_FALSE(m_edit.HasBullet());
    m_edit.ToggleBullet();
    EXPECT_TRUE(m_edit.HasBullet());
}

// The window's life.

TEST_F(AutoRichEdit, WithoutAWindowNothingHappens)
{
    CAutoRichEditCtrl none(ZNKT_EDIT_MENU);
    EXPECT_STREQ(L"", none.GetRTF());
    EXPECT_FALSE(none.SetRTF(L"{\\rtf1 x}"));
    none.ToggleBold();
    none.SetColor(RGB(1, 2, 3));
    none.SetColor();
    none.SetFontName(L"Arial");
    none.SetFontSize(12);
    none.AlignCenter();
    none.ToggleBullet();
    EXPECT_EQ(0, none.GetFontSize());
    EXPECT_STREQ(L"", none.GetFontName());
    EXPECT_FALSE(none.HasFormat(CFM_BOLD, CFE_BOLD));
    EXPECT_FALSE(none.HasBullet());
    EXPECT_EQ(0, none.EnumFontNames().GetSize());
}

TEST_F(AutoRichEdit, AnObjectThatEndsBeforeItsWindowTakesItAlong)
{
    HWND window = NULL;
    {
        CAutoRichEditCtrl brief(ZNKT_EDIT_MENU);
        Create(brief);
        window = brief.m_hWnd;
        ASSERT_TRUE(::IsWindow(window));
    }
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_TRUE(CWnd::FromHandlePermanent(window) == NULL);
}

TEST_F(AutoRichEdit, AnObjectLetsGoOfAWindowThatItSubclassed)
{
    const HWND plain = ::CreateWindowW(L"RichEdit20W", L"text", WS_CHILD | WS_VISIBLE, 0, 0, 50, 20, m_owner.m_hWnd,
                                       NULL, ::GetModuleHandleW(NULL), NULL);
    const LONG_PTR procedure = ::GetWindowLongPtrW(plain, GWLP_WNDPROC);
    {
        CAutoRichEditCtrl edit(ZNKT_EDIT_MENU);
        ASSERT_TRUE(edit.SubclassWindow(plain));
        CHARFORMAT2 notBold = {};
        notBold.dwMask = CFM_BOLD;
        edit.SetDefaultCharFormat(notBold);
        edit.SetSel(0, 4);
        edit.ToggleBold();
        EXPECT_TRUE(edit.HasFormat(CFM_BOLD, CFE_BOLD));
        EXPECT_EQ(plain, edit.UnsubclassWindow());
    }
    EXPECT_EQ(procedure, ::GetWindowLongPtrW(plain, GWLP_WNDPROC));
    EXPECT_TRUE(::DestroyWindow(plain));
}

TEST_F(AutoRichEdit, ObjectAndWindowServeAgain)
{
    CAutoRichEditCtrl edit(ZNKT_EDIT_MENU);
    for (int i = 0; i < 3; ++i)
    {
        Create(edit);
        EXPECT_TRUE(edit.SetRTF(L"{\\rtf1 again}"));
        EXPECT_EQ(L"again", Text(edit));
        EXPECT_TRUE(edit.DestroyWindow());
    }
}

TEST_F(AutoRichEdit, LeavesNoGdiObjectsBehind)
{
    const auto cycle = [this] {
        CAutoRichEditCtrl edit(ZNKT_EDIT_MENU);
        Create(edit);
        edit.SetRTF(L"{\\rtf1 text {\\b bold}}");
        edit.EnumFontNames();
        edit.UpdateWindow();
        edit.DestroyWindow();
    };
    cycle();
    const size_t objects = CountGdiObjects();
    // The control keeps a few objects of its own from time to time; one that we leave is left by every cycle.
    const size_t cycles = 20;
    for (size_t i = 0; i < cycles; ++i)
        cycle();
    EXPECT_LT(CountGdiObjects(), objects + cycles);
}
