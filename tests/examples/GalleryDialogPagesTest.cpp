// What the pages of the dialogs do when they are used.
#include "GalleryFixture.h"

#include "gallery/GalleryIds.h"

#include "Wait.h"

namespace
{

std::vector<std::wstring> LinesOf(HWND listBox)
{
    std::vector<std::wstring> lines;
    const int count = static_cast<int>(::SendMessageW(listBox, LB_GETCOUNT, 0, 0));
    for (int line = 0; line < count; ++line)
    {
        std::wstring text(static_cast<size_t>(::SendMessageW(listBox, LB_GETTEXTLEN, line, 0)), L'\0');
        ::SendMessageW(listBox, LB_GETTEXT, line, reinterpret_cast<LPARAM>(&text[0]));
        lines.push_back(text);
    }
    return lines;
}

} // namespace

class GalleryDialogPages : public GalleryFixture
{
};

TEST_F(GalleryDialogPages, LinksOfThePageAreCommandsAndOtherAddressesArePages)
{
    Run(L"GALLERYPAGE html");
    const HWND log = PageControl(IDC_HTML_LOG);
    for (const int id : {IDC_HTML_OPEN, IDC_HTML_ZOOM, IDC_HTML_PAGE})
    {
        const size_t before = LinesOf(log).size();
        ::SendMessageW(PageControl(id), BM_CLICK, 0, 0);
        ASSERT_TRUE(WaitFor([&] { return LinesOf(log).size() > before; })) << id;
    }
    const std::vector<std::wstring> expected = {L"打开网页: help.html", L"执行命令: open?id=3",
                                                L"执行命令: zoom?layer=0", L"打开网页: application.html"};
    EXPECT_EQ(expected, LinesOf(log));
}

TEST_F(GalleryDialogPages, ThePropertySheetTellsWhichPagesWereApplied)
{
    Run(L"GALLERYPAGE property-sheet");
    ::PostMessageW(PageControl(IDC_PROPERTY_SHEET_OPEN), BM_CLICK, 0, 0);
    const HWND log = PageControl(IDC_PROPERTY_SHEET_LOG);
    // The sheet runs its own loop inside the wait; the timer of the gallery's window closes it.
    struct Closer
    {
        static void CALLBACK Press(HWND window, UINT, UINT_PTR timer, DWORD)
        {
            const HWND found = ::FindWindowW(L"#32770", L"选项");
            if (found == NULL || !::IsWindowVisible(found))
                return;
            ::KillTimer(window, timer);
            ::PostMessageW(::GetDlgItem(found, ID_APPLY_NOW), BM_CLICK, 0, 0);
            ::PostMessageW(::GetDlgItem(found, IDCANCEL), BM_CLICK, 0, 0);
        }
    };
    ::SetTimer(Window(), 4711, 10, &Closer::Press);
    ASSERT_TRUE(WaitFor([&] { return LinesOf(log).size() == 4; }));
    const std::vector<std::wstring> expected = {L"应用: 常规", L"应用: 图形", L"应用: 输出", L"关闭: 取消"};
    EXPECT_EQ(expected, LinesOf(log));
    EXPECT_EQ(nullptr, ::FindWindowW(L"#32770", L"选项"));
}
