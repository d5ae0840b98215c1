// The strip at the lower edge: a message at the left, the cursor's place in the drawing at the right.
#pragma once

#include <afxext.h>

namespace arxhost
{

class StatusStrip : public CControlBar
{
public:
    bool Create(CFrameWnd& frame);

    void SetMessage(const CString& text);
    void SetCoordinates(const CString& text);
    // A progress bar in place of the message; `part` from 0 to 1. A negative part takes it away.
    void SetProgress(double part);

    CSize CalcFixedLayout(BOOL stretch, BOOL horizontal) override;
    void OnUpdateCmdUI(CFrameWnd* target, BOOL disableIfNoHandler) override;

protected:
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnPaint();

    DECLARE_MESSAGE_MAP()

private:
    void Draw(CDC& dc, const CRect& area);

    CString m_message;
    CString m_coordinates;
    double m_progress = -1;
};

} // namespace arxhost
