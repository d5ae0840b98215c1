// Script lines are run one by one, in order, and a failure ends them.
#include "host/ScriptRunner.h"

#include <gtest/gtest.h>

using arxhost::ScriptRunner;

namespace
{

class ScriptRun : public testing::Test
{
protected:
    // Runs up to `count` lines; lines that hold "BAD" fail.
    void Step(int count)
    {
        for (int i = 0; i < count; ++i)
        {
            const bool succeeded = m_runner.Step(
                [this](const std::wstring& line) {
                    m_done.push_back(line);
                    if (line == L"CALL")
                        m_runner.Add(L"inner", L"C\nD");
                    return line.find(L"BAD") == std::wstring::npos;
                },
                m_failedAt);
            m_succeeded = m_succeeded && succeeded;
        }
    }

    ScriptRunner m_runner;
    std::vector<std::wstring> m_done;
    std::wstring m_failedAt;
    bool m_succeeded = true;
};

} // namespace

TEST_F(ScriptRun, OneLineAStep)
{
    m_runner.Add(L"tour", L"A\n\nB");
    Step(1);
    EXPECT_EQ((std::vector<std::wstring>{L"A"}), m_done);
    EXPECT_FALSE(m_runner.IsEmpty());
    Step(1);
    EXPECT_EQ((std::vector<std::wstring>{L"A", L"B"}), m_done);
    EXPECT_TRUE(m_runner.IsEmpty());
}

TEST_F(ScriptRun, ScriptCalledByAScriptRunsBeforeTheRest)
{
    m_runner.Add(L"outer", L"CALL\nE");
    Step(4);
    EXPECT_EQ((std::vector<std::wstring>{L"CALL", L"C", L"D", L"E"}), m_done);
}

TEST_F(ScriptRun, FailureDropsTheRestAndNamesThePlace)
{
    m_runner.Add(L"tour.scr", L"A\n; comment\nBAD 1\nB");
    Step(3);
    EXPECT_FALSE(m_succeeded);
    EXPECT_TRUE(m_runner.IsEmpty());
    EXPECT_EQ((std::vector<std::wstring>{L"A", L"BAD 1"}), m_done);
    EXPECT_EQ(L"脚本“tour.scr”第 3 行没有成功：BAD 1", m_failedAt);
}

TEST_F(ScriptRun, MissingFileIsToldWithItsName)
{
    std::wstring error;
    EXPECT_FALSE(m_runner.Load(L"no_such_script.scr", error));
    EXPECT_NE(std::wstring::npos, error.find(L"no_such_script.scr"));
    EXPECT_TRUE(m_runner.IsEmpty());
}

TEST_F(ScriptRun, DelayIsWaitedFor)
{
    EXPECT_EQ(0u, m_runner.Waiting());
    m_runner.Delay(60000);
    EXPECT_GT(m_runner.Waiting(), 0u);
    EXPECT_LE(m_runner.Waiting(), 60000u);
    m_runner.Delay(0);
    EXPECT_EQ(0u, m_runner.Waiting());
}
