// A combo button in an owner window that counts clicks, with items that count what they are asked.
#pragma once

#include <afxwin.h>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "ImageSamples.h"
#include "button/ComboButton.h"

class TestItem : public CComboButtonItem
{
public:
    explicit TestItem(const wchar_t* itemName) : name(itemName) {}

    bool IsSeparator() override { return separator; }
    bool Enabled() override { return enabled; }
    HICON GetIcon() override { return icon; }
    HBITMAP GetBitmap() override { return bitmap; }
    CString GetName() override
    {
        if (onGetName)
            onGetName();
        return name;
    }
    CString GetExtraText() override
    {
        ++extraTexts;
        return L"never shown";
    }
    void Action() override
    {
        ++runs;
        if (onAction)
            onAction();
    }

    CString name;
    bool separator = false;
    bool enabled = true;
    HICON icon = NULL;
    HBITMAP bitmap = NULL;
    int runs = 0;
    int extraTexts = 0;
    std::function<void()> onAction;
    std::function<void()> onGetName;
};

// Lets a test call what only derived classes may.
class TestComboButton : public CComboButton
{
public:
    using CComboButton::DrawItemBorder;
    using CComboButton::DrawItemComboFlag;
    using CComboButton::DrawItemContent;

    int menusInitialised = 0;
    int pressesSeen = 0;
    int charactersSeen = 0; // in a menu

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        menusInitialised += message == WM_INITMENUPOPUP;
        pressesSeen += message == WM_LBUTTONDOWN;
        charactersSeen += message == WM_MENUCHAR;
        return CComboButton::WindowProc(message, wParam, lParam);
    }
};

class ButtonOwner : public CWnd
{
public:
    ButtonOwner()
    {
        const CString wndClass = AfxRegisterWndClass(0, ::LoadCursor(NULL, IDC_ARROW));
        CreateEx(0, wndClass, L"owner", WS_POPUP | WS_VISIBLE, CRect(100, 100, 500, 400), NULL, 0);
    }
    ~ButtonOwner() override { DestroyWindow(); }

    int clicks = 0;
    std::vector<WPARAM> commands; // as they came, before the button has its share

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override
    {
        commands.push_back(wParam);
        return CWnd::OnCommand(wParam, lParam);
    }
    afx_msg void OnClicked() { ++clicks; }

    DECLARE_MESSAGE_MAP()
};

class ComboButtonFixture : public testing::Test
{
protected:
    static constexpr int kButtonId = 7;
    static constexpr int kFirstCommand = 1057;
    static constexpr int kWidth = 120;
    static constexpr int kHeight = 30;
    static const CRect kPlace;

    ComboButtonFixture();
    ~ComboButtonFixture() override;

    void CreateButton(DWORD style = WS_CHILD | WS_VISIBLE | WS_TABSTOP);

    // A new item that lives as long as the test; not in the button yet.
    TestItem& NewItem(const wchar_t* name);
    TestItem& AddItem(const wchar_t* name);
    void AddItems(int count);

    std::wstring Text();
    int DefaultIndex();

    // The real button's messages, sent.
    void Press(CPoint point);
    void Release(CPoint point);
    void Click(CPoint point);
    void Choose(int index);

    static CPoint OnFace() { return CPoint(20, 15); }
    static CPoint OnDropZone() { return CPoint(kWidth - 8, 15); }

    // Whether the system takes the button for pressed.
    bool IsPushed();

    std::unique_ptr<ButtonOwner> m_owner;
    std::unique_ptr<TestComboButton> m_button;
    std::vector<std::unique_ptr<TestItem>> m_items;
};
