#include "arx/ed/FileTrouble.h"

#include "arx/ed/HostServices.h"

#include <gtest/gtest.h>
#include <windows.h>

using arxhost::ReadTrouble;
using arxhost::WriteTrouble;

namespace
{

std::wstring TemporaryFolder()
{
    wchar_t folder[MAX_PATH] = L"";
    GetTempPathW(MAX_PATH, folder);
    return folder;
}

// A file that exists, held open without sharing while the object lives.
class HeldFile
{
public:
    HeldFile()
        : path(TemporaryFolder() + L"file_trouble_test.dxf"),
          m_file(CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                             FILE_FLAG_DELETE_ON_CLOSE, nullptr))
    {
    }
    ~HeldFile() { CloseHandle(m_file); }
    HeldFile(const HeldFile&) = delete;
    HeldFile& operator=(const HeldFile&) = delete;

    const std::wstring path;

private:
    const HANDLE m_file;
};

} // namespace

TEST(FileTrouble, ReadingNamesWhatIsWrong)
{
    EXPECT_EQ(ReadTrouble(TemporaryFolder() + L"no_such_file.dxf"), L"找不到文件");
    EXPECT_EQ(ReadTrouble(L"C:\\no such folder\\a.dxf"), L"找不到文件");
    EXPECT_EQ(ReadTrouble(L""), L"找不到文件");
    EXPECT_EQ(ReadTrouble(TemporaryFolder()), L"它是文件夹，不是文件");
}

TEST(FileTrouble, FileInUseIsToldFromAMissingOne)
{
    const HeldFile held;
    EXPECT_EQ(ReadTrouble(held.path), L"文件正由另一个程序使用，请在那里关闭后再试");
    EXPECT_EQ(WriteTrouble(held.path), L"文件正由另一个程序使用，请在那里关闭后再试");
    arxhost::OpenResult result;
    EXPECT_EQ(arxhost::OpenDocument(held.path.c_str(), result), nullptr);
    EXPECT_NE(result.message.find(L"文件正由另一个程序使用"), std::wstring::npos);
}

TEST(FileTrouble, WritingNamesTheMissingFolder)
{
    EXPECT_EQ(WriteTrouble(L"C:\\no such folder\\a.png"), L"文件夹“C:\\no such folder\\”不存在，请先创建");
    EXPECT_EQ(WriteTrouble(TemporaryFolder()), L"它是文件夹，请给出文件名");
}

TEST(FileTrouble, ReadOnlyFileCannotBeWritten)
{
    const std::wstring path = TemporaryFolder() + L"file_trouble_read_only.png";
    CloseHandle(CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_READONLY, nullptr));
    EXPECT_NE(WriteTrouble(path).find(L"只读"), std::wstring::npos);
    SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
    EXPECT_TRUE(DeleteFileW(path.c_str()));
}

TEST(FileTrouble, LookingLeavesNoFileBehind)
{
    const std::wstring path = TemporaryFolder() + L"file_trouble_new.png";
    EXPECT_NE(WriteTrouble(path), L"");
    EXPECT_EQ(GetFileAttributesW(path.c_str()), INVALID_FILE_ATTRIBUTES);
}

TEST(FileTrouble, FolderIsNoDrawing)
{
    arxhost::OpenResult result;
    EXPECT_EQ(arxhost::OpenDocument(TemporaryFolder().c_str(), result), nullptr);
    EXPECT_EQ(result.message.find(L"它是文件夹，不是文件"), 0u);
}
