// What the pages do when they are used.
#include "GalleryFixture.h"

#include "gallery/GalleryIds.h"

#include <commctrl.h>
#include <richedit.h>

#include <SuperEditTypes.h>

namespace
{

const wchar_t kAskedTitle[] = L"图层";
const int kAnswerId = 100;

class GalleryPages : public GalleryFixture
{
protected:
    void Type(int set, const wchar_t* text) { ::SetWindowTextW(PageControl(IDC_SUPER_EDIT_TEXT + set), text); }
    std::wstring Verdict(int set) const { return TextOfWindow(PageControl(IDC_SUPER_EDIT_VERDICT + set)); }
    std::wstring Range(int set) const { return TextOfWindow(PageControl(IDC_SUPER_EDIT_RANGE + set)); }
    std::wstring Notice(int set) const { return TextOfWindow(PageControl(IDC_SUPER_EDIT_NOTICE + set)); }

    std::wstring Answer() const { return TextOfWindow(PageControl(IDC_INPUT_DIALOG_ANSWER)); }

    // Presses the button of the page, which waits for its dialog, and gives these answers from inside.
    void Ask(const std::vector<std::wstring>& answers, int lastButton)
    {
        s_answers = answers;
        s_lastButton = lastButton;
        ::SetTimer(Window(), 1, USER_TIMER_MINIMUM, &GiveAnswer);
        ::SendMessageW(PageControl(IDC_INPUT_DIALOG_ASK), BM_CLICK, 0, 0);
        ::KillTimer(Window(), 1);
    }

private:
    static void CALLBACK GiveAnswer(HWND, UINT, UINT_PTR, DWORD)
    {
        const HWND dialog = ::FindWindowW(NULL, kAskedTitle);
        if (dialog == NULL)
            return;
        const bool isLast = s_answers.size() <= 1;
        if (!s_answers.empty())
        {
            ::SetDlgItemTextW(dialog, kAnswerId, s_answers.front().c_str());
            s_answers.erase(s_answers.begin());
        }
        ::SendMessageW(dialog, WM_COMMAND, isLast ? s_lastButton : IDOK, 0);
    }

    static std::vector<std::wstring> s_answers;
    static int s_lastButton;
};

std::vector<std::wstring> GalleryPages::s_answers;
int GalleryPages::s_lastButton = IDOK;

} // namespace

TEST_F(GalleryPages, ValidatingEditsShowTheirVerdictAsTheUserTypes)
{
    Run(L"GALLERYPAGE super-edit");
    Type(VVE_OCTAL, L"17");
    EXPECT_EQ(L"有效", Verdict(VVE_OCTAL));
    EXPECT_EQ(L"范围内", Range(VVE_OCTAL));
    Type(VVE_OCTAL, L"18");
    EXPECT_EQ(L"无效", Verdict(VVE_OCTAL));
    EXPECT_EQ(L"3 字符错误", Notice(VVE_OCTAL));
    Type(VVE_HEX, L"100000000");
    EXPECT_EQ(L"高于", Range(VVE_HEX));
    EXPECT_EQ(L"7 超出类型", Notice(VVE_HEX));
    Type(VVE_CUSTOM, L"A4");
    EXPECT_EQ(L"无效", Verdict(VVE_CUSTOM));
    EXPECT_EQ(L"不检查", Range(VVE_CUSTOM));
}

TEST_F(GalleryPages, NumberWithLimitsTellsWhichOneItBreaks)
{
    const int limits = VVE_FLOAT + 1;
    Run(L"GALLERYPAGE super-edit");
    EXPECT_EQ(L"9 高于最大值", Notice(limits));
    Type(limits, L"50");
    EXPECT_EQ(L"有效", Verdict(limits));
    Type(limits, L"-1");
    EXPECT_EQ(L"无效", Verdict(limits));
    EXPECT_EQ(L"8 低于最小值", Notice(limits));
}

TEST_F(GalleryPages, InputDialogGivesItsAnswerToThePage)
{
    Run(L"GALLERYPAGE input-dialog");
    Ask({L"  中心线 "}, IDOK);
    EXPECT_EQ(L"中心线", Answer());
}

TEST_F(GalleryPages, InputDialogRefusesWrongNames)
{
    Run(L"GALLERYPAGE input-dialog");
    Ask({L" ", L"a*b", L"a\\b", L"虚线"}, IDOK);
    EXPECT_EQ(L"虚线", Answer());
}

TEST_F(GalleryPages, CancelledInputDialogLeavesTheAnswer)
{
    Run(L"GALLERYPAGE input-dialog");
    const std::wstring before = Answer();
    Ask({L"虚线"}, IDCANCEL);
    EXPECT_EQ(before, Answer());
}

TEST_F(GalleryPages, SortableListSortsByItsHeadings)
{
    Run(L"GALLERYPAGE sort-list");
    const HWND list = PageControl(IDC_SORT_LIST);
    const auto firstCount = [list] {
        wchar_t text[16] = L"";
        ListView_GetItemText(list, 0, 1, text, 16);
        return std::stoi(text);
    };
    const int largest = firstCount();
    NMLISTVIEW click = {};
    click.hdr = {list, IDC_SORT_LIST, LVN_COLUMNCLICK};
    click.iItem = -1;
    click.iSubItem = 1;
    ::SendMessageW(Page(), WM_NOTIFY, IDC_SORT_LIST, reinterpret_cast<LPARAM>(&click));
    EXPECT_GT(largest, firstCount());
}

TEST_F(GalleryPages, RichEditFormatsTheSelection)
{
    Run(L"GALLERYPAGE rich-edit");
    const HWND text = PageControl(IDC_RICH_EDIT_TEXT);
    ASSERT_TRUE(text != NULL);
    CHARRANGE word = {6, 8};
    ::SendMessageW(text, EM_EXSETSEL, 0, reinterpret_cast<LPARAM>(&word));
    const auto isItalic = [text] {
        CHARFORMAT2W format = {};
        format.cbSize = sizeof(format);
        ::SendMessageW(text, EM_GETCHARFORMAT, SCF_SELECTION, reinterpret_cast<LPARAM>(&format));
        return (format.dwEffects & CFE_ITALIC) != 0;
    };
    EXPECT_FALSE(isItalic());
    ::SendMessageW(PageControl(IDC_RICH_EDIT_ITALIC), BM_CLICK, 0, 0);
    EXPECT_TRUE(isItalic());
    EXPECT_EQ(text, ::GetFocus()) << "the text goes on";
}
