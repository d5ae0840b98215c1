// The child window of one document in the frame; it holds the drawing view.
#pragma once

#include <afxwin.h>

#include "arx/ed/HostServices.h"

namespace arxhost
{

class DrawingView;

class DrawingFrame : public CMDIChildWnd
{
public:
    explicit DrawingFrame(AcApDocument* document);

    AcApDocument* HostDocument() const { return m_drawing; }
    DrawingView& View() const { return *m_view; }

protected:
    BOOL PreCreateWindow(CREATESTRUCT& create) override;

    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnClose();
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnMDIActivate(BOOL activate, CWnd* activated, CWnd* deactivated);

    DECLARE_MESSAGE_MAP()

private:
    AcApDocument* m_drawing;
    DrawingView* m_view = nullptr; // deletes itself with its window
};

} // namespace arxhost
