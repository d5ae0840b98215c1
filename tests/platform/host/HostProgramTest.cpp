// The host as a program: scripts, exit codes, pictures.
#include "suite/ZnQFCBaseU/Slide.h"

#include <gtest/gtest.h>

#include <fstream>
#include <string>

namespace
{

const DWORD patience = 60000; // milliseconds
const DWORD noCode = 0xFFFFFFFF;

std::wstring TemporaryPath(const wchar_t* name)
{
    wchar_t folder[MAX_PATH];
    GetTempPathW(MAX_PATH, folder);
    return std::wstring(folder) + name;
}

std::string Narrow(const std::wstring& text)
{
    return std::string(text.begin(), text.end());
}

void WriteText(const std::wstring& path, const std::string& text)
{
    std::ofstream(Narrow(path), std::ios::binary) << text;
}

std::string ReadStart(const std::wstring& path)
{
    std::string bytes(8, '\0');
    std::ifstream file(Narrow(path), std::ios::binary);
    file.read(&bytes[0], static_cast<std::streamsize>(bytes.size()));
    return bytes;
}

// Runs the host to its end and returns its exit code; noCode when it doesn't start or doesn't end.
DWORD RunHost(const std::wstring& arguments)
{
    std::wstring line = L"arxhost.exe " + arguments;
    STARTUPINFOW start{};
    start.cb = sizeof(start);
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(L"arxhost.exe", &line[0], nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &process))
        return noCode;
    DWORD code = noCode;
    if (WaitForSingleObject(process.hProcess, patience) == WAIT_OBJECT_0)
        GetExitCodeProcess(process.hProcess, &code);
    else
        TerminateProcess(process.hProcess, noCode);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return code;
}

DWORD RunScript(const std::wstring& drawing, const std::string& script)
{
    const std::wstring path = TemporaryPath(L"host_program_test.scr");
    WriteText(path, script);
    const DWORD code = RunHost(drawing + L" /b \"" + path + L"\"");
    DeleteFileW(path.c_str());
    return code;
}

// A drawing of one line.
std::wstring WriteDrawing()
{
    const std::wstring path = TemporaryPath(L"host_program_test.dxf");
    WriteText(path, "0\nSECTION\n2\nENTITIES\n0\nLINE\n8\n0\n10\n0\n20\n0\n11\n100\n21\n50\n0\nENDSEC\n0\nEOF\n");
    return path;
}

} // namespace

TEST(HostProgram, ScriptTakesAPictureAndEndsWithZero)
{
    const std::wstring drawing = WriteDrawing();
    const std::wstring picture = TemporaryPath(L"host_program_test.png");
    DeleteFileW(picture.c_str());
    const std::string script = "ZOOM E\nSELECT ALL\nSHOT \"" + Narrow(picture) + "\"\n";
    EXPECT_EQ(0u, RunScript(L"\"" + drawing + L"\"", script));
    EXPECT_EQ("\x89PNG\r\n\x1A\n", ReadStart(picture));
    DeleteFileW(picture.c_str());
    DeleteFileW(drawing.c_str());
}

TEST(HostProgram, ViewIsSavedAsASlide)
{
    const std::wstring drawing = WriteDrawing();
    const std::wstring slidePath = TemporaryPath(L"host_program_test.sld");
    DeleteFileW(slidePath.c_str());
    // The extension is added.
    const std::string path = Narrow(slidePath.substr(0, slidePath.size() - 4));
    EXPECT_EQ(0u, RunScript(L"\"" + drawing + L"\"", "ZOOM E\nMSLIDE \"" + path + "\"\n"));
    Tevrin::Slide slide;
    ASSERT_EQ(Tevrin::kSlideGood, slide.Read(slidePath.c_str()));
    ASSERT_EQ(2u, slide.Points().size()) << "the line of the drawing";
    EXPECT_LT(100, slide.Width());
    const Tevrin::SlidePoint& from = slide.Points()[0];
    const Tevrin::SlidePoint& to = slide.Points()[1];
    EXPECT_NEAR((to.x - from.x) / 2.0, to.y - from.y, 2) << "two units right, one up";
    EXPECT_NEAR(slide.Width() / 2.0, (from.x + to.x) / 2.0, 2) << "in the middle of the view";
    DeleteFileW(slidePath.c_str());
    DeleteFileW(drawing.c_str());
}

TEST(HostProgram, SlideThatCannotBeSavedEndsTheScriptWithOne)
{
    EXPECT_EQ(1u, RunScript(L"", "NEW\nMSLIDE\n")) << "nobody is there to choose a file";
    EXPECT_EQ(1u, RunScript(L"", "NEW\nMSLIDE Q:\\no_such_folder\\a.sld\n"));
    EXPECT_EQ(1u, RunScript(L"", "CLOSE\nMSLIDE a.sld\n")) << "there is no drawing";
}

TEST(HostProgram, MouseIsMovedOverTheDrawingAndOverControls)
{
    EXPECT_EQ(0u, RunScript(L"", "HOVER 210,148.5\n"));
    EXPECT_EQ(1u, RunScript(L"", "HOVER 100000,0\n")) << "not in the view";
    EXPECT_EQ(1u, RunScript(L"", "HOVER here\n"));
    EXPECT_EQ(1u, RunScript(L"", "HOVER\n"));
    EXPECT_EQ(1u, RunScript(L"", "HOVER 3 nosuchdialog\n"));
    EXPECT_EQ(1u, RunScript(L"", "CLOSE\nHOVER 210,148.5\n")) << "no drawing";
}

TEST(HostProgram, CommandThatFailsEndsTheScriptWithOne)
{
    EXPECT_EQ(1u, RunScript(L"", "NEW\nNOSUCHCOMMAND\n"));
    EXPECT_EQ(1u, RunScript(L"", "PALETTE DOCK LEFT\n")) << "there is no palette";
    EXPECT_EQ(1u, RunScript(L"", "ZOOM sideways\n"));
}

TEST(HostProgram, DrawingThatCannotBeReadEndsWithOne)
{
    const std::wstring drawing = TemporaryPath(L"host_program_broken.dxf");
    WriteText(drawing, "this is no drawing\n");
    EXPECT_EQ(1u, RunScript(L"\"" + drawing + L"\"", "ZOOM E\n"));
    DeleteFileW(drawing.c_str());
}

TEST(HostProgram, MissingModuleEndsWithOne)
{
    EXPECT_EQ(1u, RunScript(L"/ld no_such_module.arx", "ZOOM E\n"));
}

TEST(HostProgram, ArgumentThatMakesNoSenseEndsWithOne)
{
    EXPECT_EQ(1u, RunHost(L"/unknown"));
}

TEST(HostProgram, CommandOfTheArgumentsIsRun)
{
    EXPECT_EQ(0u, RunHost(L"/c QUIT"));
}

TEST(HostProgram, ModuleThatWasLoadedTwiceGoesWithTheFirstUnload)
{
    EXPECT_EQ(0u, RunScript(L"", "ARX L ZNKTPub.arx\nARX L ZNKTPub.arx\nARX U ZNKTPub.arx\n"));
    EXPECT_EQ(1u, RunScript(L"", "ARX L ZNKTPub.arx\nARX L ZNKTPub.arx\nARX U ZNKTPub.arx\nARX U ZNKTPub.arx\n"));
}

TEST(HostProgram, QuitEndsAScriptEarly)
{
    EXPECT_EQ(0u, RunScript(L"", "QUIT\nNOSUCHCOMMAND\n"));
}
