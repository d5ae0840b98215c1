// Message boxes: what stands in them and which button they give back.
#include <ZNKTPub.h>

#include <gtest/gtest.h>

#include <thread>
#include <vector>

namespace
{
// Waits on a thread of its own for a message box of that caption, reads it and presses a button.
class BoxCloser
{
public:
    BoxCloser(const wchar_t* caption, int button) : m_thread([this, caption, button] { Run(caption, button); }) {}
    ~BoxCloser() { Join(); }

    CString Text()
    {
        Join();
        return m_text;
    }
    HWND Owner()
    {
        Join();
        return m_owner;
    }

private:
    void Run(const wchar_t* caption, int button)
    {
        const ULONGLONG timeout = 10000;
        const ULONGLONG start = ::GetTickCount64();
        HWND label = nullptr;
        while (label == nullptr && ::GetTickCount64() - start < timeout)
        {
            const HWND box = ::FindWindowW(L"#32770", caption);
            label = box == nullptr ? nullptr : FindLabel(box);
            std::this_thread::yield();
        }
        if (label == nullptr)
            return;
        std::vector<wchar_t> text(32768);
        ::SendMessageW(label, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
        m_text = text.data();
        const HWND box = ::GetParent(label);
        m_owner = ::GetWindow(box, GW_OWNER);
        ::SendMessageW(box, WM_COMMAND, MAKEWPARAM(button, BN_CLICKED),
                       reinterpret_cast<LPARAM>(::GetDlgItem(box, button)));
    }

    // The static that holds text; the icon's is a static as well. Null until the box is visible.
    static HWND FindLabel(HWND box)
    {
        const int textId = 0xFFFF;
        return ::IsWindowVisible(box) ? ::GetDlgItem(box, textId) : nullptr;
    }

    void Join()
    {
        if (m_thread.joinable())
            m_thread.join();
    }

    CString m_text;
    HWND m_owner = nullptr;
    std::thread m_thread;
};
} // namespace

TEST(ShowMsg, ShowsTheFormattedTextWithAnOkButton)
{
    BoxCloser closer(L"Suite notice", IDOK);
    EXPECT_EQ(IDOK, MFCUtils::ShowMsg(nullptr, L"Suite notice", 0, L"%d of %s", 3, L"lines"));
    EXPECT_STREQ(L"3 of lines", closer.Text());
}

TEST(ShowMsg, GivesTheButtonThatWasPressed)
{
    BoxCloser closer(L"Suite question", IDNO);
    EXPECT_EQ(IDNO, MFCUtils::ShowMsg(nullptr, L"Suite question", MB_YESNO | MB_ICONQUESTION, L"sure?"));
}

TEST(ShowMsg, AParentThatIsNoWindowCountsAsNone)
{
    BoxCloser closer(L"Suite orphan", IDOK);
    const HWND gone = reinterpret_cast<HWND>(static_cast<UINT_PTR>(0x7FFFFFF0));
    EXPECT_EQ(IDOK, MFCUtils::ShowMsg(gone, L"Suite orphan", 0, L"text"));
    EXPECT_EQ(nullptr, closer.Owner());
}

TEST(ShowMsg, TakesTextsOfAnyLength)
{
    const CString text(L'x', 5000);
    BoxCloser closer(L"Suite long", IDOK);
    EXPECT_EQ(IDOK, MFCUtils::ShowMsg(nullptr, L"Suite long", 0, L"%s", static_cast<LPCWSTR>(text)));
    EXPECT_STREQ(text, closer.Text());
}

TEST(ShowMsg, ATextThatIsNoFormatStandsInTheBoxAsItIs)
{
    BoxCloser closer(L"Suite per cent", IDOK);
    EXPECT_EQ(IDOK, MFCUtils::ShowMsg(nullptr, L"Suite per cent", 0, L"%s %n 50% %% %d"));
    EXPECT_STREQ(L"%s %n 50% % %d", closer.Text());
}

TEST(ShowMsg, ADirectiveWithoutAnArgumentStandsInTheBoxAsItIs)
{
    BoxCloser closer(L"Suite short", IDOK);
    EXPECT_EQ(IDOK, MFCUtils::ShowMsg(nullptr, L"Suite short", 0, L"%d of %s", 3));
    EXPECT_STREQ(L"3 of %s", closer.Text());
}

TEST(ShowMsg, ANullFormatShowsAnEmptyBox)
{
    BoxCloser closer(L"Suite empty", IDOK);
    EXPECT_EQ(IDOK, MFCUtils::ShowMsg(nullptr, L"Suite empty", 0, nullptr));
    EXPECT_STREQ(L"", closer.Text());
}
