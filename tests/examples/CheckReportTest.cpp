// The drawing check as a client of the callback and of the message object: progress, Cancel, summaries.
#include "drawing_check/CheckCommand.h"
#include "drawing_check/CheckReport.h"

#include "MessageBoxAnswer.h"

#include <KTMsgWnd.h>
#include <MsgCallbackImp.h>

#include <afxext.h>
#include <dbapserv.h>
#include <dbents.h>
#include <dbsymtb.h>

#include "arx/ed/HostServices.h"

#include <gtest/gtest.h>

using namespace drawing_check;

namespace
{

// Notes the lines; the user cancels at a chosen question.
class ScriptedProgress : public CMsgCallbackImp
{
public:
    explicit ScriptedProgress(int cancelAt) : CMsgCallbackImp(NULL), m_cancelAt(cancelAt) {}

    void WaitDlgModiLastMsg(const wchar_t* text) override { lines.push_back(text); }
    bool IsCanceled() const override { return ++asked >= m_cancelAt; }

    std::vector<std::wstring> lines;
    mutable int asked = 0;

private:
    int m_cancelAt;
};

const int kNever = 1 << 30;

class PrintedText : public arxhost::IPrintSink
{
public:
    PrintedText() { arxhost::SetPrintSink(this); }
    ~PrintedText() { arxhost::SetPrintSink(nullptr); }
    void Print(const wchar_t* piece) override { text += piece; }

    std::wstring text;
};

class CheckReport : public testing::Test
{
protected:
    CheckReport()
    {
        KTMsgWnd::RemoveAllMsg();
        arxhost::Reset();
        arxhost::NewDocument();
    }
    ~CheckReport() override
    {
        KTMsgWnd::RemoveAllMsg();
        arxhost::Reset();
    }

    // Three lines of no length, and each line twice: one finding of each of two checks a pair.
    static void AddFaults()
    {
        for (int i = 0; i < 3; ++i)
        {
            Append(new AcDbLine(AcGePoint3d(i, 0, 0), AcGePoint3d(i, 0, 0)));
            Append(new AcDbLine(AcGePoint3d(i, 0, 0), AcGePoint3d(i, 0, 0)));
        }
    }

    static void Append(AcDbEntity* entity)
    {
        AcDbDatabase* const database = acdbHostApplicationServices()->workingDatabase();
        AcDbBlockTableRecord* space = nullptr;
        ASSERT_EQ(Acad::eOk, acdbOpenObject(space, database->currentSpaceId(), AcDb::kForWrite));
        EXPECT_EQ(Acad::eOk, space->appendAcDbEntity(entity));
        entity->close();
        space->close();
    }

    static Drawing Read() { return ReadDrawing(*acdbHostApplicationServices()->workingDatabase()); }
};

} // namespace

TEST_F(CheckReport, TheTopLineTellsWhichCheckIsAtWork)
{
    AddFaults();
    ScriptedProgress progress(kNever);
    EXPECT_EQ(9, ReportFindings(Read(), progress));
    ASSERT_EQ(7u, progress.lines.size());
    EXPECT_EQ(L"检查 1/7：零长度线", progress.lines.front());
    EXPECT_EQ(L"检查 7/7：缺少引用", progress.lines.back());
    EXPECT_EQ(6, KTMsgWnd::GetMsgCount(group::kZeroLength));
    EXPECT_EQ(3, KTMsgWnd::GetMsgCount(group::kDuplicates));
    EXPECT_EQ(2, KTMsgWnd::GetMsgCount(group::kSummary)) << "the sum, and that there is no sheet to compare with";
}

TEST_F(CheckReport, CancelLeavesOutTheRestAndKeepsWhatWasFound)
{
    AddFaults();
    ScriptedProgress progress(2); // the question before the second check
    EXPECT_EQ(6, ReportFindings(Read(), progress));
    EXPECT_EQ(1u, progress.lines.size());
    EXPECT_EQ(6, KTMsgWnd::GetMsgCount(group::kZeroLength));
    EXPECT_EQ(0, KTMsgWnd::GetMsgCount(group::kDuplicates));
    EXPECT_EQ(1, KTMsgWnd::GetMsgCount(group::kSummary)) << "which says that it was cancelled";
}

TEST_F(CheckReport, CancelEndsTheAddingOfFarTooManyFindings)
{
    Drawing drawing;
    const std::size_t lines = 30000;
    drawing.ids.resize(lines);
    for (std::size_t i = 0; i < lines; ++i)
        drawing.lines.push_back({i, Point(), Point()});
    ScriptedProgress progress(3); // while the findings of the first check are added
    const int findings = ReportFindings(drawing, progress);
    EXPECT_GE(findings, 10000) << "what was found is kept";
    EXPECT_LT(findings, 11000);
    EXPECT_EQ(findings, KTMsgWnd::GetMsgCount(group::kZeroLength));
}

TEST_F(CheckReport, ReadingEndsWhereItIsToldTo)
{
    AddFaults();
    std::size_t announced = 0;
    const auto stop = [&announced](std::size_t read, std::size_t all) {
        announced = all;
        return read == 4;
    };
    const Drawing drawing = ReadDrawing(*acdbHostApplicationServices()->workingDatabase(), stop);
    EXPECT_EQ(4u, drawing.ids.size());
    EXPECT_EQ(6u, announced);
}

TEST_F(CheckReport, TheBoxSaysTheSumOfTheLastCheck)
{
    AddFaults();
    ScriptedProgress progress(kNever);
    ReportFindings(Read(), progress);
    const MessageBoxAnswer answer(IDOK);
    SummaryInBox();
    ASSERT_EQ(1u, answer.Boxes().size());
    EXPECT_EQ(L"警告:检查摘要：共 9 处问题", answer.Boxes()[0].text);
}

TEST_F(CheckReport, TheCommandLineSaysTheSumOfTheLastCheck)
{
    ScriptedProgress progress(kNever);
    ReportFindings(Read(), progress);
    const PrintedText printed;
    SummaryOnCommandLine();
    EXPECT_EQ(L"\n信息:检查摘要：共 0 处问题", printed.text);
}

TEST_F(CheckReport, WithoutACheckTheSummarySaysSo)
{
    const PrintedText printed;
    SummaryOnCommandLine();
    EXPECT_EQ(L"\n警告:当前图形还没有检查过，请先运行“检查图形”", printed.text);
}

TEST_F(CheckReport, WithoutADrawingTheCommandsSaySo)
{
    arxhost::Reset();
    const PrintedText printed;
    CheckDrawing();
    SummaryInBox();
    SummaryOnCommandLine();
    SummaryInPanel();
    const std::wstring once = L"\n没有打开的图形。";
    EXPECT_EQ(once + once + once + once, printed.text);
}
