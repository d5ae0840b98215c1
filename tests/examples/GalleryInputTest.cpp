// The gallery under a real keyboard.
#include "GalleryFixture.h"

#include "FrameworkWait.h"
#include "RealKeyboard.h"

#include <set>

namespace
{

class GalleryInput : public GalleryFixture
{
protected:
    void SetUp() override
    {
        Run(L"GALLERYPAGE sort-list");
        ::SetForegroundWindow(Window());
        ASSERT_TRUE(WaitThroughFramework([this] { return ::GetForegroundWindow() == Window(); }));
        Focus(IDC_GALLERY_TREE);
    }

    void Focus(int control) { ::SetFocus(Control(control)); }
    bool IsFocused(int control) const { return ::GetFocus() == Control(control); }
};

// Cancels the modal dialog with this title whenever it is open, from inside its message loop.
class DialogCloser
{
public:
    DialogCloser(HWND window, const wchar_t* title) : m_window(window)
    {
        s_title = title;
        s_closed = 0;
        ::SetTimer(m_window, 1, USER_TIMER_MINIMUM, &CloseDialog);
    }
    ~DialogCloser() { ::KillTimer(m_window, 1); }
    DialogCloser(const DialogCloser&) = delete;
    DialogCloser& operator=(const DialogCloser&) = delete;

    int Closed() const { return s_closed; }

private:
    static void CALLBACK CloseDialog(HWND, UINT, UINT_PTR, DWORD)
    {
        const HWND dialog = ::FindWindowW(NULL, s_title.c_str());
        if (dialog == NULL)
            return;
        ++s_closed;
        ::SendMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
    }

    static std::wstring s_title;
    static int s_closed;

    HWND m_window;
};

std::wstring DialogCloser::s_title;
int DialogCloser::s_closed = 0;

std::wstring TextOfClipboard()
{
    std::wstring text;
    if (!::OpenClipboard(NULL))
        return text;
    const HANDLE data = ::GetClipboardData(CF_UNICODETEXT);
    if (const wchar_t* const held = static_cast<const wchar_t*>(data != NULL ? ::GlobalLock(data) : NULL))
    {
        text = held;
        ::GlobalUnlock(data);
    }
    ::CloseClipboard();
    return text;
}

} // namespace

TEST_F(GalleryInput, TabGoesThroughSearchTreePageAndCode)
{
    Focus(IDC_GALLERY_SEARCH);
    PressKey(VK_TAB);
    EXPECT_TRUE(WaitThroughFramework([this] { return IsFocused(IDC_GALLERY_TREE); }));
    PressKey(VK_TAB);
    EXPECT_TRUE(WaitThroughFramework([this] { return ::GetFocus() == PageControl(IDC_SORT_LIST); }));
    PressKey(VK_TAB);
    EXPECT_TRUE(WaitThroughFramework([this] { return IsFocused(IDC_GALLERY_CODE); }));
    PressKey(VK_TAB);
    EXPECT_TRUE(WaitThroughFramework([this] { return IsFocused(IDC_GALLERY_SEARCH); }));
}

TEST_F(GalleryInput, ShiftTabGoesBackIntoThePage)
{
    Focus(IDC_GALLERY_CODE);
    PressKey(VK_TAB, VK_SHIFT);
    EXPECT_TRUE(WaitThroughFramework([this] { return ::GetFocus() == PageControl(IDC_SORT_LIST); }));
    PressKey(VK_TAB, VK_SHIFT);
    EXPECT_TRUE(WaitThroughFramework([this] { return IsFocused(IDC_GALLERY_TREE); }));
}

TEST_F(GalleryInput, ArrowsInTheTreeTurnThePages)
{
    const std::vector<std::wstring> titles = PageTitles();
    SelectPage(PageItems().front());
    PressKey(VK_DOWN);
    EXPECT_TRUE(WaitThroughFramework([&] { return TextOfWindow(Page()) == titles[1]; }));
}

TEST_F(GalleryInput, ControlAndFGoToTheSearchFromThePage)
{
    ::SetFocus(PageControl(IDC_SORT_LIST));
    PressKey(L'F', VK_CONTROL);
    EXPECT_TRUE(WaitThroughFramework([this] { return IsFocused(IDC_GALLERY_SEARCH); }));
}

TEST_F(GalleryInput, EnterGoesFromTheSearchToWhatItFound)
{
    Focus(IDC_GALLERY_SEARCH);
    PressKey(VK_RETURN);
    EXPECT_TRUE(WaitThroughFramework([this] { return IsFocused(IDC_GALLERY_TREE); }));
    EXPECT_EQ(1u, Windows().size());
}

TEST_F(GalleryInput, KeysPressTheButtonsOfThePage)
{
    const DialogCloser closer(Window(), L"图层");
    for (const WORD key : {WORD(VK_SPACE), WORD(VK_RETURN)})
    {
        Run(L"GALLERYPAGE input-dialog");
        Focus(IDC_GALLERY_TREE);
        PressKey(VK_TAB);
        ASSERT_TRUE(WaitThroughFramework([this] { return ::GetFocus() == PageControl(IDC_INPUT_DIALOG_ASK); }));
        const int before = closer.Closed();
        PressKey(key);
        EXPECT_TRUE(WaitThroughFramework([&] { return closer.Closed() > before; })) << key;
        ASSERT_EQ(1u, Windows().size());
    }
}

TEST_F(GalleryInput, F3GoesToTheSearchAndTypingReplacesIt)
{
    Search(L"sort-list");
    PressKey(VK_F3);
    ASSERT_TRUE(WaitThroughFramework([this] { return IsFocused(IDC_GALLERY_SEARCH); }));
    TypeText(L"勾选");
    EXPECT_TRUE(WaitThroughFramework([this] { return PageTitles() == std::vector<std::wstring>{L"勾选树"}; }));
}

TEST_F(GalleryInput, DownAndEnterGoFromTheSearchToTheFirstPageFound)
{
    for (const WORD key : {WORD(VK_DOWN), WORD(VK_RETURN)})
    {
        Run(L"GALLERYPAGE tree-commands");
        Search(L"树");
        const std::vector<std::wstring> found = PageTitles();
        ASSERT_LT(1u, found.size());
        ASSERT_EQ(L"条目树与命令", SelectedTitle());
        Focus(IDC_GALLERY_SEARCH);
        PressKey(key);
        EXPECT_TRUE(WaitThroughFramework([this] { return IsFocused(IDC_GALLERY_TREE); })) << key;
        EXPECT_EQ(found.front(), TextOfWindow(Page())) << key;
    }
}

TEST_F(GalleryInput, SearchWithoutAMatchKeepsTheKeys)
{
    Search(L"no such control");
    Focus(IDC_GALLERY_SEARCH);
    PressKey(VK_RETURN);
    PressKey(VK_DOWN);
    TypeText(L"x");
    EXPECT_TRUE(WaitThroughFramework(
        [this] { return TextOfWindow(Control(IDC_GALLERY_SEARCH)).find(L'x') != std::wstring::npos; }));
}

TEST_F(GalleryInput, F6AndControlTabGoAroundThePanes)
{
    const HWND panes[] = {PageControl(IDC_SORT_LIST), Control(IDC_GALLERY_CODE), Control(IDC_GALLERY_TREE)};
    for (const HWND pane : panes)
    {
        PressKey(VK_F6);
        EXPECT_TRUE(WaitThroughFramework([pane] { return ::GetFocus() == pane; }));
    }
    for (const HWND pane : panes)
    {
        PressKey(VK_TAB, VK_CONTROL);
        EXPECT_TRUE(WaitThroughFramework([pane] { return ::GetFocus() == pane; }));
    }
    PressKey(VK_F6, VK_SHIFT);
    EXPECT_TRUE(WaitThroughFramework([this] { return IsFocused(IDC_GALLERY_CODE); }));
}

TEST_F(GalleryInput, AltAndALetterReachWindowAndPage)
{
    PressKey(L'C', VK_MENU);
    EXPECT_TRUE(WaitThroughFramework([this] { return IsFocused(IDC_GALLERY_CODE); }));
    PressKey(L'F', VK_MENU);
    EXPECT_TRUE(WaitThroughFramework([this] { return IsFocused(IDC_GALLERY_SEARCH); }));
    Run(L"GALLERYPAGE messages");
    Focus(IDC_GALLERY_TREE);
    PressKey(L'D', VK_MENU);
    EXPECT_TRUE(WaitThroughFramework(
        [this] { return ::SendMessageW(PageControl(IDC_MESSAGES_BOUND), BM_GETCHECK, 0, 0) == BST_CHECKED; }));
}

TEST_F(GalleryInput, WholeCodeIsSelectedAndCopied)
{
    Focus(IDC_GALLERY_CODE);
    PressKey(L'A', VK_CONTROL);
    PressKey(L'C', VK_CONTROL);
    const std::wstring code = Code();
    EXPECT_TRUE(WaitThroughFramework([&] { return TextOfClipboard() == code; })) << Utf8(TextOfClipboard());
}

TEST_F(GalleryInput, TabReachesEveryControlOfEveryPage)
{
    for (const HTREEITEM item : PageItems())
    {
        SelectPage(item);
        SCOPED_TRACE(Utf8(SelectedTitle()));
        std::set<HWND> seen;
        std::set<HWND> missing;
        for (const HWND control : VisibleChildren(Page()))
        {
            if ((::GetWindowLongPtrW(control, GWL_STYLE) & WS_TABSTOP) != 0)
                missing.insert(control);
        }
        Focus(IDC_GALLERY_TREE);
        HWND at = ::GetFocus();
        while (at != Control(IDC_GALLERY_CODE))
        {
            PressKey(VK_TAB);
            ASSERT_TRUE(WaitThroughFramework([at] { return ::GetFocus() != at; })) << Utf8(ClassOfWindow(at));
            at = ::GetFocus();
            ASSERT_TRUE(seen.insert(at).second) << "around without the code: " << Utf8(ClassOfWindow(at));
            missing.erase(at);
        }
        EXPECT_TRUE(missing.empty()) << missing.size();
    }
}

TEST_F(GalleryInput, EscapeEmptiesTheSearchBeforeItCloses)
{
    Search(L"sort-list");
    PressKey(VK_ESCAPE);
    EXPECT_TRUE(WaitThroughFramework([this] { return TextOfWindow(Control(IDC_GALLERY_SEARCH)).empty(); }));
    ASSERT_EQ(1u, Windows().size());
    PressKey(VK_ESCAPE);
    EXPECT_TRUE(WaitThroughFramework([this] { return Windows().empty(); }));
}

TEST_F(GalleryInput, EscapeInACellLeavesTheCellOnly)
{
    Run(L"GALLERYPAGE editable-list");
    const HWND list = PageControl(IDC_EDITABLE_LIST);
    ASSERT_FALSE(VisibleChildren(list).empty());
    const auto editor = [list] {
        for (const HWND child : VisibleChildren(list))
        {
            if (ClassOfWindow(child) == L"Edit")
                return child;
        }
        return HWND(NULL);
    };
    ASSERT_TRUE(editor() != NULL) << "one cell is edited from the start";
    ::SetFocus(editor());
    PressKey(VK_ESCAPE);
    EXPECT_TRUE(WaitThroughFramework([&] { return editor() == NULL; }));
    EXPECT_EQ(1u, Windows().size());
}

TEST_F(GalleryInput, TheCommandBringsTheWindowBackToTheFront)
{
    ASSERT_TRUE(BringToFront());
    Run(L"GALLERY");
    EXPECT_TRUE(WaitThroughFramework([this] { return ::GetForegroundWindow() == Window(); }));
    EXPECT_TRUE(IsFocused(IDC_GALLERY_TREE));
}

TEST_F(GalleryInput, EscapeClosesFromEveryPlace)
{
    for (const int place : {IDC_GALLERY_SEARCH, IDC_GALLERY_TREE, IDC_GALLERY_CODE, IDC_SORT_LIST})
    {
        SetUp();
        ::SetFocus(place == IDC_SORT_LIST ? PageControl(place) : Control(place));
        PressKey(VK_ESCAPE);
        EXPECT_TRUE(WaitThroughFramework([this] { return Windows().empty(); })) << place;
    }
}
