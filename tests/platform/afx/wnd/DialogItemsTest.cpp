// What a window does for its dialog items: data exchange, initial texts of lists, states of command buttons.
#include <afxwin.h>

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

namespace
{
enum Ids
{
    IdEdit = 301,
    IdList = 302,
    IdKnown = 303,
    IdUnknown = 304,
    IdSwitchedOff = 305
};

class Form : public CWnd
{
public:
    enum Mood
    {
        good,
        invalid,
        lockTest
    };
    Mood mood = good;
    BOOL direction = -1;
    int changes = 0;

    void SetUp()
    {
        ASSERT_TRUE(CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 100, 100), nullptr, 0));
        Add(L"EDIT", 0, IdEdit);
        Add(L"LISTBOX", LBS_HASSTRINGS, IdList);
        Add(L"BUTTON", BS_PUSHBUTTON, IdKnown);
        Add(L"BUTTON", BS_PUSHBUTTON, IdUnknown);
        Add(L"BUTTON", BS_PUSHBUTTON, IdSwitchedOff);
    }
    bool IsItemEnabled(int id) const { return ::IsWindowEnabled(::GetDlgItem(m_hWnd, id)) != FALSE; }

protected:
    void DoDataExchange(CDataExchange* exchange) override
    {
        direction = exchange->m_bSaveAndValidate;
        if (mood == invalid)
            AfxThrowUserException();
        if (mood == lockTest)
            SetDlgItemText(IdEdit, L"set during the exchange");
    }
    afx_msg void OnChange() { ++changes; }
    afx_msg void OnKnown() {}
    afx_msg void OnSwitchedOff() {}
    afx_msg void OnUpdateSwitchedOff(CCmdUI* state) { state->Enable(FALSE); }
    DECLARE_MESSAGE_MAP()

private:
    void Add(const wchar_t* className, DWORD style, int id)
    {
        ::CreateWindow(className, L"", WS_CHILD | style, 0, 0, 20, 20, m_hWnd, HMENU(UINT_PTR(id)), nullptr, nullptr);
    }
};

BEGIN_MESSAGE_MAP(Form, CWnd)
    ON_EN_CHANGE(IdEdit, &Form::OnChange)
    ON_COMMAND(IdKnown, &Form::OnKnown)
    ON_COMMAND(IdSwitchedOff, &Form::OnSwitchedOff)
    ON_UPDATE_COMMAND_UI(IdSwitchedOff, &Form::OnUpdateSwitchedOff)
END_MESSAGE_MAP()

class DialogItems : public ::testing::Test
{
protected:
    void SetUp() override { m_form.SetUp(); }
    void TearDown() override { m_form.DestroyWindow(); }

    Form m_form;
};

// Builds the bytes of an initialisation resource.
class InitData
{
public:
    InitData& Text(WORD id, WORD message, const char* text)
    {
        Put(&id, sizeof(id));
        Put(&message, sizeof(message));
        const DWORD length = static_cast<DWORD>(strlen(text) + 1);
        Put(&length, sizeof(length));
        Put(text, length);
        return *this;
    }
    void* Get()
    {
        const WORD end = 0;
        Put(&end, sizeof(end));
        return m_bytes.data();
    }

private:
    void Put(const void* bytes, size_t count)
    {
        const BYTE* const from = static_cast<const BYTE*>(bytes);
        m_bytes.insert(m_bytes.end(), from, from + count);
    }

    std::vector<BYTE> m_bytes;
};
} // namespace

TEST_F(DialogItems, DataIsExchangedInTheAskedDirection)
{
    EXPECT_TRUE(m_form.UpdateData(FALSE));
    EXPECT_EQ(FALSE, m_form.direction);
    EXPECT_TRUE(m_form.UpdateData());
    EXPECT_EQ(TRUE, m_form.direction);
}

TEST_F(DialogItems, AWrongValueEndsTheExchange)
{
    m_form.mood = Form::invalid;
    EXPECT_FALSE(m_form.UpdateData(TRUE));
    EXPECT_EQ(nullptr, AfxGetThreadState()->m_hLockoutNotifyWindow);
}

TEST_F(DialogItems, NotificationsRestDuringTheExchange)
{
    m_form.SetDlgItemText(IdEdit, L"before");
    EXPECT_EQ(1, m_form.changes);
    m_form.mood = Form::lockTest;
    EXPECT_TRUE(m_form.UpdateData(FALSE));
    EXPECT_EQ(1, m_form.changes);
    m_form.SetDlgItemText(IdEdit, L"after");
    EXPECT_EQ(2, m_form.changes);
}

TEST_F(DialogItems, AnInitialisationResourceFillsLists)
{
    const WORD addToList = 0x0401;
    InitData data;
    data.Text(IdList, addToList, "first").Text(IdList, addToList, "second");
    EXPECT_TRUE(m_form.ExecuteDlgInit(data.Get()));
    const HWND list = ::GetDlgItem(m_form.m_hWnd, IdList);
    EXPECT_EQ(2, ::SendMessage(list, LB_GETCOUNT, 0, 0));
    wchar_t text[20] = {};
    ::SendMessage(list, LB_GETTEXT, 1, LPARAM(text));
    EXPECT_STREQ(L"second", text);
}

TEST_F(DialogItems, ADialogWithoutSuchAResourceIsFine)
{
    EXPECT_TRUE(m_form.ExecuteDlgInit(MAKEINTRESOURCE(12345)));
    EXPECT_TRUE(m_form.ExecuteDlgInit(static_cast<LPCTSTR>(nullptr)));
}

TEST_F(DialogItems, ButtonsWithoutAHandlerAreDisabled)
{
    m_form.UpdateDialogControls(&m_form, TRUE);
    EXPECT_TRUE(m_form.IsItemEnabled(IdKnown));
    EXPECT_FALSE(m_form.IsItemEnabled(IdUnknown));
    EXPECT_FALSE(m_form.IsItemEnabled(IdSwitchedOff));
    EXPECT_TRUE(m_form.IsItemEnabled(IdEdit));
}

TEST_F(DialogItems, UnknownButtonsStayAsTheyAreWhenNotAsked)
{
    m_form.UpdateDialogControls(&m_form, FALSE);
    EXPECT_TRUE(m_form.IsItemEnabled(IdUnknown));
    EXPECT_FALSE(m_form.IsItemEnabled(IdSwitchedOff));
}

TEST_F(DialogItems, TextsAndNumbersOfItems)
{
    m_form.SetDlgItemInt(IdEdit, static_cast<UINT>(-5));
    CString text;
    EXPECT_EQ(2, m_form.GetDlgItemText(IdEdit, text));
    EXPECT_STREQ(L"-5", text);
    BOOL translated = FALSE;
    EXPECT_EQ(-5, static_cast<int>(m_form.GetDlgItemInt(IdEdit, &translated)));
    EXPECT_TRUE(translated);
    text = L"kept?";
    EXPECT_EQ(0, m_form.GetDlgItemText(9999, text));
    EXPECT_STREQ(L"", text);
}
