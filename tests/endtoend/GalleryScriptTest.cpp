// A script works the gallery in the host, modal dialogs included.
#include "HostProcess.h"

#include <gtest/gtest.h>

#include <fstream>

namespace
{

constexpr DWORD g_patience = 60000; // milliseconds

DWORD RunScript(const char* text)
{
    wchar_t folder[MAX_PATH];
    GetTempPathW(MAX_PATH, folder);
    const std::wstring path = std::wstring(folder) + L"gallery_script_test.scr";
    std::ofstream(std::string(path.begin(), path.end()), std::ios::binary) << text;
    HostProcess host(L"/ld ZNKTControls.arx /ld gallery.arx /b \"" + path + L"\"");
    const DWORD code = host.WaitForEnd(g_patience);
    DeleteFileW(path.c_str());
    return code;
}

} // namespace

TEST(GalleryScript, GoesOnInsideAModalDialogAndEndsItByItsButton)
{
    EXPECT_EQ(0u, RunScript("GALLERYPAGE input-dialog\nPRESS 1101 控件库\nPRESS 2 图层\nGALLERYPAGE sort-list\n"));
}

TEST(GalleryScript, ButtonOfADialogThatIsNotOpenIsAnError)
{
    EXPECT_EQ(1u, RunScript("GALLERY\nPRESS 2 图层\n"));
    EXPECT_EQ(1u, RunScript("GALLERYPAGE input-dialog\nPRESS 9999 控件库\n"));
}

TEST(GalleryScript, ModalDialogThatTheScriptLeftOpenIsCancelled)
{
    EXPECT_EQ(0u, RunScript("GALLERYPAGE input-dialog\nPRESS 1101 控件库\nGALLERY\n"));
    EXPECT_EQ(1u, RunScript("GALLERYPAGE input-dialog\nPRESS 1101 控件库\nGALLERY\nNOSUCHCOMMAND\n"));
}

TEST(GalleryScript, ModuleIsUnloadedUnderItsWindow)
{
    EXPECT_EQ(0u, RunScript("GALLERY\nARX U gallery.arx\nZOOM E\n"));
    EXPECT_EQ(1u, RunScript("GALLERY\nARX U gallery.arx\nGALLERY\n")) << "the command leaves with the module";
}

TEST(GalleryScript, ModulesAreUnloadedUnderTheCheckWindow)
{
    EXPECT_EQ(0u, RunScript("GALLERYPAGE check-window\nHOVER 2251 控件库\nDELAY 700\n"));
}
