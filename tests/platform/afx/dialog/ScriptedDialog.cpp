#include "ScriptedDialog.h"

BEGIN_MESSAGE_MAP(ScriptedDialog, CDialog)
    ON_BN_CLICKED(IDC_APPLY, &ScriptedDialog::OnApply)
    ON_MESSAGE(WM_KICKIDLE, &ScriptedDialog::OnKickIdle)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(OwnerWindow, CWnd)
    ON_COMMAND(ID_OWNER_COMMAND, &OwnerWindow::OnOwnerCommand)
END_MESSAGE_MAP()
