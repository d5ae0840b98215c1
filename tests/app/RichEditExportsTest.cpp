// The names of the rich edit and of the hooks behind it that client modules link against.
#include <afxwin.h>
#include <gtest/gtest.h>

#include "LoadedModule.h"

namespace
{

const char* const kRichEditNames[] = {
    "GetRTF",    "SetRTF",      "ToggleBold",  "ToggleItalic", "ToggleUnderline", "ToggleFormat",
    "HasFormat", "SetColor",    "SetFontName", "GetFontName",  "SetFontSize",     "GetFontSize",
    "AlignLeft", "AlignCenter", "AlignRight",  "ToggleBullet", "HasBullet",       "EnumFontNames",
};

void ExpectMember(const LoadedModule& module, const std::string& type, const std::string& name)
{
    const std::string begin = "_ZN" + std::to_string(type.size()) + type + std::to_string(name.size()) + name;
    EXPECT_NO_THROW(module.Find<void (*)()>(begin)) << begin;
}

} // namespace

TEST(RichEditExports, RichEditIsExportedUnderItsNames)
{
    const LoadedModule module;
    ASSERT_TRUE(module.IsLoaded());
    for (const char* name : kRichEditNames)
        ExpectMember(module, "CAutoRichEditCtrl", name);
}

TEST(RichEditExports, HooksAreExportedUnderTheirNames)
{
    const LoadedModule module;
    ASSERT_TRUE(module.IsLoaded());
    ExpectMember(module, "CDySubclassWnd", "HookWindow");
    ExpectMember(module, "CDySubclassWnd", "WindowProc");
    ExpectMember(module, "CDySubclassWnd", "Default");
    ExpectMember(module, "CPopupMenuInitHandler", "OnInitMenuPopup");
    for (const char* name : {"Install", "OnCommand", "OnUpdateCmdUI", "OnContextMenu"})
        ExpectMember(module, "CEditMenuHandler", name);
}
