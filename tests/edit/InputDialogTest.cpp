// The input dialog: what it shows, and what ends it.
#include <afxwin.h>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

#include "MessageSpy.h"
#include "base/ModuleInstance.h"
#include "edit/InputDialog.h"

namespace
{

const int kPromptId = 104;
const int kTextId = 100;

// Runs the script when the dialog has opened and its messages are dispatched, step by step.
class ScriptedInput : public CInputDialog
{
public:
    explicit ScriptedInput(CWnd* parent = NULL) : CInputDialog(parent) {}

    CString Title() override { return ownTexts ? L"标题" : CInputDialog::Title(); }
    CString TipMsg() override { return ownTexts ? L"名称:" : CInputDialog::TipMsg(); }
    CString DefaultValue() override { return ownTexts ? L"默认" : CInputDialog::DefaultValue(); }

    void OnInitDialog() override
    {
        ++opened;
        caption = TextOf(*GetDialogWindow());
        prompt = TextOf(*GetTipControl());
        text = TextOf(*GetEditControl());
        if (script)
            script();
    }

    bool OnOk(CString& value) override
    {
        ++oks;
        seen = value;
        if (onOk)
            onOk();
        if (!newValue.IsEmpty())
            value = newValue;
        return oks > refusedOks;
    }

    bool OnCancel() override
    {
        ++cancels;
        textAtCancel = TextOf(*GetEditControl());
        if (onCancel)
            onCancel();
        return cancels > refusedCancels;
    }

    static std::wstring TextOf(const CWnd& window)
    {
        CString text;
        window.GetWindowText(text);
        return text.GetString();
    }

    void Type(const wchar_t* typed) { GetEditControl()->SetWindowText(typed); }
    void Press(int button) { GetDialogWindow()->PostMessage(WM_COMMAND, button); }
    void PressEscape() { GetEditControl()->PostMessage(WM_KEYDOWN, VK_ESCAPE); }

    bool ownTexts = false;
    std::function<void()> script;
    std::function<void()> onOk;
    std::function<void()> onCancel;
    int refusedOks = 0;
    int refusedCancels = 0;
    CString newValue;

    int opened = 0;
    int oks = 0;
    int cancels = 0;
    CString seen;
    std::wstring caption;
    std::wstring prompt;
    std::wstring text;
    std::wstring textAtCancel;
};

class InputDialog : public testing::Test
{
protected:
    InputDialog() { _hdllInstance = ::GetModuleHandleW(NULL); }

    bool Ask() { return m_dialog.Input(m_value); }

    ScriptedInput m_dialog;
    CString m_value = L"before";
};

} // namespace

TEST_F(InputDialog, ShowsItsOwnTextsByDefault)
{
    m_dialog.script = [this] { m_dialog.Press(IDOK); };
    EXPECT_TRUE(Ask());
    EXPECT_EQ(1, m_dialog.opened);
    EXPECT_EQ(L"输入", m_dialog.caption);
    EXPECT_EQ(L"输入:", m_dialog.prompt);
    EXPECT_EQ(L"", m_dialog.text);
    EXPECT_STREQ(L"", m_value);
}

TEST_F(InputDialog, ShowsTheTextsOfADerivedClass)
{
    m_dialog.ownTexts = true;
    m_dialog.script = [this] { m_dialog.Press(IDOK); };
    EXPECT_TRUE(Ask());
    EXPECT_EQ(L"标题", m_dialog.caption);
    EXPECT_EQ(L"名称:", m_dialog.prompt);
    EXPECT_EQ(L"默认", m_dialog.text);
    EXPECT_STREQ(L"默认", m_value);
}

TEST_F(InputDialog, OkAnswersWithTheTypedText)
{
    m_dialog.script = [this] {
        m_dialog.Type(L"typed");
        m_dialog.Press(IDOK);
    };
    EXPECT_TRUE(Ask());
    EXPECT_STREQ(L"typed", m_value);
    EXPECT_STREQ(L"typed", m_dialog.seen);
}

TEST_F(InputDialog, CancelLeavesTheValueAlone)
{
    m_dialog.script = [this] {
        m_dialog.Type(L"typed");
        m_dialog.Press(IDCANCEL);
    };
    EXPECT_FALSE(Ask());
    EXPECT_STREQ(L"before", m_value);
    EXPECT_EQ(0, m_dialog.oks);
}

TEST_F(InputDialog, RefusedOkKeepsTheDialogOpenWithTheTextAsTyped)
{
    m_dialog.refusedOks = 1;
    m_dialog.newValue = L"changed";
    m_dialog.script = [this] {
        m_dialog.Type(L"typed");
        m_dialog.Press(IDOK);
        m_dialog.Press(IDCANCEL);
    };
    EXPECT_FALSE(Ask());
    EXPECT_EQ(1, m_dialog.oks);
    EXPECT_EQ(1, m_dialog.cancels);
    EXPECT_EQ(L"typed", m_dialog.textAtCancel);
    EXPECT_STREQ(L"before", m_value);
}

TEST_F(InputDialog, ChangedValueIsTheAnswer)
{
    m_dialog.newValue = L"changed";
    m_dialog.script = [this] {
        m_dialog.Type(L"typed");
        m_dialog.Press(IDOK);
    };
    EXPECT_TRUE(Ask());
    EXPECT_STREQ(L"typed", m_dialog.seen);
    EXPECT_STREQ(L"changed", m_value);
}

TEST_F(InputDialog, ChangedValueIsShownBeforeTheDialogCloses)
{
    m_dialog.newValue = L"changed";
    std::unique_ptr<MessageSpy> spy;
    m_dialog.script = [&] {
        m_dialog.Press(IDOK);
        spy.reset(new MessageSpy(*m_dialog.GetEditControl(), WM_SETTEXT));
    };
    EXPECT_TRUE(Ask());
    EXPECT_EQ(1u, spy->Seen().size());
}

TEST_F(InputDialog, RefusedCancelMakesEscapeAndCancelDoNothing)
{
    m_dialog.refusedCancels = 2;
    m_dialog.script = [this] {
        m_dialog.Type(L"typed");
        m_dialog.PressEscape();
        m_dialog.Press(IDCANCEL);
        m_dialog.Press(IDOK);
    };
    EXPECT_TRUE(Ask());
    EXPECT_EQ(2, m_dialog.cancels);
    EXPECT_STREQ(L"typed", m_value);
}

TEST_F(InputDialog, EscapeCancels)
{
    m_dialog.script = [this] { m_dialog.PressEscape(); };
    EXPECT_FALSE(Ask());
    EXPECT_EQ(1, m_dialog.cancels);
}

TEST_F(InputDialog, CanAskAgainAndBeginsWithTheDefault)
{
    m_dialog.script = [this] {
        m_dialog.Type(L"first");
        m_dialog.Press(IDOK);
    };
    ASSERT_TRUE(Ask());
    m_dialog.script = [this] { m_dialog.Press(IDOK); };
    ASSERT_TRUE(Ask());
    EXPECT_EQ(L"", m_dialog.text);
    EXPECT_STREQ(L"", m_value);
}

TEST_F(InputDialog, HasNoControlsWhileItIsClosed)
{
    EXPECT_TRUE(m_dialog.GetTipControl() == NULL);
    EXPECT_TRUE(m_dialog.GetEditControl() == NULL);
}

TEST_F(InputDialog, TakesAnyText)
{
    const std::wstring odd(L"% \x4E2D \xD83D \"a\"");
    m_dialog.script = [&] {
        m_dialog.Type(odd.c_str());
        m_dialog.Press(IDOK);
    };
    EXPECT_TRUE(Ask());
    EXPECT_EQ(odd, m_value.GetString());
}

TEST_F(InputDialog, EditHasTheFocus)
{
    m_dialog.refusedOks = 1;
    HWND focus = NULL;
    m_dialog.script = [this] { m_dialog.Press(IDOK); };
    m_dialog.onOk = [&] {
        focus = ::GetFocus();
        EXPECT_EQ(m_dialog.GetEditControl()->m_hWnd, focus);
        m_dialog.Press(IDCANCEL);
    };
    EXPECT_FALSE(Ask());
    EXPECT_TRUE(focus != NULL);
}

TEST_F(InputDialog, ControlsLieWhereTheTemplateSays)
{
    m_dialog.script = [this] {
        CDialog* const dialog = static_cast<CDialog*>(m_dialog.GetDialogWindow());
        const auto expect = [dialog](int id, CRect units) {
            CRect rect;
            dialog->GetDlgItem(id)->GetWindowRect(&rect);
            dialog->ScreenToClient(&rect);
            // Place and size are rounded apart.
            CRect size(CPoint(0, 0), units.Size());
            ::MapDialogRect(dialog->m_hWnd, &units);
            ::MapDialogRect(dialog->m_hWnd, &size);
            EXPECT_EQ(units.TopLeft(), rect.TopLeft()) << id;
            EXPECT_EQ(size.Size(), rect.Size()) << id;
        };
        expect(kPromptId, CRect(CPoint(7, 7), CSize(112, 8)));
        expect(kTextId, CRect(CPoint(7, 20), CSize(111, 14)));
        expect(IDOK, CRect(CPoint(130, 7), CSize(50, 14)));
        expect(IDCANCEL, CRect(CPoint(130, 24), CSize(50, 14)));
        EXPECT_EQ(L"确定", ScriptedInput::TextOf(*dialog->GetDlgItem(IDOK)));
        EXPECT_EQ(L"取消", ScriptedInput::TextOf(*dialog->GetDlgItem(IDCANCEL)));
        m_dialog.Press(IDCANCEL);
    };
    EXPECT_FALSE(Ask());
}

TEST_F(InputDialog, LooksAsTheTemplateSays)
{
    m_dialog.script = [this] {
        CWnd* const dialog = m_dialog.GetDialogWindow();
        const auto has = [dialog](int id, DWORD style) {
            return (::GetWindowLongW(::GetDlgItem(dialog->m_hWnd, id), GWL_STYLE) & style) == style;
        };
        CRect client(0, 0, 187, 64);
        ::MapDialogRect(dialog->m_hWnd, &client);
        CRect shown;
        dialog->GetClientRect(&shown);
        EXPECT_TRUE(client == shown);
        EXPECT_EQ(DWORD(WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME),
                  dialog->GetStyle() & (WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME));
        EXPECT_TRUE(has(kPromptId, WS_GROUP));
        EXPECT_TRUE(has(kTextId, WS_TABSTOP | ES_AUTOHSCROLL));
        EXPECT_TRUE(has(IDOK, BS_DEFPUSHBUTTON | WS_TABSTOP));
        EXPECT_TRUE(has(IDCANCEL, WS_TABSTOP));
        EXPECT_FALSE(has(IDCANCEL, BS_DEFPUSHBUTTON));
        LOGFONTW font = {};
        dialog->GetFont()->GetLogFont(&font);
        EXPECT_STREQ(L"宋体", font.lfFaceName);
        m_dialog.Press(IDCANCEL);
    };
    EXPECT_FALSE(Ask());
}

TEST_F(InputDialog, TheWindowMayBeDestroyedInEveryHook)
{
    const std::function<void()> destroy = [this] { m_dialog.GetDialogWindow()->DestroyWindow(); };
    m_dialog.script = destroy;
    EXPECT_FALSE(Ask());
    for (const bool refused : {false, true})
    {
        m_dialog.script = [this] { m_dialog.Press(IDOK); };
        m_dialog.onOk = destroy;
        m_dialog.refusedOks = refused ? m_dialog.oks + 1 : 0;
        EXPECT_FALSE(Ask());
        m_dialog.script = [this] { m_dialog.Press(IDCANCEL); };
        m_dialog.onCancel = destroy;
        m_dialog.refusedCancels = refused ? m_dialog.cancels + 1 : 0;
        EXPECT_FALSE(Ask());
    }
    EXPECT_EQ(2, m_dialog.oks);
    EXPECT_EQ(2, m_dialog.cancels);
    EXPECT_STREQ(L"before", m_value);
}

TEST_F(InputDialog, AskingOnceMoreWhileItAsksIsRefused)
{
    CString inner = L"inner";
    m_dialog.script = [this] {
        m_dialog.Type(L"typed");
        m_dialog.Press(IDOK);
    };
    m_dialog.onOk = [&] {
        m_dialog.onOk = nullptr;
        EXPECT_FALSE(m_dialog.Input(inner));
    };
    EXPECT_TRUE(Ask());
    EXPECT_STREQ(L"inner", inner);
    EXPECT_STREQ(L"typed", m_value);
    EXPECT_EQ(1, m_dialog.opened);
}

TEST_F(InputDialog, EndsWithTheWindowThatWaitsForIt)
{
    CWnd parent;
    ASSERT_TRUE(
        parent.CreateEx(0, AfxRegisterWndClass(0), L"parent", WS_POPUP | WS_VISIBLE, CRect(0, 0, 200, 100), NULL, 0));
    ScriptedInput dialog(&parent);
    dialog.script = [&] { parent.PostMessage(WM_CLOSE); };
    EXPECT_FALSE(dialog.Input(m_value));
    EXPECT_STREQ(L"before", m_value);
}

// Whatever is current before, the dialog is found in the module, and what was current is so again.
TEST_F(InputDialog, WorksWithTheResourcesOfTheModuleAndGivesTheOthersBack)
{
    const HINSTANCE before = AfxGetResourceHandle();
    const HINSTANCE other = ::GetModuleHandleW(L"user32.dll");
    AfxSetResourceHandle(other);
    HINSTANCE during = NULL;
    m_dialog.script = [&] {
        during = AfxGetResourceHandle();
        m_dialog.Press(IDCANCEL);
    };
    Ask();
    EXPECT_EQ(_hdllInstance, during);
    EXPECT_EQ(other, AfxGetResourceHandle());
    AfxSetResourceHandle(before);
}
