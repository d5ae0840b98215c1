// Trace lines in the file that SetTraceFile names.
#include <ZnQFCBaseU.h>

#include "TemporaryFolder.h"

#include <gtest/gtest.h>

#include <fstream>
#include <thread>

namespace
{
class Trace : public testing::Test
{
protected:
    Trace() : m_file(m_folder.File(L"trace.log")) { Tevrin::SetTraceFile(m_file); }
    ~Trace() override { Tevrin::SetTraceFile(nullptr); }

    std::vector<std::string> Lines() const
    {
        std::ifstream stream(static_cast<LPCWSTR>(m_file), std::ios::binary);
        std::vector<std::string> lines;
        for (std::string line; std::getline(stream, line);)
            lines.push_back(line);
        return lines;
    }

    bool Exists() const { return ::GetFileAttributesW(m_file) != INVALID_FILE_ATTRIBUTES; }

    TemporaryFolder m_folder;
    CString m_file;
};

bool EndsWith(const std::string& text, const std::string& end)
{
    return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}
} // namespace

TEST_F(Trace, WritesOneFormattedLineWithTheTime)
{
    Tevrin::Trace(L"%s-%d", L"On_kUnloadAppMsg", 41);
    const std::vector<std::string> lines = Lines();
    ASSERT_EQ(1u, lines.size());
    EXPECT_TRUE(EndsWith(lines[0], " On_kUnloadAppMsg-41\r")) << lines[0];
    int numbers[7] = {};
    EXPECT_EQ(7, sscanf(lines[0].c_str(), "%4d-%2d-%2d %2d:%2d:%2d.%3d ", &numbers[0], &numbers[1], &numbers[2],
                        &numbers[3], &numbers[4], &numbers[5], &numbers[6]));
}

TEST_F(Trace, AppendsLineAfterLine)
{
    Tevrin::Trace(L"first");
    Tevrin::Trace(L"second");
    const std::vector<std::string> lines = Lines();
    ASSERT_EQ(2u, lines.size());
    EXPECT_TRUE(EndsWith(lines[1], " second\r"));
}

TEST_F(Trace, WritesUtf8)
{
    Tevrin::Trace(L"消息");
    ASSERT_EQ(1u, Lines().size());
    EXPECT_TRUE(EndsWith(Lines()[0], "\xE6\xB6\x88\xE6\x81\xAF\r"));
}

TEST_F(Trace, TakesLinesOfAnyLength)
{
    const CString text(L'x', 20000);
    Tevrin::Trace(L"%s", static_cast<LPCWSTR>(text));
    ASSERT_EQ(1u, Lines().size());
    EXPECT_GT(Lines()[0].size(), 20000u);
}

TEST_F(Trace, ATextThatIsNoFormatIsWrittenAsItIs)
{
    Tevrin::Trace(L"%s %n 50% %% %d");
    Tevrin::Trace(L"%d of %s", 3);
    const std::vector<std::string> lines = Lines();
    ASSERT_EQ(2u, lines.size());
    EXPECT_TRUE(EndsWith(lines[0], " %s %n 50% % %d\r")) << lines[0];
    EXPECT_TRUE(EndsWith(lines[1], " 3 of %s\r")) << lines[1];
}

TEST_F(Trace, ANullFormatWritesNothing)
{
    Tevrin::Trace(nullptr);
    EXPECT_FALSE(Exists());
}

TEST_F(Trace, AnEmptyOrNullPathEndsTheFile)
{
    Tevrin::SetTraceFile(L"");
    Tevrin::Trace(L"nowhere");
    Tevrin::SetTraceFile(nullptr);
    Tevrin::Trace(L"nowhere");
    EXPECT_FALSE(Exists());
}

TEST_F(Trace, AFileThatCannotBeWrittenIsLeftOut)
{
    Tevrin::SetTraceFile(m_folder.File(L"missing\\trace.log"));
    Tevrin::Trace(L"nowhere");
    EXPECT_FALSE(Exists());
}

TEST_F(Trace, LinesOfSeveralThreadsStayWhole)
{
    const int threads = 4;
    const int linesEach = 20;
    std::vector<std::thread> workers;
    for (int i = 0; i < threads; ++i)
    {
        workers.emplace_back([linesEach] {
            for (int line = 0; line < linesEach; ++line)
                Tevrin::Trace(L"worker line");
        });
    }
    for (std::thread& worker : workers)
        worker.join();
    const std::vector<std::string> lines = Lines();
    ASSERT_EQ(size_t(threads * linesEach), lines.size());
    for (const std::string& line : lines)
        EXPECT_TRUE(EndsWith(line, " worker line\r")) << line;
}
