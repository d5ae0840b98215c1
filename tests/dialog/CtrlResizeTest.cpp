// The resizer on a real dialog, and the file that keeps the places of windows.
#include <afxwin.h>

#include <gtest/gtest.h>

#include <ZNKTPub.h>

#include <cstdio>
#include <functional>
#include <limits>
#include <memory>
#include <string>

#include "DialogTemplate.h"
#include "FileAside.h"
#include "WindowOrder.h"
#include "dialog/CtrlResize.h"

namespace
{

constexpr int kEditId = 101;
constexpr int kButtonId = 102;
constexpr int kUnknownId = 999;
const wchar_t kSection[] = L"图层对话框";

// A dialog that tells when it is asked to paint or lay out.
class Form : public CDialog
{
public:
    Form()
    {
        m_template.Edit(kEditId, 10, 10).Button(kButtonId, L"按钮", 10, 40);
        CreateIndirect(m_template.Get(), NULL);
    }

    ~Form() override { DestroyWindow(); }

    CRect PlaceOf(int id)
    {
        CRect place;
        GetDlgItem(id)->GetWindowRect(&place);
        ScreenToClient(&place);
        return place;
    }

    CSize ClientSize()
    {
        CRect client;
        GetClientRect(&client);
        return client.Size();
    }

private:
    DialogTemplate m_template{L"调整", 150, 90};
};

class CtrlResize : public testing::Test
{
protected:
    CtrlResize()
    {
        resize.InitDlg(&form);
        size = form.ClientSize();
        edit = form.PlaceOf(kEditId);
        button = form.PlaceOf(kButtonId);
    }

    void GrowBy(int dx, int dy) { resize.ResizeAllCtrl(size.cx + dx, size.cy + dy); }

    Form form;
    CCtrlResize resize;
    CSize size;
    CRect edit;
    CRect button;
};

CRect Moved(CRect place, int dx, int dy)
{
    place.OffsetRect(dx, dy);
    return place;
}

} // namespace

TEST_F(CtrlResize, AControlStretchesByItsRatios)
{
    resize.AddCtrl(kEditId, 0, 0, 1, 1);
    GrowBy(30, 20);
    EXPECT_EQ(CRect(edit.left, edit.top, edit.right + 30, edit.bottom + 20), form.PlaceOf(kEditId));
}

TEST_F(CtrlResize, ARatioOfZeroKeepsTheRegisteredCoordinate)
{
    resize.AddCtrl(kEditId, 0, 0, 0, 0);
    GrowBy(30, 20);
    EXPECT_EQ(edit, form.PlaceOf(kEditId));
}

TEST_F(CtrlResize, HalfALeftRatioMovesByHalfTheGrowth)
{
    resize.AddCtrl(kButtonId, 0.5, 0, 0, 0);
    GrowBy(31, 0);
    EXPECT_EQ(Moved(button, 15, 0), form.PlaceOf(kButtonId));
}

TEST_F(CtrlResize, ShrinkingBelowTheInitialSizeMovesBack)
{
    resize.AddCtrl(kButtonId, 1, 1, 0, 0);
    GrowBy(-7, -9);
    EXPECT_EQ(Moved(button, -7, -9), form.PlaceOf(kButtonId));
}

TEST_F(CtrlResize, GrowthCountsFromTheBeginningSoThatNoRoundingAddsUp)
{
    resize.AddCtrl(kButtonId, 0.3, 0.3, 0, 0);
    for (int growth = 1; growth <= 50; ++growth)
        GrowBy(growth, growth);
    GrowBy(0, 0);
    EXPECT_EQ(button, form.PlaceOf(kButtonId));
}

TEST_F(CtrlResize, EveryRegisteredControlIsLaidOut)
{
    resize.AddCtrl(kEditId, 0, 0, 1, 0);
    resize.AddCtrl(kButtonId, 1, 0, 0, 0);
    GrowBy(12, 0);
    EXPECT_EQ(edit.Width() + 12, form.PlaceOf(kEditId).Width());
    EXPECT_EQ(Moved(button, 12, 0), form.PlaceOf(kButtonId));
}

TEST_F(CtrlResize, RegisteringAgainReplacesRatiosAndPlace)
{
    resize.AddCtrl(kButtonId, 1, 1, 0, 0);
    form.GetDlgItem(kButtonId)->SetWindowPos(NULL, 3, 4, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    resize.AddCtrl(kButtonId, 0, 0, 0, 0);
    GrowBy(30, 30);
    EXPECT_EQ(CPoint(3, 4), form.PlaceOf(kButtonId).TopLeft());
}

TEST_F(CtrlResize, ModifyingShiftsTheRegisteredPlaceUntilTheNextLayout)
{
    resize.AddCtrl(kEditId, 0, 0, 0, 0);
    resize.ModiCtrl(kEditId, 1, 2, 30, 40);
    EXPECT_EQ(edit, form.PlaceOf(kEditId));
    GrowBy(0, 0);
    const CRect expected(edit.left + 1, edit.top + 2, edit.right + 31, edit.bottom + 42);
    EXPECT_EQ(expected, form.PlaceOf(kEditId));
}

TEST_F(CtrlResize, ModifyingAnUnknownIdIsIgnored)
{
    resize.AddCtrl(kEditId, 0, 0, 0, 0);
    resize.ModiCtrl(kButtonId, 10, 10, 10, 10);
    GrowBy(5, 5);
    EXPECT_EQ(button, form.PlaceOf(kButtonId));
    EXPECT_EQ(edit, form.PlaceOf(kEditId));
}

TEST_F(CtrlResize, RegisteringAnUnknownIdIsIgnored)
{
    resize.AddCtrl(kUnknownId, 1, 1, 0, 0);
    resize.ModiCtrl(kUnknownId, 1, 1, 1, 1);
    resize.AddCtrl(kButtonId, 1, 0, 0, 0);
    GrowBy(5, 5);
    EXPECT_EQ(Moved(button, 5, 0), form.PlaceOf(kButtonId));
}

TEST_F(CtrlResize, AControlThatIsGoneIsPassedOver)
{
    resize.AddCtrl(kEditId, 1, 0, 0, 0);
    resize.AddCtrl(kButtonId, 1, 0, 0, 0);
    form.GetDlgItem(kEditId)->DestroyWindow();
    GrowBy(8, 0);
    EXPECT_EQ(Moved(button, 8, 0), form.PlaceOf(kButtonId));
}

TEST_F(CtrlResize, AnAbsurdRatioHarmsNoOtherControl)
{
    resize.AddCtrl(kEditId, std::numeric_limits<double>::quiet_NaN(), 0, 1e300, 0);
    resize.AddCtrl(kButtonId, 1, 0, 0, 0);
    GrowBy(8, 0);
    EXPECT_EQ(Moved(button, 8, 0), form.PlaceOf(kButtonId));
}

TEST(CtrlResizeWithoutDialog, DoesNothing)
{
    CCtrlResize resize;
    resize.AddCtrl(kEditId, 1, 1, 1, 1);
    resize.ModiCtrl(kEditId, 1, 1, 1, 1);
    resize.ResizeAllCtrl(100, 100);
    resize.InitDlg(NULL);
    resize.AddCtrl(kEditId, 1, 1, 1, 1);
    resize.ResizeAllCtrl(100, 100);
    SUCCEED() << "reached without a fault";
}

TEST(CtrlResizeWithoutDialog, LeavesADestroyedDialogAlone)
{
    Form form;
    CCtrlResize resize;
    resize.InitDlg(&form);
    resize.AddCtrl(kEditId, 1, 1, 1, 1);
    form.DestroyWindow();
    resize.ResizeAllCtrl(500, 500);
    EXPECT_EQ(nullptr, form.m_hWnd);
}

namespace
{

// A control that does something when it is moved.
class MovedControl : public CWnd
{
public:
    explicit MovedControl(CDialog& dialog, int id = kEditId) { SubclassDlgItem(id, &dialog); }

    std::function<void()> onMoved;
    int paints = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        paints += message == WM_PAINT;
        const LRESULT result = CWnd::WindowProc(message, wParam, lParam);
        if (message == WM_MOVE && onMoved)
            onMoved();
        return result;
    }
};

} // namespace

TEST_F(CtrlResize, AControlThatIsMovedMayRegisterOthers)
{
    MovedControl moved(form);
    moved.onMoved = [&] {
        for (int id = kButtonId; id < kButtonId + 30; ++id)
            resize.AddCtrl(id, 1, 1, 0, 0);
    };
    resize.AddCtrl(kEditId, 1, 0, 0, 0);
    GrowBy(5, 0);
    GrowBy(10, 0);
    EXPECT_EQ(Moved(edit, 10, 0), form.PlaceOf(kEditId));
    EXPECT_EQ(Moved(button, 10, 0), form.PlaceOf(kButtonId));
}

// At once on Windows, with the next paint under Wine; a button does nothing for it by itself.
TEST_F(CtrlResize, AControlThatIsMovedRepaints)
{
    form.ShowWindow(SW_SHOWNA);
    MovedControl moved(form, kButtonId);
    form.RedrawWindow(NULL, NULL, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    moved.paints = 0;
    resize.AddCtrl(kButtonId, 0, 0, 1, 1);
    GrowBy(30, 20);
    EXPECT_TRUE(moved.paints > 0 || moved.GetUpdateRect(NULL));
}

TEST(CtrlResizeReentered, AControlThatIsMovedMayEndTheDialogAndTheResizer)
{
    std::unique_ptr<Form> form(new Form);
    std::unique_ptr<CCtrlResize> resize(new CCtrlResize);
    MovedControl moved(*form);
    resize->InitDlg(form.get());
    resize->AddCtrl(kEditId, 1, 0, 0, 0);
    resize->AddCtrl(kButtonId, 1, 0, 0, 0);
    moved.onMoved = [&] {
        resize.reset();
        form->DestroyWindow();
    };
    const CSize size = form->ClientSize();
    resize->ResizeAllCtrl(size.cx + 5, size.cy);
    EXPECT_EQ(nullptr, form->m_hWnd);
}

namespace
{

class WindowPosFile : public testing::Test
{
protected:
    WindowPosFile() : path(ZNKTPub::GetCurUserWayfarerPath() + L"\\WindowPos.ini"), m_aside(path)
    {
        window.Create(WC_STATIC, L"", WS_POPUP, CRect(100, 120, 400, 320), NULL, 0);
    }

    ~WindowPosFile() override { window.DestroyWindow(); }

    int Stored(const wchar_t* key, const wchar_t* section = kSection) const
    {
        return static_cast<int>(::GetPrivateProfileIntW(section, key, kMissing, path));
    }

    void Write(const wchar_t* key, const wchar_t* value)
    {
        if (!FileExists())
            WriteBytes("\xFF\xFE"); // UTF-16, which holds the section's name on every machine
        ::WritePrivateProfileStringW(kSection, key, value, path);
    }

    void WriteBytes(const std::string& bytes)
    {
        FILE* file = ::_wfopen(path, L"wb");
        std::fwrite(bytes.data(), 1, bytes.size(), file);
        std::fclose(file);
    }

    bool FileExists() const { return ::GetFileAttributesW(path) != INVALID_FILE_ATTRIBUTES; }

    CRect Place() const
    {
        CRect place;
        window.GetWindowRect(&place);
        return place;
    }

    void MoveTo(const CRect& place) { window.MoveWindow(&place); }

    static constexpr int kMissing = -4711;
    const CString path;
    CWnd window;

private:
    const FileAside m_aside;
};

} // namespace

TEST_F(WindowPosFile, KeepsThePlaceUnderTheNameOfTheWindow)
{
    CCtrlResize::SaveWinPos(kSection, window, FALSE);
    EXPECT_EQ(100, Stored(L"TopLX"));
    EXPECT_EQ(120, Stored(L"TopLY"));
    EXPECT_EQ(kMissing, Stored(L"Width"));
    EXPECT_EQ(kMissing, Stored(L"Height"));
}

TEST_F(WindowPosFile, KeepsTheSizeWhenAsked)
{
    CCtrlResize::SaveWinPos(kSection, window, TRUE);
    EXPECT_EQ(100, Stored(L"TopLX"));
    EXPECT_EQ(300, Stored(L"Width"));
    EXPECT_EQ(200, Stored(L"Height"));
}

TEST_F(WindowPosFile, RestoresPlaceAndSize)
{
    CCtrlResize::SaveWinPos(kSection, window, TRUE);
    MoveTo(CRect(5, 6, 50, 60));
    CCtrlResize::RestoreWinPos(kSection, window, TRUE);
    EXPECT_EQ(CRect(100, 120, 400, 320), Place());
}

TEST_F(WindowPosFile, RestoresThePlaceAlone)
{
    CCtrlResize::SaveWinPos(kSection, window, TRUE);
    MoveTo(CRect(5, 6, 55, 66));
    CCtrlResize::RestoreWinPos(kSection, window, FALSE);
    EXPECT_EQ(CRect(100, 120, 150, 180), Place());
}

// Children, because a window of the desktop comes to the front when it is activated.
TEST_F(WindowPosFile, RestoringLeavesTheOrderOfWindowsAlone)
{
    CWnd below;
    CWnd cover;
    below.Create(WC_STATIC, L"", WS_CHILD, CRect(0, 0, 30, 20), &window, 1);
    cover.Create(WC_STATIC, L"", WS_CHILD, CRect(0, 0, 30, 20), &window, 2);
    cover.BringWindowToTop();
    CCtrlResize::SaveWinPos(kSection, window, TRUE);
    for (const int withSize : {FALSE, TRUE})
    {
        ASSERT_TRUE(IsAbove(cover, below));
        CCtrlResize::RestoreWinPos(kSection, below, withSize);
        EXPECT_TRUE(IsAbove(cover, below)) << withSize;
    }
}

TEST_F(WindowPosFile, WindowsWithNamesOfOneLengthDoNotMeet)
{
    CCtrlResize::SaveWinPos(L"图层", window, FALSE);
    MoveTo(CRect(7, 8, 50, 60));
    CCtrlResize::SaveWinPos(L"线型", window, FALSE);
    EXPECT_EQ(100, Stored(L"TopLX", L"图层"));
    EXPECT_EQ(7, Stored(L"TopLX", L"线型"));
}

TEST_F(WindowPosFile, WithoutAStoredPlaceTheWindowStays)
{
    CCtrlResize::RestoreWinPos(kSection, window, TRUE);
    EXPECT_EQ(CRect(100, 120, 400, 320), Place());
    EXPECT_FALSE(FileExists()) << "reading makes no file";
}

TEST_F(WindowPosFile, APlaceBeyondTheRightOfTheScreenIsIgnored)
{
    CString x;
    x.Format(L"%d", ::GetSystemMetrics(SM_CXSCREEN) - 9);
    Write(L"TopLX", x);
    Write(L"TopLY", L"10");
    CCtrlResize::RestoreWinPos(kSection, window, FALSE);
    EXPECT_EQ(CPoint(100, 120), Place().TopLeft());
}

TEST_F(WindowPosFile, ASizeLargerThanTheScreenIsCutToIt)
{
    Write(L"TopLX", L"1");
    Write(L"TopLY", L"2");
    Write(L"Width", L"100000");
    Write(L"Height", L"100000");
    CCtrlResize::RestoreWinPos(kSection, window, TRUE);
    EXPECT_EQ(CSize(::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN)), Place().Size());
}

TEST_F(WindowPosFile, RestoringASizeThatWasNotKeptPassesOnMinusOne)
{
    struct Listener : public CWnd
    {
        CSize asked{0, 0};
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_WINDOWPOSCHANGING)
                asked = CSize(reinterpret_cast<WINDOWPOS*>(lParam)->cx, reinterpret_cast<WINDOWPOS*>(lParam)->cy);
            return CWnd::WindowProc(message, wParam, lParam);
        }
    } listener;
    listener.SubclassWindow(window.Detach());
    CCtrlResize::SaveWinPos(kSection, listener, FALSE);
    CCtrlResize::RestoreWinPos(kSection, listener, TRUE);
    // The system passes a negative size on as none.
    EXPECT_LE(listener.asked.cx, 0);
    EXPECT_LE(listener.asked.cy, 0);
    listener.DestroyWindow();
}

TEST_F(WindowPosFile, AbsurdNumbersLeaveTheWindowAlone)
{
    for (const wchar_t* value : {L"99999999999999999999", L"-5", L"2147483647", L"4294967290"})
    {
        Write(L"TopLX", value);
        Write(L"TopLY", value);
        CCtrlResize::RestoreWinPos(kSection, window, TRUE);
        EXPECT_EQ(CRect(100, 120, 400, 320), Place()) << CStringA(value).GetString();
    }
}

TEST_F(WindowPosFile, AFileThatNobodyMayWriteKeepsWhatItHolds)
{
    const std::string former = "[Layers]\r\nTopLX=33\r\nTopLY=44\r\n";
    WriteBytes(former);
    const HANDLE held = ::CreateFileW(path, GENERIC_READ, FILE_SHARE_READ, NULL, OPEN_EXISTING, 0, NULL);
    ASSERT_NE(INVALID_HANDLE_VALUE, held);
    CCtrlResize::SaveWinPos(L"Layers", window, TRUE);
    std::string now(former.size() + 100, '\0');
    DWORD count = 0;
    EXPECT_TRUE(::ReadFile(held, &now[0], static_cast<DWORD>(now.size()), &count, NULL));
    ::CloseHandle(held);
    EXPECT_EQ(former, now.substr(0, count));
}

TEST_F(WindowPosFile, AFileWithoutUnicodeIsReadAndKeptAsItIs)
{
    WriteBytes("[Layers]\r\nTopLX=33\r\nTopLY=44\r\n");
    CCtrlResize::RestoreWinPos(L"Layers", window, FALSE);
    EXPECT_EQ(CPoint(33, 44), Place().TopLeft());
    CCtrlResize::SaveWinPos(L"Blocks", window, FALSE);
    EXPECT_EQ(33, Stored(L"TopLX", L"Layers"));
    EXPECT_EQ(33, Stored(L"TopLX", L"Blocks"));
}

TEST_F(WindowPosFile, AFileThatIsNoneLeavesTheWindowAlone)
{
    WriteBytes(std::string("\x00\x01\xFF\xFE[[[\n===\0\0", 13));
    CCtrlResize::RestoreWinPos(kSection, window, TRUE);
    EXPECT_EQ(CRect(100, 120, 400, 320), Place());
}

TEST_F(WindowPosFile, WithoutANameOrAWindowNothingHappens)
{
    CCtrlResize::SaveWinPos(NULL, window, TRUE);
    CCtrlResize::SaveWinPos(L"", window, TRUE);
    CCtrlResize::SaveWinPos(kSection, NULL, TRUE);
    EXPECT_FALSE(FileExists());
    CCtrlResize::RestoreWinPos(NULL, window, TRUE);
    CCtrlResize::RestoreWinPos(kSection, NULL, TRUE);
    EXPECT_EQ(CRect(100, 120, 400, 320), Place());
}
