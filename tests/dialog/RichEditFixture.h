// A rich edit with its edit menu in an owner window that notes what it is told.
#pragma once

#include <afxwin.h>
#include <afxcmn.h>
#include <afxpriv.h>

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "dialog/AutoRichEditCtrl.h"

class RichEditOwner : public CWnd
{
public:
    RichEditOwner();
    ~RichEditOwner() override { DestroyWindow(); }

    struct Told
    {
        UINT id;
        int code;
        LPARAM control;
    };

    std::vector<Told> commands; // what came as WM_COMMAND of a menu
    std::vector<UINT> updates;  // identifiers of the update requests
    std::function<void(CCmdUI&)> onUpdate;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
};

class RichEditFixture : public testing::Test
{
protected:
    static constexpr int kEditId = 7;

    RichEditFixture() { Create(m_edit); }

    void Create(CAutoRichEditCtrl& edit);

    std::wstring Text(const CRichEditCtrl& edit) const;
    std::wstring Text() const { return Text(m_edit); }

    // Plain text with the cursor at its beginning.
    void SetText(const wchar_t* text);

    CHARFORMAT2 Format(long start, long end);
    PARAFORMAT2 Paragraph(long position);

    RichEditOwner m_owner;
    CAutoRichEditCtrl m_edit{ZNKT_EDIT_MENU};
};

// Works on popup menus that this thread opens: a timer finds the open menu, shows it to a function and closes it or
// chooses an item.
class MenuDriver
{
public:
    // Called with the open menu; answers the identifier to choose, 0 to close the menu. A grey item can't be chosen.
    typedef std::function<UINT(HMENU)> Chooser;

    explicit MenuDriver(Chooser chooser);
    ~MenuDriver();
    MenuDriver(const MenuDriver&) = delete;
    MenuDriver& operator=(const MenuDriver&) = delete;

    int Opened() const { return m_opened; }
    CRect Place() const { return m_place; } // where the last one opened, on the screen

private:
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD);
    void Look();

    static MenuDriver* s_current;

    Chooser m_chooser;
    UINT_PTR m_timer;
    HWND m_done = NULL;
    int m_opened = 0;
    CRect m_place;
};

std::wstring ItemText(HMENU menu, int position);
bool IsGrey(HMENU menu, UINT id);
