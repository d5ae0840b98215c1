// The gallery under a real keyboard.
#include "GalleryFixture.h"

#include "gallery/GalleryIds.h"

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

    static void Send(WORD key, bool down)
    {
        INPUT input = {};
        input.type = INPUT_KEYBOARD;
        input.ki.wVk = key;
        input.ki.dwFlags = down ? 0 : KEYEVENTF_KEYUP;
        ::SendInput(1, &input, sizeof(input));
    }

    static void Press(WORD key, WORD with = 0)
    {
        if (with != 0)
            Send(with, true);
        Send(key, true);
        Send(key, false);
        if (with != 0)
            Send(with, false);
    }
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

} // namespace

TEST_F(GalleryInput, TabGoesThroughSearchTreePageAndCode)
{
    Focus(IDC_GALLERY_SEARCH);
    Press(VK_TAB);
    EXPECT_TRUE(WaitThroughFramework([this] { return IsFocused(IDC_GALLERY_TREE); }));
    Press(VK_TAB);
    EXPECT_TRUE(WaitThroughFramework([this] { return ::GetFocus() == PageControl(IDC_SORT_LIST); }));
    Press(VK_TAB);
    EXPECT_TRUE(WaitThroughFramework([this] { return IsFocused(IDC_GALLERY_CODE); }));
    Press(VK_TAB);
    EXPECT_TRUE(WaitThroughFramework([this] { return IsFocused(IDC_GALLERY_SEARCH); }));
}

TEST_F(GalleryInput, ShiftTabGoesBackIntoThePage)
{
    Focus(IDC_GALLERY_CODE);
    Press(VK_TAB, VK_SHIFT);
    EXPECT_TRUE(WaitThroughFramework([this] { return ::GetFocus() == PageControl(IDC_SORT_LIST); }));
    Press(VK_TAB, VK_SHIFT);
    EXPECT_TRUE(WaitThroughFramework([this] { return IsFocused(IDC_GALLERY_TREE); }));
}

TEST_F(GalleryInput, ArrowsInTheTreeTurnThePages)
{
    const std::vector<std::wstring> titles = PageTitles();
    SelectPage(PageItems().front());
    Press(VK_DOWN);
    EXPECT_TRUE(WaitThroughFramework([&] { return TextOfWindow(Page()) == titles[1]; }));
}

TEST_F(GalleryInput, ControlAndFGoToTheSearchFromThePage)
{
    ::SetFocus(PageControl(IDC_SORT_LIST));
    Press(L'F', VK_CONTROL);
    EXPECT_TRUE(WaitThroughFramework([this] { return IsFocused(IDC_GALLERY_SEARCH); }));
}

TEST_F(GalleryInput, EnterGoesFromTheSearchToWhatItFound)
{
    Focus(IDC_GALLERY_SEARCH);
    Press(VK_RETURN);
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
        Press(VK_TAB);
        ASSERT_TRUE(WaitThroughFramework([this] { return ::GetFocus() == PageControl(IDC_INPUT_DIALOG_ASK); }));
        const int before = closer.Closed();
        Press(key);
        EXPECT_TRUE(WaitThroughFramework([&] { return closer.Closed() > before; })) << key;
        ASSERT_EQ(1u, Windows().size());
    }
}

TEST_F(GalleryInput, EscapeClosesFromEveryPlace)
{
    for (const int place : {IDC_GALLERY_SEARCH, IDC_GALLERY_TREE, IDC_GALLERY_CODE, IDC_SORT_LIST})
    {
        SetUp();
        ::SetFocus(place == IDC_SORT_LIST ? PageControl(place) : Control(place));
        Press(VK_ESCAPE);
        EXPECT_TRUE(WaitThroughFramework([this] { return Windows().empty(); })) << place;
    }
}
