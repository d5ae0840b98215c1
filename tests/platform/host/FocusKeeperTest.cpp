// Who may keep the focus when the host wants it for its command line.
#include "HostFixture.h"

#include "DialogTemplate.h"
#include "host/FocusKeeper.h"

#include <acui.h>
#include <aduiPaletteSet.h>

#include <gtest/gtest.h>

namespace
{

const int kEdit = 101;

// A modeless dialog as modules write it.
class AskedDialog : public CAcUiDialog
{
public:
    AskedDialog() : CAcUiDialog(0) {}

    BOOL keeps = FALSE;
    int asked = 0;

protected:
    // The number itself: modules have it in their code.
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message != 28929)
            return CAcUiDialog::WindowProc(message, wParam, lParam);
        ++asked;
        return keeps;
    }
};

class AskedPalette : public CAdUiPalette
{
public:
    bool CanFrameworkTakeFocus() override { return letsGo; }

    bool letsGo = true;
};

class FocusKeeper : public HostFixture
{
protected:
    // An edit inside `parent`.
    HWND EditIn(CWnd& parent)
    {
        return ::CreateWindow(L"EDIT", L"", WS_CHILD | WS_VISIBLE, 0, 0, 40, 20, parent.m_hWnd,
                              reinterpret_cast<HMENU>(kEdit), nullptr, nullptr);
    }
};

} // namespace

TEST_F(FocusKeeper, NobodyToAskIsNoObjection)
{
    EXPECT_TRUE(arxhost::CanTakeFocusFrom(nullptr));
    EXPECT_TRUE(arxhost::CanTakeFocusFrom(EditIn(Frame())));
}

TEST_F(FocusKeeper, AModelessDialogIsAskedAndItsTrueKeepsTheFocus)
{
    DialogTemplate form(L"Asked", 80, 40, WS_POPUP | WS_CAPTION | DS_SETFONT);
    form.Edit(kEdit, 10, 10);
    AskedDialog dialog;
    ASSERT_TRUE(dialog.CreateIndirect(form.Get(), &Frame()));
    const HWND edit = ::GetDlgItem(dialog.m_hWnd, kEdit);
    EXPECT_TRUE(arxhost::CanTakeFocusFrom(edit));
    EXPECT_EQ(1, dialog.asked);
    dialog.keeps = TRUE;
    EXPECT_FALSE(arxhost::CanTakeFocusFrom(edit));
    EXPECT_FALSE(arxhost::CanTakeFocusFrom(dialog.m_hWnd));
    EXPECT_EQ(3, dialog.asked);
    dialog.DestroyWindow();
}

TEST_F(FocusKeeper, APaletteIsAskedByItsVirtualFunction)
{
    CAdUiPaletteSet set;
    AskedPalette palette;
    ASSERT_TRUE(set.Create(L"Asked", WS_DLGFRAME, CRect(100, 100, 400, 300), &Frame()));
    ASSERT_TRUE(palette.Create(WS_CHILD | WS_VISIBLE, L"Asked", &set));
    ASSERT_EQ(0, set.AddPalette(&palette));
    const HWND edit = EditIn(palette);
    EXPECT_TRUE(arxhost::CanTakeFocusFrom(edit));
    palette.letsGo = false;
    EXPECT_FALSE(arxhost::CanTakeFocusFrom(edit));
    EXPECT_FALSE(arxhost::CanTakeFocusFrom(set.m_hWnd));
}
