// The row of tabs above the drawings, one tab a document.
#pragma once

#include <afxcmn.h>
#include <afxext.h>

#include "arx/ed/HostServices.h"

#include <vector>

namespace arxhost
{

class DocumentTabs : public CControlBar
{
public:
    bool Create(CFrameWnd& frame);

    void Add(AcApDocument* document);
    void Remove(AcApDocument* document);
    void Select(AcApDocument* document);

    CSize CalcFixedLayout(BOOL stretch, BOOL horizontal) override;
    void OnUpdateCmdUI(CFrameWnd* target, BOOL disableIfNoHandler) override;

protected:
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnSelectionChanged(NMHDR* header, LRESULT* result);

    DECLARE_MESSAGE_MAP()

private:
    int IndexOf(AcApDocument* document) const;

    CTabCtrl m_tabs;
    std::vector<AcApDocument*> m_documents; // in the order of the tabs
};

} // namespace arxhost
