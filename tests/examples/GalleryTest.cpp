// The gallery in the host: its window, its pages, its search.
#include "GalleryFixture.h"

#include "Wait.h"

#include "GdiCount.h"
#include "WindowCount.h"
#include "gallery/GalleryIds.h"

#include <adui.h>
#include <commctrl.h>

#include <algorithm>
#include <set>

namespace
{

class Gallery : public GalleryFixture
{
};

// What stands between the colon and the full stop, parted by the enumeration comma.
std::vector<std::wstring> NamesIn(const std::wstring& message)
{
    std::vector<std::wstring> names;
    const std::wstring mark = L"可选：";
    size_t start = message.find(mark);
    const size_t end = message.find(L'。', start);
    if (start == std::wstring::npos || end == std::wstring::npos)
        return names;
    for (start += mark.size(); start < end;)
    {
        const size_t next = std::min(message.find(L'、', start), end);
        names.push_back(message.substr(start, next - start));
        start = next + 1;
    }
    return names;
}

} // namespace

TEST_F(Gallery, CommandOpensOneWindowOwnedByTheFrame)
{
    EXPECT_EQ(0u, Windows().size());
    Run(L"GALLERY");
    ASSERT_EQ(1u, Windows().size());
    EXPECT_TRUE(::IsWindowVisible(Window()));
    EXPECT_EQ(Frame().m_hWnd, ::GetWindow(Window(), GW_OWNER));
    const HWND first = Window();
    Run(L"控件库");
    EXPECT_EQ(first, Window());
}

TEST_F(Gallery, OpensWithAPage)
{
    Run(L"GALLERY");
    ASSERT_NE(nullptr, Page());
    EXPECT_EQ(TextOfWindow(Page()), SelectedTitle());
}

TEST_F(Gallery, EveryNameThatTheCommandOffersShowsAPageOfItsOwn)
{
    Run(L"GALLERYPAGE no-such-page");
    EXPECT_EQ(0u, Windows().size());
    const std::vector<std::wstring> names = NamesIn(printed);
    std::set<std::wstring> titles;
    for (const std::wstring& name : names)
    {
        Run((L"GALLERYPAGE " + name).c_str());
        ASSERT_NE(nullptr, Page());
        titles.insert(TextOfWindow(Page()));
    }
    EXPECT_EQ(PageItems().size(), names.size());
    EXPECT_EQ(names.size(), titles.size());
}

TEST_F(Gallery, PageIsFoundByItsTitleWhateverIsSearched)
{
    Run(L"GALLERY");
    Search(L"no such control");
    Run(L"GALLERYPAGE 可排序列表");
    EXPECT_EQ(L"可排序列表", TextOfWindow(Page()));
    EXPECT_EQ(L"可排序列表", SelectedTitle());
}

TEST_F(Gallery, SearchLeavesWhatItFindsInTheTree)
{
    Run(L"GALLERY");
    const std::vector<std::wstring> all = PageTitles();
    Search(L"sort-list");
    EXPECT_EQ(std::vector<std::wstring>{L"可排序列表"}, PageTitles());
    EXPECT_EQ(L"可排序列表", TextOfWindow(Page()));
    Search(L"");
    EXPECT_EQ(all, PageTitles());
    EXPECT_EQ(L"可排序列表", SelectedTitle()) << "the page that was open stays";
}

TEST_F(Gallery, SearchThatFindsNothingLeavesThePageOpen)
{
    Run(L"GALLERY");
    const HWND page = Page();
    Search(L"no such control");
    EXPECT_TRUE(PageTitles().empty());
    EXPECT_EQ(page, Page());
}

TEST_F(Gallery, SearchThatFindsNothingSaysSo)
{
    Run(L"GALLERY");
    Search(L"no such control");
    EXPECT_EQ(std::vector<std::wstring>{L"没有匹配"}, GroupTitles());
    Search(L"");
    EXPECT_LT(1u, GroupTitles().size());
}

TEST_F(Gallery, SearchFindsClassesHeadersFunctionsAndWords)
{
    struct Row
    {
        const wchar_t* search;
        const wchar_t* title;
    };
    Run(L"GALLERY");
    for (const Row& row : {Row{L"CStateTreeCtrl", L"勾选树"}, Row{L"ctrlresize.h", L"调整大小与位置"},
                           Row{L"SetInputFloat", L"校验编辑框"}, Row{L"上标", L"上下标文字"}})
    {
        Search(row.search);
        EXPECT_EQ(std::vector<std::wstring>{row.title}, PageTitles()) << Utf8(row.search);
    }
}

TEST_F(Gallery, PageAndCodeShareTheGrowthOfTheWindow)
{
    Run(L"GALLERY");
    const CRect window = RectOfWindow(Window());
    const CRect page = RectOfWindow(Page());
    const CRect code = RectOfWindow(Control(IDC_GALLERY_CODE));
    ::SetWindowPos(Window(), NULL, 0, 0, window.Width() + 60, window.Height() + 40, SWP_NOMOVE | SWP_NOZORDER);
    Pump();
    EXPECT_EQ(page.Size() + CSize(60, 20), RectOfWindow(Page()).Size());
    EXPECT_EQ(code.Size() + CSize(60, 20), RectOfWindow(Control(IDC_GALLERY_CODE)).Size());
    EXPECT_EQ(code.top - page.bottom, RectOfWindow(Control(IDC_GALLERY_CODE)).top - RectOfWindow(Page()).bottom);
}

TEST_F(Gallery, WindowDoesNotGetSmallerThanItsPages)
{
    Run(L"GALLERY");
    const CRect window = RectOfWindow(Window());
    ::SetWindowPos(Window(), NULL, 0, 0, window.Width() / 2, window.Height() / 2, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(window.Size(), RectOfWindow(Window()).Size());
}

TEST_F(Gallery, ControlsOfThePageFollowItsSize)
{
    Run(L"GALLERYPAGE sort-list");
    const CRect window = RectOfWindow(Window());
    const CRect list = RectOfWindow(PageControl(IDC_SORT_LIST));
    ::SetWindowPos(Window(), NULL, 0, 0, window.Width() + 60, window.Height() + 40, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(list.Size() + CSize(60, 20), RectOfWindow(PageControl(IDC_SORT_LIST)).Size());
}

TEST_F(Gallery, OpensWhereItWasClosed)
{
    Run(L"GALLERY");
    const CRect window = RectOfWindow(Window());
    const CRect place(CPoint(60, 50), window.Size() + CSize(30, 20));
    ::MoveWindow(Window(), place.left, place.top, place.Width(), place.Height(), TRUE);
    CloseGallery();
    Run(L"GALLERY");
    EXPECT_EQ(place, RectOfWindow(Window()));
}

TEST_F(Gallery, ClosedWhileItFillsTheScreenItOpensWhereItWasBefore)
{
    Run(L"GALLERY");
    const CRect place(CPoint(60, 50), RectOfWindow(Window()).Size());
    ::MoveWindow(Window(), place.left, place.top, place.Width(), place.Height(), TRUE);
    CloseGallery();
    Run(L"GALLERY");
    ::ShowWindow(Window(), SW_MAXIMIZE);
    CloseGallery();
    Run(L"GALLERY");
    EXPECT_EQ(place, RectOfWindow(Window()));
}

TEST_F(Gallery, KeepsTheFocusFromTheCommandLine)
{
    Run(L"GALLERY");
    EXPECT_EQ(TRUE, ::SendMessageW(Window(), WM_ACAD_KEEPFOCUS, 0, 0));
}

TEST_F(Gallery, ClosesAndOpensAgain)
{
    Run(L"GALLERY");
    CloseGallery();
    EXPECT_EQ(0u, Windows().size());
    Run(L"GALLERY");
    EXPECT_EQ(1u, Windows().size());
    EXPECT_NE(nullptr, Page());
}

TEST_F(Gallery, WindowDiesWithTheModule)
{
    Run(L"GALLERY");
    const HWND window = Window();
    UnloadGallery();
    EXPECT_FALSE(::IsWindow(window));
}

TEST_F(Gallery, ModuleLeavesAfterTheFrame)
{
    Run(L"GALLERY");
    const HWND window = Window();
    DestroyFrame();
    EXPECT_FALSE(::IsWindow(window));
    UnloadGallery();
    EXPECT_EQ(nullptr, ::GetModuleHandleW(L"gallery.arx"));
}

TEST_F(Gallery, PagesLeaveNoObjectsBehind)
{
    constexpr int rounds = 8;
    const auto openEveryPage = [this] {
        for (const HTREEITEM item : PageItems())
            SelectPage(item);
    };
    Run(L"GALLERY");
    openEveryPage(); // what is made once
    SelectPage(PageItems().front());
    const size_t objects = CountGdiObjects();
    const int windows = CountWindows();
    for (int round = 0; round < rounds; ++round)
        openEveryPage();
    SelectPage(PageItems().front());
    EXPECT_EQ(windows, CountWindows());
    // Windows on threads of their own end a little later.
    EXPECT_TRUE(WaitFor([&] { return CountGdiObjects() <= objects; })) << objects << " and now " << CountGdiObjects();
}

TEST_F(Gallery, WindowLeavesNoObjectsBehind)
{
    constexpr int rounds = 20;
    const auto openAndClose = [this] {
        Run(L"GALLERY");
        CloseGallery();
    };
    openAndClose(); // what is made once
    const size_t objects = CountGdiObjects();
    const int windows = CountWindows();
    for (int round = 0; round < rounds; ++round)
        openAndClose();
    EXPECT_EQ(windows, CountWindows());
    // Windows on threads of their own end a little later.
    EXPECT_TRUE(WaitFor([&] { return CountGdiObjects() <= objects; })) << objects << " and now " << CountGdiObjects();
}
