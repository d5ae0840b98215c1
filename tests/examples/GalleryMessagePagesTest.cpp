// What the pages of the messages do when they are used.
#include "GalleryFixture.h"

#include "Wait.h"
#include "WaitDialog.h"

#include <commctrl.h>

#include <thread>

namespace
{

const wchar_t kBoxTitle[] = L"Tevrin提示";
constexpr int kPaletteList = 103;

BOOL CALLBACK TakePaletteList(HWND window, LPARAM found)
{
    if (::GetDlgCtrlID(window) == kPaletteList && ClassOfWindow(window) == WC_LISTVIEWW)
        *reinterpret_cast<HWND*>(found) = window;
    return TRUE;
}

BOOL CALLBACK TakePaletteListBelow(HWND window, LPARAM found)
{
    ::EnumChildWindows(window, &TakePaletteList, found);
    return TRUE;
}

class GalleryMessagePages : public GalleryFixture
{
protected:
    void Press(int id) { ::SendMessageW(PageControl(id), BM_CLICK, 0, 0); }
    std::wstring Text(int id) const { return TextOfWindow(PageControl(id)); }

    // Null while there is no palette.
    static HWND PaletteList()
    {
        HWND list = NULL;
        ::EnumThreadWindows(::GetCurrentThreadId(), &TakePaletteListBelow, reinterpret_cast<LPARAM>(&list));
        return list;
    }
    static bool IsPaletteShown() { return PaletteList() != NULL && ::IsWindowVisible(PaletteList()); }
    static int Rows() { return static_cast<int>(::SendMessageW(PaletteList(), LVM_GETITEMCOUNT, 0, 0)); }
};

// Notes the text of the message box and closes it, from inside its message loop.
class BoxCloser
{
public:
    explicit BoxCloser(HWND window) : m_window(window)
    {
        s_text.clear();
        ::SetTimer(m_window, 1, USER_TIMER_MINIMUM, &Close);
    }
    ~BoxCloser() { ::KillTimer(m_window, 1); }
    BoxCloser(const BoxCloser&) = delete;
    BoxCloser& operator=(const BoxCloser&) = delete;

    static const std::wstring& Text() { return s_text; }

private:
    static void CALLBACK Close(HWND, UINT, UINT_PTR, DWORD)
    {
        const HWND box = ::FindWindowW(NULL, kBoxTitle);
        if (box == NULL)
            return;
        constexpr int textId = 0xFFFF;
        s_text = TextOfWindow(::GetDlgItem(box, textId));
        ::SendMessageW(box, WM_COMMAND, IDOK, 0);
    }

    static std::wstring s_text;

    HWND m_window;
};

std::wstring BoxCloser::s_text;

} // namespace

TEST_F(GalleryMessagePages, MessagesAreAddedCountedAndRemoved)
{
    Run(L"GALLERYPAGE messages");
    EXPECT_EQ(L"本组消息数: 0", Text(IDC_MESSAGES_COUNT));
    for (const int id : {IDC_MESSAGES_INFO, IDC_MESSAGES_WARNING, IDC_MESSAGES_ERROR})
        Press(id);
    EXPECT_EQ(L"本组消息数: 3", Text(IDC_MESSAGES_COUNT));
    Press(IDC_MESSAGES_REMOVE);
    EXPECT_EQ(L"本组消息数: 0", Text(IDC_MESSAGES_COUNT));
}

TEST_F(GalleryMessagePages, ThePaletteComesWhenItIsAskedForAndFollows)
{
    Run(L"GALLERYPAGE messages");
    Press(IDC_MESSAGES_WARNING);
    EXPECT_FALSE(IsPaletteShown());
    Press(IDC_MESSAGES_SHOW);
    ASSERT_TRUE(IsPaletteShown());
    EXPECT_EQ(1, Rows());
    Press(IDC_MESSAGES_ERROR);
    EXPECT_EQ(2, Rows());
    Press(IDC_MESSAGES_REMOVE_ALL);
    EXPECT_EQ(0, Rows());
    Press(IDC_MESSAGES_HIDE);
    EXPECT_FALSE(IsPaletteShown());
}

TEST_F(GalleryMessagePages, TheOperationRunsToItsEnd)
{
    Run(L"GALLERYPAGE wait-dialog");
    Press(IDC_WAIT_DIALOG_START);
    EXPECT_EQ(L"已完成：10000000 以内有 664579 个素数。", Text(IDC_WAIT_DIALOG_RESULT));
    EXPECT_TRUE(WaitDialog::WaitUntilGone());
}

TEST_F(GalleryMessagePages, CancelEndsTheOperation)
{
    Run(L"GALLERYPAGE wait-dialog");
    bool cancelled = false;
    std::thread user([&cancelled] {
        cancelled = WaitDialog::WaitUntilShown() && WaitFor([] { return WaitDialog::CancelButton() != NULL; });
        ::PostMessageW(WaitDialog::CancelButton(), BM_CLICK, 0, 0);
    });
    Press(IDC_WAIT_DIALOG_START);
    user.join();
    EXPECT_TRUE(cancelled);
    EXPECT_EQ(0u, Text(IDC_WAIT_DIALOG_RESULT).find(L"已取消：")) << Utf8(Text(IDC_WAIT_DIALOG_RESULT));
}

TEST_F(GalleryMessagePages, SummaryGoesIntoABox)
{
    Run(L"GALLERYPAGE message-object");
    const BoxCloser closer(Window());
    Press(IDC_MESSAGE_OBJECT_BOX);
    EXPECT_EQ(L"警告:检查完成，有 1 处错误", BoxCloser::Text());
    EXPECT_EQ(L"收集了 3 条消息。", Text(IDC_MESSAGE_OBJECT_RESULT));
}

TEST_F(GalleryMessagePages, SummaryGoesToTheCommandLine)
{
    Run(L"GALLERYPAGE message-object");
    Press(IDC_MESSAGE_OBJECT_LINE);
    EXPECT_NE(std::wstring::npos, printed.find(L"\n警告:检查完成，有 1 处错误")) << Utf8(printed);
}

TEST_F(GalleryMessagePages, SummaryGoesIntoThePalette)
{
    Run(L"GALLERYPAGE message-object");
    Press(IDC_MESSAGE_OBJECT_PANEL);
    ASSERT_TRUE(IsPaletteShown());
    EXPECT_EQ(3, Rows());
}
