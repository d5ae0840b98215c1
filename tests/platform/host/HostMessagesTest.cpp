// What the host says on its standard output when something fails: what happened, why, and what to do.
#include <gtest/gtest.h>
#include <windows.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace
{

const DWORD patience = 60000; // milliseconds

std::filesystem::path TemporaryFile(const wchar_t* name)
{
    wchar_t folder[MAX_PATH];
    GetTempPathW(MAX_PATH, folder);
    return std::filesystem::path(folder) / name;
}

std::wstring FromUtf8(const std::string& bytes)
{
    const int length = MultiByteToWideChar(CP_UTF8, 0, bytes.data(), int(bytes.size()), nullptr, 0);
    std::wstring text(size_t(length), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, bytes.data(), int(bytes.size()), text.data(), length);
    return text;
}

struct Outcome
{
    DWORD code = STILL_ACTIVE;
    std::wstring output;
};

// A file that the program writes its output to.
HANDLE InheritableFile(const std::filesystem::path& path)
{
    SECURITY_ATTRIBUTES inherit = {sizeof(inherit), nullptr, TRUE};
    return CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &inherit, CREATE_ALWAYS, 0, nullptr);
}

Outcome RunHost(const std::wstring& arguments)
{
    const std::filesystem::path log = TemporaryFile(L"host_messages_test.txt");
    std::wstring line = L"arxhost.exe " + arguments;
    STARTUPINFOW start = {};
    start.cb = sizeof(start);
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdOutput = InheritableFile(log);
    PROCESS_INFORMATION process = {};
    Outcome outcome;
    if (CreateProcessW(L"arxhost.exe", line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start, &process))
    {
        if (WaitForSingleObject(process.hProcess, patience) != WAIT_OBJECT_0)
            TerminateProcess(process.hProcess, STILL_ACTIVE);
        GetExitCodeProcess(process.hProcess, &outcome.code);
        CloseHandle(process.hThread);
        CloseHandle(process.hProcess);
    }
    CloseHandle(start.hStdOutput);
    std::ifstream file(log, std::ios::binary);
    outcome.output = FromUtf8(std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()));
    file.close();
    std::filesystem::remove(log);
    return outcome;
}

Outcome RunScript(const std::string& script)
{
    const std::filesystem::path path = TemporaryFile(L"host_messages_test.scr");
    std::ofstream(path, std::ios::binary) << script;
    const Outcome outcome = RunHost(L"/b \"" + path.wstring() + L"\"");
    std::filesystem::remove(path);
    return outcome;
}

bool Says(const Outcome& outcome, const wchar_t* words)
{
    return outcome.output.find(words) != std::wstring::npos;
}

} // namespace

TEST(HostMessages, ArgumentsThatMakeNoSenseAreExplained)
{
    const Outcome outcome = RunHost(L"/unknown");
    EXPECT_EQ(1u, outcome.code);
    EXPECT_TRUE(Says(outcome, L"错误：未知的启动参数：/unknown。"));
    EXPECT_TRUE(Says(outcome, L"用法：arxhost")) << "what can be given";
}

TEST(HostMessages, ArgumentsAreListedWhenAskedFor)
{
    const Outcome outcome = RunHost(L"/?");
    EXPECT_EQ(0u, outcome.code);
    EXPECT_EQ(0u, outcome.output.find(L"用法：arxhost"));
    EXPECT_TRUE(Says(outcome, L"/ld 模块"));
}

TEST(HostMessages, FailingLineOfAScriptIsNamedWithItsReason)
{
    struct Row
    {
        const char* name;
        const char* line;
        const wchar_t* words;
    };
    const Row rows[] = {
        {"picture into a missing folder", "SHOT C:\\nosuch\\a.png", L"文件夹“C:\\nosuch\\”不存在，请先创建"},
        {"slide into a missing folder", "MSLIDE C:\\nosuch\\a.sld", L"文件夹“C:\\nosuch\\”不存在，请先创建"},
        {"picture onto a folder", "SHOT C:\\windows", L"它是文件夹，请给出文件名"},
        {"missing drawing", "OPEN nosuch.dxf", L"无法打开图形“nosuch.dxf”：找不到文件"},
        {"missing script", "SCRIPT nosuch.scr", L"无法读取脚本“nosuch.scr”：找不到文件。"},
        {"missing module", "ARX L nosuch.arx", L"无法加载模块 nosuch.arx：找不到文件，找过的文件夹："},
        {"module that is not loaded", "ARX U nosuch.arx", L"没有加载模块“nosuch.arx”。ARX ? 列出已加载的模块。"},
        {"no palette yet", "PALETTE SHOW", L"没有面板。先运行会显示面板的模块命令。"},
        {"unknown command", "NOSUCH", L"输入 HELP 查看命令列表"},
    };
    for (const Row& row : rows)
    {
        const Outcome outcome = RunScript(std::string("NEW\n\n") + row.line + "\nQUIT\n");
        EXPECT_EQ(1u, outcome.code) << row.name;
        EXPECT_TRUE(Says(outcome, row.words)) << row.name;
        EXPECT_TRUE(Says(outcome, L"第 3 行没有成功：")) << row.name;
    }
}

TEST(HostMessages, ScriptThatIsNotThereIsSaid)
{
    const Outcome outcome = RunHost(L"/b C:\\nosuch.scr");
    EXPECT_EQ(1u, outcome.code);
    EXPECT_TRUE(Says(outcome, L"错误：无法读取脚本“C:\\nosuch.scr”：找不到文件。"));
}
