// Owners that destroy the edit while it tells or asks them something.
#include <afxwin.h>

#include <gtest/gtest.h>

#include <functional>
#include <new>

#include "edit/SuperEdit.h"

namespace
{

const int kEditId = 42;
const int kOtherId = 43;

// An edit that deletes itself with its window, as in-place editors do. Its memory can't be touched afterwards.
class ShortLivedEdit : public CSuperEdit
{
public:
    static void* operator new(size_t size)
    {
        return ::VirtualAlloc(NULL, size, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
    }

    static void operator delete(void* memory) { ::VirtualFree(memory, 0, MEM_RELEASE); }

    using CSuperEdit::CheckValueOutRange;

protected:
    void PostNcDestroy() override { delete this; }
};

class Owner : public CWnd
{
public:
    Owner()
    {
        const LPCTSTR name = AfxRegisterWndClass(0, NULL, reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1));
        CreateEx(0, name, L"owner", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(40, 40, 340, 140), NULL, 0);
    }

    ~Owner() override { DestroyWindow(); }

    // Destroys the edit at the first message of this kind.
    UINT message = 0;
    UINT code = 0; // of WM_COMMAND
    HWND edit = NULL;

protected:
    LRESULT WindowProc(UINT sent, WPARAM wParam, LPARAM lParam) override
    {
        const LRESULT result = CWnd::WindowProc(sent, wParam, lParam);
        if (sent == message && (sent != WM_COMMAND || (LOWORD(wParam) == kEditId && HIWORD(wParam) == code)))
            ::DestroyWindow(edit);
        return sent == WM_VVE_VALIDATE ? LRESULT(VVB_VALID) : result;
    }
};

struct Row
{
    const char* name;
    UINT message;
    UINT code;
};

const Row kRows[] = {
    {"query", WM_VVE_VALIDATE, 0},
    {"verdict", WM_VVE_VALIDITY, 0},
    {"change", WM_COMMAND, EN_CHANGE},
    {"update", WM_COMMAND, EN_UPDATE},
};

class SuperEditGone : public testing::Test
{
protected:
    SuperEditGone() { m_other.Create(WS_CHILD | WS_VISIBLE, CRect(10, 44, 210, 68), &m_owner, kOtherId); }

    ~SuperEditGone() override
    {
        m_owner.message = 0;
        m_other.DestroyWindow();
    }

    // An edit with a valid text, alive until the owner gets the message.
    void Make(const Row& row)
    {
        m_owner.message = 0;
        m_edit = new ShortLivedEdit;
        m_edit->Create(WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL, CRect(10, 10, 210, 34), &m_owner, kEditId);
        m_edit->SetInputFloat(5, 0, 10, FALSE, TRUE, NULL);
        m_edit->SetCustomValidation(row.message == WM_VVE_VALIDATE);
        m_edit->UpdateWindow();
        m_owner.edit = m_edit->m_hWnd;
        m_owner.message = row.message;
        m_owner.code = row.code;
    }

    void ExpectGoneBy(const std::function<void()>& work)
    {
        work();
        EXPECT_FALSE(::IsWindow(m_owner.edit));
        if (::IsWindow(m_owner.edit))
            ::DestroyWindow(m_owner.edit);
    }

    void ExpectGoneByEveryMessage(const std::function<void()>& work)
    {
        for (const Row& row : kRows)
        {
            SCOPED_TRACE(row.name);
            Make(row);
            ExpectGoneBy(work);
        }
    }

    Owner m_owner;
    CEdit m_other;
    ShortLivedEdit* m_edit = nullptr;
};

} // namespace

TEST_F(SuperEditGone, ByAKey)
{
    ExpectGoneByEveryMessage([this] { m_edit->SendMessage(WM_CHAR, L'-', 1); });
}

TEST_F(SuperEditGone, ByANewText)
{
    ExpectGoneByEveryMessage([this] { m_edit->SetWindowText(L"1e"); });
}

TEST_F(SuperEditGone, ByPaste)
{
    ExpectGoneByEveryMessage([this] { m_edit->ReplaceSel(L"-"); });
}

TEST_F(SuperEditGone, ByAnEditCommand)
{
    ExpectGoneByEveryMessage([this] {
        m_edit->SetSel(0, -1);
        m_edit->SendMessage(WM_COMMAND, 32777);
    });
}

TEST_F(SuperEditGone, ByAWrittenValue)
{
    ExpectGoneByEveryMessage([this] { EXPECT_EQ(0, m_edit->SetWindowValue(50.0)); });
    ExpectGoneByEveryMessage([this] { EXPECT_EQ(0, m_edit->SetWindowValue(50L)); });
    for (const Row& row : kRows)
    {
        SCOPED_TRACE(row.name);
        Make(row);
        m_owner.message = 0;
        m_edit->SetInputInt(5, 0, 10, FALSE, FALSE, NULL);
        m_owner.message = row.message;
        ExpectGoneBy([this] { EXPECT_EQ(0, m_edit->SetWindowValue(50.0)); });
        Make(row);
        m_owner.message = 0;
        m_edit->SetInputSInt(5, 0, 10, FALSE, FALSE, NULL);
        m_owner.message = row.message;
        ExpectGoneBy([this] { EXPECT_EQ(0, m_edit->SetWindowValue(50L)); });
        Make(row);
        m_owner.message = 0;
        m_edit->SetInputSInt(5, 0, 10, FALSE, FALSE, NULL);
        m_owner.message = row.message;
        ExpectGoneBy([this] { EXPECT_EQ(0, m_edit->SetWindowValue(50UL)); });
    }
}

TEST_F(SuperEditGone, WhenItIsSetUpForNumbers)
{
    for (const Row& row : kRows)
    {
        SCOPED_TRACE(row.name);
        const std::function<void()> setUps[] = {
            [this] { m_edit->SetInputFloat(50, 40, 60, FALSE, TRUE, L"tip"); },
            [this] { m_edit->SetInputSInt(50, 40, 60, FALSE, TRUE, L"tip"); },
            [this] { m_edit->SetInputInt(50, 40, 60, FALSE, TRUE, L"tip"); },
        };
        for (const std::function<void()>& setUp : setUps)
        {
            Make(row);
            m_edit->SetPrecValue(row.message == WM_VVE_VALIDITY ? -20 : 0); // so narrow that the verdict flips
            ExpectGoneBy(setUp);
        }
    }
}

TEST_F(SuperEditGone, ByAValidationByHand)
{
    for (const int redraw : {0, 1})
    {
        Make({"query", WM_VVE_VALIDATE, 0});
        ExpectGoneBy([&] { m_edit->DoValidation(redraw); });
        Make({"verdict", WM_VVE_VALIDITY, 0});
        m_edit->SetPrecValue(-20); // nothing lies within limits that are so narrow
        ExpectGoneBy([&] { m_edit->DoValidation(redraw); });
    }
    Make({"query", WM_VVE_VALIDATE, 0});
    ExpectGoneBy([&] { EXPECT_TRUE(m_edit->Validate() == NULL); });
}

TEST_F(SuperEditGone, WhenItGetsTheFocus)
{
    Make({"focus", WM_COMMAND, EN_SETFOCUS});
    ExpectGoneBy([this] { m_edit->SetFocus(); });
}

TEST_F(SuperEditGone, WhenItSelectsEverything)
{
    Make({"focus", WM_COMMAND, EN_SETFOCUS});
    ExpectGoneBy([this] { m_edit->SendMessage(WM_COMMAND, 32778); });
}

TEST_F(SuperEditGone, WhenItLosesTheFocus)
{
    Make({"focus", WM_COMMAND, EN_KILLFOCUS});
    m_edit->SetFocus();
    m_edit->SetWindowText(L"x");
    ExpectGoneBy([this] { m_other.SetFocus(); });
}

TEST_F(SuperEditGone, WhenItRestoresTheDefaultAfterTheFocusLeft)
{
    for (const Row& row : kRows)
    {
        SCOPED_TRACE(row.name);
        Make(row);
        m_owner.message = 0;
        m_edit->SetCustomValidation(0);
        m_edit->SetFocus();
        m_edit->SetWindowText(L"x");
        m_edit->SetCustomValidation(row.message == WM_VVE_VALIDATE);
        m_owner.message = row.message;
        ExpectGoneBy([this] { m_other.SetFocus(); });
    }
}
