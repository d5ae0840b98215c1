// The one palette of the message palette set: hosts the message viewer, which fills it.
#pragma once

#include <afxwin.h>
#include <adui.h>
#include <acui.h>
#include <aduiPalette.h>

#include "msg/MsgPaletteChildDlg.h"

class CMsgPalette : public CAdUiPalette
{
    DECLARE_DYNAMIC(CMsgPalette)

public:
    CMsgPalette();
    virtual ~CMsgPalette();

    // Nothing is kept beside what the base keeps.
    virtual BOOL Load(IUnknown* unknown);
    virtual BOOL Save(IUnknown* unknown);

    void Refresh();
    CMsgPaletteChildDlg& GetViewer();

protected:
    afx_msg int OnCreate(LPCREATESTRUCT createStruct);
    afx_msg void OnSize(UINT type, int cx, int cy);
    DECLARE_MESSAGE_MAP()

private:
    void CreateViewer();

    CMsgPaletteChildDlg m_viewer;
};
