// The rich edit through the framework's class.
#include "ControlFixture.h"

#include <string>

namespace
{

DWORD CALLBACK ReadBytes(DWORD_PTR cookie, LPBYTE buffer, LONG wanted, LONG* read)
{
    std::string& source = *reinterpret_cast<std::string*>(cookie);
    *read = static_cast<LONG>(source.copy(reinterpret_cast<char*>(buffer), static_cast<size_t>(wanted)));
    source.erase(0, static_cast<size_t>(*read));
    return 0;
}

DWORD CALLBACK WriteBytes(DWORD_PTR cookie, LPBYTE bytes, LONG count, LONG* written)
{
    reinterpret_cast<std::string*>(cookie)->append(reinterpret_cast<const char*>(bytes), static_cast<size_t>(count));
    *written = count;
    return 0;
}

class RichEdit : public ControlFixture
{
protected:
    void SetUp() override
    {
        ControlFixture::SetUp();
        ASSERT_TRUE(m_edit.Create(Visible | ES_MULTILINE | ES_AUTOVSCROLL, m_place, &m_parent, ControlId));
        // The system's font, which a control without any takes, may be a bold one.
        CHARFORMAT2 plain = {};
        plain.dwMask = CFM_BOLD;
        m_edit.SetDefaultCharFormat(plain);
    }

    CString Text() const
    {
        CString text;
        m_edit.GetWindowText(text);
        return text;
    }

    CRichEditCtrl m_edit;
};

} // namespace

TEST_F(RichEdit, IsTheUnicodeControlOfVersionTwo)
{
    TCHAR name[32] = L"";
    ::GetClassName(m_edit.m_hWnd, name, 32);
    EXPECT_STREQ(L"RichEdit20W", name);
    EXPECT_TRUE(m_edit.IsKindOf(RUNTIME_CLASS(CRichEditCtrl)));
    EXPECT_EQ(ControlId, m_edit.GetDlgCtrlID());
    EXPECT_TRUE(AfxInitRichEdit2());
}

TEST_F(RichEdit, SelectionIsReadWrittenAndReplaced)
{
    m_edit.SetWindowText(L"one two three");
    m_edit.SetSel(4, 7);
    long start = 0;
    long end = 0;
    m_edit.GetSel(start, end);
    EXPECT_EQ(4, start);
    EXPECT_EQ(7, end);
    EXPECT_STREQ(L"two", m_edit.GetSelText());
    TCHAR buffer[16] = L"";
    EXPECT_EQ(3, m_edit.GetSelText(reinterpret_cast<LPSTR>(buffer)));
    EXPECT_STREQ(L"two", buffer);
    EXPECT_EQ(SEL_TEXT, m_edit.GetSelectionType() & SEL_TEXT);
    m_edit.ReplaceSel(L"2", TRUE);
    EXPECT_STREQ(L"one 2 three", Text());
    CHARRANGE all = {0, -1};
    m_edit.SetSel(all);
    m_edit.GetSel(all);
    EXPECT_EQ(0, all.cpMin);
    EXPECT_GE(all.cpMax, 11);
    m_edit.SetSel(0, 0);
    EXPECT_STREQ(L"", m_edit.GetSelText());
}

TEST_F(RichEdit, LinesAndRangesAreFound)
{
    m_edit.SetWindowText(L"first\r\nsecond line\r\nthird");
    EXPECT_EQ(3, m_edit.GetLineCount());
    EXPECT_EQ(6, m_edit.LineIndex(1));
    EXPECT_EQ(1, m_edit.LineFromChar(8));
    EXPECT_EQ(11, m_edit.LineLength(8));
    TCHAR line[32] = L"";
    EXPECT_EQ(0, std::wstring(line, static_cast<size_t>(m_edit.GetLine(1, line, 32))).find(L"second line"));
    CString part;
    EXPECT_EQ(4, m_edit.GetTextRange(6, 10, part));
    EXPECT_STREQ(L"seco", part);
    EXPECT_EQ(5, m_edit.GetTextRange(18, -1, part));
    EXPECT_STREQ(L"third", part);
    EXPECT_EQ(5, m_edit.GetTextRange(18, INT_MAX, part));
    EXPECT_STREQ(L"third", part);
    EXPECT_EQ(0, m_edit.GetTextRange(100, -1, part));
    EXPECT_EQ(0, m_edit.GetTextRange(7, 7, part));
    EXPECT_TRUE(part.IsEmpty());
    FINDTEXTEX find = {};
    find.chrg.cpMax = -1;
    find.lpstrText = L"line";
    EXPECT_EQ(13, m_edit.FindText(FR_DOWN, &find));
    EXPECT_EQ(17, find.chrgText.cpMax);
    const CPoint place = m_edit.PosFromChar(7);
    EXPECT_EQ(place, m_edit.GetCharPos(7));
    EXPECT_EQ(7, m_edit.CharFromPos(place + CSize(1, 1)));
    EXPECT_EQ(0, m_edit.GetFirstVisibleLine());
}

TEST_F(RichEdit, TextHasALengthALimitAndAModifiedFlag)
{
    EXPECT_EQ(0, m_edit.GetTextLength());
    m_edit.SetWindowText(L"a\r\nb");
    EXPECT_EQ(4, m_edit.GetTextLength());
    EXPECT_EQ(3, m_edit.GetTextLengthEx(GTL_DEFAULT));
    EXPECT_EQ(4, m_edit.GetTextLengthEx(GTL_USECRLF));
    m_edit.LimitText(100000);
    EXPECT_EQ(100000, m_edit.GetLimitText());
    m_edit.SetModify(FALSE);
    EXPECT_FALSE(m_edit.GetModify());
    m_edit.ReplaceSel(L"x");
    EXPECT_TRUE(m_edit.GetModify());
    EXPECT_TRUE(m_edit.SetReadOnly());
    EXPECT_EQ(DWORD(ES_READONLY), m_edit.GetStyle() & ES_READONLY);
}

TEST_F(RichEdit, CharacterFormatsTellWhatIsTheSameThroughout)
{
    m_edit.SetWindowText(L"abcdef");
    m_edit.SetSel(0, 3);
    CHARFORMAT2 bold = {};
    bold.dwMask = CFM_BOLD | CFM_SIZE;
    bold.dwEffects = CFE_BOLD;
    bold.yHeight = 300;
    EXPECT_TRUE(m_edit.SetSelectionCharFormat(bold));
    CHARFORMAT2 format = {};
    EXPECT_TRUE(m_edit.GetSelectionCharFormat(format) & CFM_BOLD);
    EXPECT_TRUE(format.dwEffects & CFE_BOLD);
    EXPECT_EQ(300, format.yHeight);
    m_edit.SetSel(1, 5);
    EXPECT_FALSE(m_edit.GetSelectionCharFormat(format) & CFM_BOLD);
    CHARFORMAT small = {};
    m_edit.SetSel(4, 5);
    EXPECT_TRUE(m_edit.GetSelectionCharFormat(small) & CFM_BOLD);
    EXPECT_FALSE(small.dwEffects & CFE_BOLD);
}

TEST_F(RichEdit, DefaultFormatIsThatOfTextWithoutOne)
{
    CHARFORMAT2 format = {};
    format.dwMask = CFM_SIZE;
    format.yHeight = 400;
    EXPECT_TRUE(m_edit.SetDefaultCharFormat(format));
    CHARFORMAT2 read = {};
    EXPECT_TRUE(m_edit.GetDefaultCharFormat(read) & CFM_SIZE);
    EXPECT_EQ(400, read.yHeight);
}

TEST_F(RichEdit, ParagraphsAreAlignedAndNumbered)
{
    m_edit.SetWindowText(L"one\r\ntwo");
    m_edit.SetSel(0, 0);
    PARAFORMAT2 centred = {};
    centred.dwMask = PFM_ALIGNMENT | PFM_NUMBERING;
    centred.wAlignment = PFA_CENTER;
    centred.wNumbering = PFN_BULLET;
    EXPECT_TRUE(m_edit.SetParaFormat(centred));
    PARAFORMAT format = {};
    EXPECT_TRUE(m_edit.GetParaFormat(format) & PFM_ALIGNMENT);
    EXPECT_EQ(PFA_CENTER, format.wAlignment);
    EXPECT_EQ(PFN_BULLET, format.wNumbering);
    m_edit.SetSel(4, 4);
    PARAFORMAT2 second = {};
    m_edit.GetParaFormat(second);
    EXPECT_EQ(PFA_LEFT, second.wAlignment);
}

TEST_F(RichEdit, StreamsCarryFormattedText)
{
    std::string source = "{\\rtf1\\ansi plain {\\b bold}}";
    EDITSTREAM in = {DWORD_PTR(&source), 0, &ReadBytes};
    m_edit.StreamIn(SF_RTF, in);
    EXPECT_EQ(0u, in.dwError);
    EXPECT_STREQ(L"plain bold", Text());
    std::string written;
    EDITSTREAM out = {DWORD_PTR(&written), 0, &WriteBytes};
    m_edit.StreamOut(SF_RTF, out);
    EXPECT_EQ(0u, written.find("{\\rtf1"));
    EXPECT_NE(std::string::npos, written.find("\\b "));
}

TEST_F(RichEdit, ChangesAreUndoneAndRedone)
{
    m_edit.EmptyUndoBuffer();
    EXPECT_FALSE(m_edit.CanUndo());
    m_edit.ReplaceSel(L"new", TRUE);
    EXPECT_TRUE(m_edit.CanUndo());
    EXPECT_TRUE(m_edit.Undo());
    EXPECT_STREQ(L"", Text());
    EXPECT_TRUE(m_edit.CanRedo());
    EXPECT_TRUE(m_edit.Redo());
    EXPECT_STREQ(L"new", Text());
}

TEST_F(RichEdit, ClipboardTakesAndGivesText)
{
    m_edit.SetWindowText(L"abc");
    m_edit.SetSel(0, 2);
    m_edit.Copy();
    EXPECT_TRUE(m_edit.CanPaste(CF_UNICODETEXT));
    m_edit.SetSel(3, 3);
    m_edit.Paste();
    EXPECT_STREQ(L"abcab", Text());
    m_edit.SetSel(0, 3);
    m_edit.Cut();
    EXPECT_STREQ(L"ab", Text());
    m_edit.SetSel(0, 1);
    m_edit.Clear();
    EXPECT_STREQ(L"b", Text());
}

TEST_F(RichEdit, BackgroundEventsAndRectangleAreKept)
{
    m_edit.SetBackgroundColor(FALSE, RGB(1, 2, 3));
    EXPECT_EQ(RGB(1, 2, 3), m_edit.SetBackgroundColor(TRUE, 0));
    m_edit.SetEventMask(ENM_CHANGE);
    EXPECT_EQ(DWORD(ENM_CHANGE), m_edit.SetEventMask(ENM_CHANGE | ENM_LINK));
    EXPECT_EQ(DWORD(ENM_CHANGE | ENM_LINK), m_edit.GetEventMask());
    EXPECT_EQ(0, m_edit.SetAutoURLDetect());
    EXPECT_TRUE(m_edit.GetAutoURLDetect());
    const CRect wanted(10, 10, 150, 100);
    m_edit.SetRect(&wanted);
    CRect rect;
    m_edit.GetRect(&rect);
    EXPECT_EQ(wanted.left, rect.left);
    EXPECT_EQ(wanted.right, rect.right);
}

TEST_F(RichEdit, SubclassesAWindowOfTheClass)
{
    const HWND plain = ::CreateWindow(RICHEDIT_CLASSW, L"", Visible, 0, 220, 100, 50, m_parent.m_hWnd, nullptr,
                                      ::GetModuleHandle(nullptr), nullptr);
    ASSERT_TRUE(plain != nullptr);
    CRichEditCtrl edit;
    ASSERT_TRUE(edit.SubclassWindow(plain));
    edit.SetWindowText(L"through the class");
    EXPECT_EQ(17, edit.GetTextLength());
}
