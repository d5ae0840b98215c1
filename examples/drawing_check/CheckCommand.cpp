#include "CheckCommand.h"

#include "CheckReport.h"
#include "DrawingReader.h"

#include <KTMsgWnd.h>

#include <acutads.h>
#include <dbapserv.h>

namespace drawing_check
{

void CheckDrawing()
{
    AcDbDatabase* database = acdbHostApplicationServices()->workingDatabase();
    if (database == nullptr)
    {
        acutPrintf(L"\n没有打开的图形。");
        return;
    }
    RemoveOldMessages();
    const int findings = ReportFindings(ReadDrawing(*database));
    KTMsgWnd::ShowMsgWnd(true);
    acutPrintf(L"\n检查完成，发现 %d 处问题。", findings);
}

} // namespace drawing_check
