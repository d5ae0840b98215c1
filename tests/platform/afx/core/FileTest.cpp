// Files and folders.
#include <afx.h>

#include <gtest/gtest.h>

namespace
{
// A folder of its own for one test, removed with its files.
class ScratchFolder
{
public:
    ScratchFolder()
    {
        wchar_t temp[MAX_PATH];
        ::GetTempPathW(MAX_PATH, temp);
        wchar_t name[MAX_PATH];
        ::GetTempFileNameW(temp, L"afx", 0, name);
        ::DeleteFileW(name);
        ::CreateDirectoryW(name, NULL);
        m_path = name;
    }
    ~ScratchFolder()
    {
        CFileFind find;
        for (BOOL more = find.FindFile(m_path + L"\\*"); more;)
        {
            more = find.FindNextFile();
            ::DeleteFileW(find.GetFilePath());
        }
        find.Close();
        ::RemoveDirectoryW(m_path);
    }
    CString File(LPCWSTR name) const { return m_path + L"\\" + name; }

private:
    CString m_path;
};

void WriteBytes(LPCWSTR path, LPCSTR bytes)
{
    CFile file(path, CFile::modeCreate | CFile::modeWrite);
    file.Write(bytes, static_cast<UINT>(strlen(bytes)));
    file.Close();
}

CStringA ReadBytes(LPCWSTR path)
{
    CFile file(path, CFile::modeRead);
    char bytes[256];
    return CStringA(bytes, static_cast<int>(file.Read(bytes, sizeof(bytes))));
}
} // namespace

TEST(File, WritesAndReadsBytes)
{
    const ScratchFolder folder;
    const CString path = folder.File(L"a.txt");
    WriteBytes(path, "one");
    EXPECT_STREQ("one", ReadBytes(path));
    CFile file(path, CFile::modeReadWrite);
    EXPECT_EQ(3u, file.GetLength());
    EXPECT_EQ(3u, file.SeekToEnd());
    file.Write("two", 3);
    EXPECT_EQ(6u, file.GetPosition());
    file.SetLength(5);
    EXPECT_STREQ(L"a.txt", file.GetFileName());
    EXPECT_STREQ(L"a", file.GetFileTitle());
    EXPECT_STREQ(path, file.GetFilePath());
    file.Close();
    EXPECT_EQ(CFile::hFileNull, file.m_hFile);
    EXPECT_STREQ("onetw", ReadBytes(path));
}

TEST(File, CreateTruncatesUnlessToldOtherwise)
{
    const ScratchFolder folder;
    const CString path = folder.File(L"a.txt");
    WriteBytes(path, "longer");
    CFile(path, CFile::modeCreate | CFile::modeNoTruncate | CFile::modeWrite).Write("L", 1);
    EXPECT_STREQ("Longer", ReadBytes(path));
    WriteBytes(path, "x");
    EXPECT_STREQ("x", ReadBytes(path));
}

TEST(File, AMissingFileIsNamedInTheException)
{
    const ScratchFolder folder;
    const CString path = folder.File(L"none.txt");
    CFile file;
    CFileException error;
    EXPECT_FALSE(file.Open(path, CFile::modeRead, &error));
    EXPECT_EQ(CFileException::fileNotFound, error.m_cause);
    EXPECT_EQ(ERROR_FILE_NOT_FOUND, error.m_lOsError);
    EXPECT_STREQ(path, error.m_strFileName);
    try
    {
        CFile thrown(path, CFile::modeRead);
        FAIL() << "opened a file that is not there";
    }
    catch (CFileException* e)
    {
        EXPECT_EQ(CFileException::fileNotFound, e->m_cause);
        e->Delete();
    }
}

TEST(File, AnExclusiveFileCannotBeOpenedTwice)
{
    const ScratchFolder folder;
    const CString path = folder.File(L"a.txt");
    const CFile first(path, CFile::modeCreate | CFile::modeWrite | CFile::shareExclusive);
    CFile second;
    CFileException error;
    EXPECT_FALSE(second.Open(path, CFile::modeRead | CFile::shareDenyNone, &error));
    EXPECT_EQ(CFileException::sharingViolation, error.m_cause);
}

TEST(File, IsRenamedRemovedAndDescribed)
{
    const ScratchFolder folder;
    const CString path = folder.File(L"a.txt");
    WriteBytes(path, "12345");
    CFile::Rename(path, folder.File(L"b.txt"));
    CFileStatus status;
    EXPECT_FALSE(CFile::GetStatus(path, status));
    ASSERT_TRUE(CFile::GetStatus(folder.File(L"b.txt"), status));
    EXPECT_EQ(5u, status.m_size);
    EXPECT_GT(status.m_mtime, CTime(2000, 1, 1, 0, 0, 0));
    CFile::Remove(folder.File(L"b.txt"));
    EXPECT_THROW(CFile::Remove(folder.File(L"b.txt")), CFileException*);
}

TEST(StdioFile, WritesAndReadsLines)
{
    const ScratchFolder folder;
    const CString path = folder.File(L"lines.txt");
    CStdioFile out(path, CFile::modeCreate | CFile::modeWrite | CFile::typeText);
    out.WriteString(L"first\n\nlast");
    out.Close();
    EXPECT_STREQ("first\r\n\r\nlast", ReadBytes(path));
    CStdioFile in(path, CFile::modeRead | CFile::typeText);
    CString line;
    EXPECT_TRUE(in.ReadString(line));
    EXPECT_STREQ(L"first", line);
    EXPECT_TRUE(in.ReadString(line));
    EXPECT_STREQ(L"", line);
    EXPECT_TRUE(in.ReadString(line));
    EXPECT_STREQ(L"last", line);
    EXPECT_FALSE(in.ReadString(line));
    EXPECT_STREQ(L"", line);
}

TEST(StdioFile, BinaryFilesKeepTheirLineEnds)
{
    const ScratchFolder folder;
    const CString path = folder.File(L"lines.bin");
    CStdioFile file(path, CFile::modeCreate | CFile::modeReadWrite | CFile::typeBinary);
    file.WriteString(L"a\nb\n");
    EXPECT_EQ(4u, file.GetLength());
    EXPECT_EQ(2u, file.Seek(2, CFile::begin));
    CString line;
    EXPECT_TRUE(file.ReadString(line));
    EXPECT_STREQ(L"b", line);
}

TEST(StdioFile, IsClosedByItsDestructor)
{
    const ScratchFolder folder;
    const CString path = folder.File(L"a.txt");
    {
        CStdioFile file(path, CFile::modeCreate | CFile::modeWrite);
        file.WriteString(L"kept");
    }
    EXPECT_STREQ("kept", ReadBytes(path));
}

TEST(FileFind, WalksAFolder)
{
    const ScratchFolder folder;
    WriteBytes(folder.File(L"a.dxf"), "1");
    WriteBytes(folder.File(L"b.dxf"), "22");
    WriteBytes(folder.File(L"c.txt"), "333");
    CFileFind find;
    int count = 0;
    ULONGLONG bytes = 0;
    for (BOOL more = find.FindFile(folder.File(L"*.dxf")); more;)
    {
        more = find.FindNextFile();
        ++count;
        bytes += find.GetLength();
        EXPECT_STREQ(folder.File(find.GetFileTitle() + L".dxf"), find.GetFilePath());
        EXPECT_FALSE(find.IsDirectory() || find.IsDots());
    }
    EXPECT_EQ(2, count);
    EXPECT_EQ(3u, bytes);
    EXPECT_FALSE(find.FindFile(folder.File(L"*.none")));
    EXPECT_FALSE(find.FindNextFile());
}
