// The mouse-following tip of the loaded module: its exported names, and its end when the module leaves.
#include <afxwin.h>
#include <gtest/gtest.h>

#include "LoadedModule.h"
#include "Wait.h"

namespace
{

const wchar_t* const kTipClass = L"ZNKTFollowMouseTipWnd";

typedef void (*ShowMsg)(const wchar_t*, unsigned long, CWnd*);
typedef void (*Operation)();

} // namespace

TEST(TipExports, UnloadingTheModuleEndsTheTipAndItsMouseHook)
{
    LoadedModule module;
    ASSERT_TRUE(module.IsLoaded());
    module.Find<ShowMsg>("_ZN18CFollowMouseTipWnd7ShowMsgE")(L"tip", 60, NULL);
    EXPECT_NE(nullptr, ::FindWindowW(kTipClass, NULL));
    module.Unload();
    EXPECT_EQ(NULL, LoadedModule::Handle());
    EXPECT_EQ(NULL, ::FindWindowW(kTipClass, NULL));
    // A hook that was left behind would be called at an address where nothing is any more.
    ::SetCursorPos(300, 300);
    ::SetCursorPos(310, 310);
    EXPECT_TRUE(WaitFor([] {
        POINT place = {};
        return ::GetCursorPos(&place) && place.x == 310;
    }));
}

TEST(TipExports, TheTipsOperationsAreExported)
{
    const LoadedModule module;
    ASSERT_TRUE(module.IsLoaded());
    for (const char* name :
         {"_ZN18CFollowMouseTipWnd4HideE", "_ZN18CFollowMouseTipWnd7DestroyE", "_ZN18CFollowMouseTipWnd11SetWatchWndE"})
        EXPECT_NO_THROW(module.Find<Operation>(name)) << name;
}

TEST(TipExports, ButtonLabelAndSheetAreExported)
{
    const LoadedModule module;
    ASSERT_TRUE(module.IsLoaded());
    for (const char* name :
         {"_ZN16CToolTipXTButton10SetToolTipE", "_ZN16CToolTipXTButton17SetToolTipWndSideE",
          "_ZN16CToolTipXTButton17SetToolTipWndSizeE", "_ZN16CToolTipXTButton13ShowTipWindowE",
          "_ZN16CToolTipXTButton19PreTranslateMessageE", "_ZN16CToolTipXTButton8DrawItemE", "_ZN10CZNKTLabel7OnPaintE",
          "_ZN9CTabSheet7AddPageE", "_ZN9CTabSheet4ShowE", "_ZN9CTabSheet7SetRectE", "_ZN9CTabSheet9SetCurSelE",
          "_ZN9CTabSheet9GetCurSelE", "_ZN9CTabSheet13OnLButtonDownE"})
        EXPECT_NO_THROW(module.Find<Operation>(name)) << name;
}
