#include "acui.h"

IMPLEMENT_DYNAMIC(CAcUiDialog, CAdUiDialog)

BEGIN_MESSAGE_MAP(CAcUiDialog, CAdUiDialog)
END_MESSAGE_MAP()

CAcUiDialog::CAcUiDialog(UINT idd, CWnd* pParent, HINSTANCE hDialogResource)
    : CAdUiDialog(idd, pParent, hDialogResource)
{
}

CAcUiDialog::~CAcUiDialog() {}
