// CFormView: a view made of a dialog template (style WS_CHILD, no caption). Its controls are exchanged by
// DoDataExchange and filled by OnInitialUpdate. It deletes itself with its window, as every view does.
#pragma once

#include "afx/frame/ScrollView.h"

class AFX_API CFormView : public CScrollView
{
    DECLARE_DYNAMIC(CFormView)

public:
    // The class name is not used: the window is a dialog. FALSE: there is no such template, or the window failed.
    BOOL Create(LPCTSTR className, LPCTSTR windowName, DWORD style, const RECT& rect, CWnd* parent, UINT id,
                CCreateContext* context = nullptr) override;
    void OnInitialUpdate() override;
    BOOL PreTranslateMessage(MSG* message) override;

protected:
    explicit CFormView(LPCTSTR templateName);
    explicit CFormView(UINT templateId);

    LPCTSTR m_lpszTemplateName;
};
