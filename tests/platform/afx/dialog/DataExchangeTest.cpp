#include "MessageBoxCloser.h"
#include "ScriptedDialog.h"

#include <afxdd_.h>
#include <commctrl.h>
#include <gtest/gtest.h>

#include <functional>

namespace
{
const int IDC_TEXT = 200;
const int IDC_CHECK = 201;
const int IDC_RADIO_1 = 202;
const int IDC_RADIO_2 = 203;
const int IDC_RADIO_3 = 204;
const int IDC_LIST = 205;
const int IDC_COMBO = 206;
const int IDC_DROPLIST = 207;
const int IDC_SCROLL = 208;
const int IDC_MISSING = 299;

// A dialog whose exchange is given by the test.
class FormDialog : public CDialog
{
public:
    typedef std::function<void(CDataExchange*)> Exchange;

    BOOL Make(CWnd* owner)
    {
        DialogTemplate form(L"Form", 200, 120);
        form.Edit(IDC_TEXT, 10, 10).Edit(IDC_FIRST_EDIT, 10, 100);
        form.Button(IDC_CHECK, L"Check", 10, 30, BS_AUTO3STATE);
        form.Button(IDC_RADIO_1, L"1", 10, 50, BS_AUTORADIOBUTTON | WS_GROUP);
        form.Button(IDC_RADIO_2, L"2", 60, 50, BS_AUTORADIOBUTTON)
            .Button(IDC_RADIO_3, L"3", 110, 50, BS_AUTORADIOBUTTON);
        form.Control(L"LISTBOX", L"", IDC_LIST, WS_GROUP | WS_BORDER, 80, 5, 40, 40);
        form.Control(L"COMBOBOX", L"", IDC_COMBO, CBS_DROPDOWN, 130, 5, 40, 60);
        form.Control(L"COMBOBOX", L"", IDC_DROPLIST, CBS_DROPDOWNLIST, 130, 30, 40, 60);
        form.Control(L"SCROLLBAR", L"", IDC_SCROLL, SBS_HORZ, 10, 80, 80, 10);
        return CreateIndirect(form.Get(), owner);
    }

    Exchange m_exchange;

protected:
    void DoDataExchange(CDataExchange* exchange) override
    {
        if (m_exchange)
            m_exchange(exchange);
    }
};
} // namespace

class DataExchange : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_dialog.Make(&m_owner));
        const wchar_t* const words[] = {L"alpha", L"beta", L"betamax"};
        const int lists[][2] = {{IDC_LIST, LB_ADDSTRING}, {IDC_COMBO, CB_ADDSTRING}, {IDC_DROPLIST, CB_ADDSTRING}};
        for (const auto& list : lists)
            for (const wchar_t* word : words)
                m_dialog.SendDlgItemMessage(list[0], list[1], 0, LPARAM(word));
        ::SetScrollRange(::GetDlgItem(m_dialog.m_hWnd, IDC_SCROLL), SB_CTL, 0, 100, FALSE);
    }
    void TearDown() override { m_dialog.DestroyWindow(); }

    template<class VALUE>
    void Show(int id, VALUE value, void(AFXAPI* ddx)(CDataExchange*, int, VALUE&))
    {
        m_dialog.m_exchange = [&](CDataExchange* exchange) { ddx(exchange, id, value); };
        EXPECT_TRUE(m_dialog.UpdateData(FALSE));
    }

    template<class VALUE>
    BOOL Read(int id, VALUE& value, void(AFXAPI* ddx)(CDataExchange*, int, VALUE&))
    {
        m_dialog.m_exchange = [&](CDataExchange* exchange) { ddx(exchange, id, value); };
        return m_dialog.UpdateData(TRUE);
    }

    template<class VALUE>
    void ExpectText(const wchar_t* text, VALUE value)
    {
        Show<VALUE>(IDC_TEXT, value, &DDX_Text);
        EXPECT_STREQ(text, Text(IDC_TEXT));
        VALUE back = VALUE();
        EXPECT_TRUE(Read<VALUE>(IDC_TEXT, back, &DDX_Text));
        EXPECT_EQ(value, back);
    }

    CString Text(int id)
    {
        CString text;
        m_dialog.GetDlgItemText(id, text);
        return text;
    }

    OwnerWindow m_owner;
    FormDialog m_dialog;
};

// Text fields hold numbers of every kind, both ways.

TEST_F(DataExchange, NumbersGoBothWays)
{
    ExpectText<BYTE>(L"255", 255);
    ExpectText<short>(L"-32768", -32768);
    ExpectText<int>(L"-2147483648", INT_MIN);
    ExpectText<UINT>(L"4294967295", UINT_MAX);
    ExpectText<long>(L"123456", 123456);
    ExpectText<DWORD>(L"4294967295", 0xFFFFFFFF);
    ExpectText<LONGLONG>(L"-9000000000", -9000000000LL);
    ExpectText<ULONGLONG>(L"18446744073709551615", ~0ULL);
    ExpectText<float>(L"1.25", 1.25f);
    ExpectText<double>(L"-0.001", -0.001);
    ExpectText<double>(L"123456.789", 123456.789);
}

TEST_F(DataExchange, TextsGoBothWays)
{
    ExpectText<CString>(L"", CString());
    ExpectText<CString>(L"\u4F60\u597D 100%", CString(L"\u4F60\u597D 100%"));

    wchar_t buffer[4] = L"abc";
    m_dialog.m_exchange = [&](CDataExchange* exchange) { DDX_Text(exchange, IDC_TEXT, buffer, 4); };
    m_dialog.UpdateData(FALSE);
    EXPECT_STREQ(L"abc", Text(IDC_TEXT));
    m_dialog.SetDlgItemText(IDC_TEXT, L"longer");
    EXPECT_TRUE(m_dialog.UpdateData(TRUE));
    EXPECT_STREQ(L"lon", buffer);
}

TEST_F(DataExchange, BlanksAroundANumberAreFine)
{
    m_dialog.SetDlgItemText(IDC_TEXT, L"  42 ");
    int value = 0;
    EXPECT_TRUE(Read<int>(IDC_TEXT, value, &DDX_Text));
    EXPECT_EQ(42, value);
}

TEST_F(DataExchange, AnUnreadableNumberTellsTheUserAndKeepsTheVariable)
{
    const wchar_t* const rows[] = {L"", L"-", L"4x", L"x4", L"1.5", L"1 2", L"99999999999"};
    for (const wchar_t* row : rows)
    {
        const MessageBoxCloser boxes;
        m_dialog.SetDlgItemText(IDC_TEXT, row);
        int value = 7;
        EXPECT_FALSE(Read<int>(IDC_TEXT, value, &DDX_Text)) << row;
        EXPECT_EQ(7, value) << row;
        ASSERT_EQ(1u, boxes.m_texts.size()) << row;
        EXPECT_FALSE(boxes.m_texts[0].IsEmpty());
    }
}

TEST_F(DataExchange, EachKindHasItsOwnBounds)
{
    const MessageBoxCloser boxes;
    BYTE byte = 1;
    m_dialog.SetDlgItemText(IDC_TEXT, L"256");
    EXPECT_FALSE(Read<BYTE>(IDC_TEXT, byte, &DDX_Text));
    short small = 1;
    m_dialog.SetDlgItemText(IDC_TEXT, L"32768");
    EXPECT_FALSE(Read<short>(IDC_TEXT, small, &DDX_Text));
    UINT positive = 1;
    m_dialog.SetDlgItemText(IDC_TEXT, L"-1");
    EXPECT_FALSE(Read<UINT>(IDC_TEXT, positive, &DDX_Text));
    double real = 1;
    m_dialog.SetDlgItemText(IDC_TEXT, L"1,5");
    EXPECT_FALSE(Read<double>(IDC_TEXT, real, &DDX_Text));
    EXPECT_EQ(4u, boxes.m_texts.size());
}

TEST_F(DataExchange, AFailureSelectsTheFieldAndStopsTheExchange)
{
    const MessageBoxCloser boxes;
    m_dialog.ShowWindow(SW_SHOW);
    m_dialog.GetDlgItem(IDC_FIRST_EDIT)->SetFocus();
    m_dialog.SetDlgItemText(IDC_TEXT, L"wrong");
    int value = 0;
    CString later = L"before";
    m_dialog.m_exchange = [&](CDataExchange* exchange) {
        DDX_Text(exchange, IDC_TEXT, value);
        DDX_Text(exchange, IDC_FIRST_EDIT, later);
    };
    EXPECT_FALSE(m_dialog.UpdateData(TRUE));
    EXPECT_STREQ(L"before", later);
    EXPECT_EQ(IDC_TEXT, ::GetDlgCtrlID(::GetFocus()));
    EXPECT_EQ(MAKELONG(0, 5), m_dialog.SendDlgItemMessage(IDC_TEXT, EM_GETSEL));
}

// Validations refuse a value outside of its bounds, but only what the user leaves there.

TEST_F(DataExchange, ARangeIsCheckedAfterReading)
{
    struct Row
    {
        const wchar_t* text;
        BOOL accepted;
    };
    const Row rows[] = {{L"9", FALSE}, {L"10", TRUE}, {L"15", TRUE}, {L"20", TRUE}, {L"21", FALSE}};
    for (const Row& row : rows)
    {
        const MessageBoxCloser boxes;
        m_dialog.SetDlgItemText(IDC_TEXT, row.text);
        int value = 0;
        m_dialog.m_exchange = [&](CDataExchange* exchange) {
            DDX_Text(exchange, IDC_TEXT, value);
            DDV_MinMaxInt(exchange, value, 10, 20);
        };
        EXPECT_EQ(row.accepted, m_dialog.UpdateData(TRUE)) << row.text;
        EXPECT_EQ(row.accepted ? 0u : 1u, boxes.m_texts.size()) << row.text;
        for (const CString& text : boxes.m_texts)
            EXPECT_NE(-1, text.Find(L"20")) << "the bounds are named";
    }
}

TEST_F(DataExchange, EveryKindOfRangeRefusesOutside)
{
    const std::function<void(CDataExchange*)> rows[] = {
        [](CDataExchange* exchange) { DDV_MinMaxByte(exchange, 5, 6, 7); },
        [](CDataExchange* exchange) { DDV_MinMaxShort(exchange, -1, 0, 7); },
        [](CDataExchange* exchange) { DDV_MinMaxLong(exchange, 8, 0, 7); },
        [](CDataExchange* exchange) { DDV_MinMaxUInt(exchange, 8, 0, 7); },
        [](CDataExchange* exchange) { DDV_MinMaxDWord(exchange, 8, 0, 7); },
        [](CDataExchange* exchange) { DDV_MinMaxLongLong(exchange, 8, 0, 7); },
        [](CDataExchange* exchange) { DDV_MinMaxFloat(exchange, 7.5f, 0, 7); },
        [](CDataExchange* exchange) { DDV_MinMaxDouble(exchange, -0.5, 0, 7); },
    };
    for (const auto& row : rows)
    {
        const MessageBoxCloser boxes;
        m_dialog.m_exchange = row;
        EXPECT_FALSE(m_dialog.UpdateData(TRUE));
        EXPECT_TRUE(m_dialog.UpdateData(FALSE)); // a program may start outside
        EXPECT_EQ(1u, boxes.m_texts.size());
    }
}

TEST_F(DataExchange, MaxCharsLimitsTypingAndRefusesMore)
{
    const MessageBoxCloser boxes;
    CString value;
    m_dialog.m_exchange = [&](CDataExchange* exchange) {
        DDX_Text(exchange, IDC_TEXT, value);
        DDV_MaxChars(exchange, value, 3);
    };
    EXPECT_TRUE(m_dialog.UpdateData(FALSE));
    EXPECT_EQ(3, m_dialog.SendDlgItemMessage(IDC_TEXT, EM_GETLIMITTEXT));
    m_dialog.SetDlgItemText(IDC_TEXT, L"abcd");
    EXPECT_FALSE(m_dialog.UpdateData(TRUE));
    m_dialog.SetDlgItemText(IDC_TEXT, L"abc");
    EXPECT_TRUE(m_dialog.UpdateData(TRUE));
}

// Buttons, lists, bars.

TEST_F(DataExchange, CheckBoxesHaveThreeStates)
{
    for (int state = BST_UNCHECKED; state <= BST_INDETERMINATE; ++state)
    {
        Show<int>(IDC_CHECK, state, &DDX_Check);
        EXPECT_EQ(static_cast<UINT>(state), m_dialog.IsDlgButtonChecked(IDC_CHECK));
        int back = -1;
        EXPECT_TRUE(Read<int>(IDC_CHECK, back, &DDX_Check));
        EXPECT_EQ(state, back);
    }
    Show<int>(IDC_CHECK, 9, &DDX_Check);
    EXPECT_EQ(0u, m_dialog.IsDlgButtonChecked(IDC_CHECK));
}

TEST_F(DataExchange, RadioButtonsAreOneIndex)
{
    for (int index = -1; index <= 2; ++index)
    {
        Show<int>(IDC_RADIO_1, index, &DDX_Radio);
        EXPECT_EQ(index == 1, m_dialog.IsDlgButtonChecked(IDC_RADIO_2) == BST_CHECKED);
        int back = 9;
        EXPECT_TRUE(Read<int>(IDC_RADIO_1, back, &DDX_Radio));
        EXPECT_EQ(index, back);
    }
}

TEST_F(DataExchange, ListsGoByIndex)
{
    const int lists[] = {IDC_LIST, IDC_COMBO, IDC_DROPLIST};
    for (const int list : lists)
    {
        const auto ddx = list == IDC_LIST ? &DDX_LBIndex : &DDX_CBIndex;
        for (int index = -1; index <= 2; ++index)
        {
            Show<int>(list, index, ddx);
            int back = 9;
            EXPECT_TRUE(Read<int>(list, back, ddx));
            EXPECT_EQ(index, back) << list;
        }
    }
}

TEST_F(DataExchange, ListBoxesGoByText)
{
    CString back;
    Show<CString>(IDC_LIST, L"alp", &DDX_LBString);
    Read<CString>(IDC_LIST, back, &DDX_LBString);
    EXPECT_STREQ(L"alpha", back);
    Show<CString>(IDC_LIST, L"betama", &DDX_LBStringExact);
    Read<CString>(IDC_LIST, back, &DDX_LBStringExact);
    EXPECT_STREQ(L"", back);
    Show<CString>(IDC_LIST, L"betamax", &DDX_LBStringExact);
    Read<CString>(IDC_LIST, back, &DDX_LBStringExact);
    EXPECT_STREQ(L"betamax", back);
    Show<CString>(IDC_LIST, L"omega", &DDX_LBString);
    Read<CString>(IDC_LIST, back, &DDX_LBString);
    EXPECT_STREQ(L"", back);
}

TEST_F(DataExchange, ComboBoxesKeepATextThatIsNotInTheList)
{
    CString back;
    Show<CString>(IDC_COMBO, L"omega", &DDX_CBString);
    Read<CString>(IDC_COMBO, back, &DDX_CBString);
    EXPECT_STREQ(L"omega", back);
    Show<CString>(IDC_COMBO, L"beta", &DDX_CBStringExact);
    Read<CString>(IDC_COMBO, back, &DDX_CBStringExact);
    EXPECT_STREQ(L"beta", back);
    EXPECT_EQ(1, m_dialog.SendDlgItemMessage(IDC_COMBO, CB_GETCURSEL));
    Show<CString>(IDC_DROPLIST, L"omega", &DDX_CBStringExact);
    Read<CString>(IDC_DROPLIST, back, &DDX_CBStringExact);
    EXPECT_STREQ(L"", back);
}

TEST_F(DataExchange, ScrollBarsGoByPosition)
{
    Show<int>(IDC_SCROLL, 40, &DDX_Scroll);
    int back = 0;
    EXPECT_TRUE(Read<int>(IDC_SCROLL, back, &DDX_Scroll));
    EXPECT_EQ(40, back);
}

// Control objects.

TEST_F(DataExchange, AControlIsSubclassedOnTheFirstExchangeOnly)
{
    CEdit edit;
    m_dialog.m_exchange = [&](CDataExchange* exchange) { DDX_Control(exchange, IDC_TEXT, edit); };
    EXPECT_TRUE(m_dialog.UpdateData(TRUE));
    EXPECT_EQ(nullptr, edit.m_hWnd);
    EXPECT_TRUE(m_dialog.UpdateData(FALSE));
    EXPECT_EQ(::GetDlgItem(m_dialog.m_hWnd, IDC_TEXT), edit.m_hWnd);
    EXPECT_EQ(&edit, CWnd::FromHandlePermanent(edit.m_hWnd));
    EXPECT_TRUE(m_dialog.UpdateData(FALSE));
    m_dialog.DestroyWindow();
    EXPECT_EQ(nullptr, edit.m_hWnd);
}

TEST_F(DataExchange, AMissingControlThrows)
{
    CDataExchange exchange(&m_dialog, FALSE);
    CString value;
    try
    {
        DDX_Text(&exchange, IDC_MISSING, value);
        ADD_FAILURE() << "nothing thrown";
    }
    catch (CNotSupportedException* exception)
    {
        exception->Delete();
    }
}
