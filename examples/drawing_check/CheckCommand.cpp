#include "CheckCommand.h"

#include "CheckProgress.h"
#include "CheckReport.h"
#include "DrawingReader.h"

#include <KTMsgWnd.h>
#include <ZNMsgObject.h>

#include <acdocman.h>
#include <acutads.h>
#include <dbapserv.h>
#include <rxmfcapi.h>

namespace drawing_check
{

namespace
{

// Null, and told so, when there is nothing to check.
AcDbDatabase* NeedDrawing()
{
    AcDbDatabase* database = acdbHostApplicationServices()->workingDatabase();
    if (database == nullptr)
        acutPrintf(L"\n没有打开的图形。");
    return database;
}

} // namespace

void CheckDrawing()
{
    AcDbDatabase* database = NeedDrawing();
    if (database == nullptr)
        return;
    RemoveOldMessages();
    CheckProgress progress(acDocManager->curDocument()->docTitle());
    const Drawing drawing =
        ReadDrawing(*database, [&progress](std::size_t read, std::size_t all) { return progress.OnRead(read, all); });
    const int findings = ReportFindings(drawing, progress);
    const bool canceled = progress.IsCanceled();
    progress.CloseWaitDlg();
    progress.MsgWndShow(true);
    acutPrintf(canceled ? L"\n检查已取消，已发现 %d 处问题。" : L"\n检查完成，发现 %d 处问题。", findings);
}

void SummaryInBox()
{
    if (NeedDrawing() == nullptr)
        return;
    ZNKTPub::CZNMsgObject messages;
    ReportSummaryOfMessages();
    messages.ShowMessageBox(adsw_acadMainWnd());
}

void SummaryOnCommandLine()
{
    if (NeedDrawing() == nullptr)
        return;
    ZNKTPub::CZNMsgObject messages;
    ReportSummaryOfMessages();
    acutPrintf(L"\n");
    messages.ShowCommandLine();
}

void SummaryInPanel()
{
    if (NeedDrawing() == nullptr)
        return;
    KTMsgWnd::RemoveMsg(group::kDigest, false);
    ZNKTPub::CZNMsgObject messages;
    ReportSummaryOfMessages();
    messages.ShowMsgPanel();
}

} // namespace drawing_check
