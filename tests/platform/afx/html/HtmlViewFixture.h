// A view on the real browser control that remembers its events.
#pragma once

#include <afxhtml.h>

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "Wait.h"

class RecordingHtmlView : public CHtmlView
{
public:
    RecordingHtmlView() = default;
    ~RecordingHtmlView() override = default;

    using CHtmlView::m_pBrowserApp;
    using CHtmlView::m_wndBrowser;

    void OnBeforeNavigate2(LPCTSTR url, DWORD flags, LPCTSTR target, CByteArray& postedData, LPCTSTR headers,
                           BOOL* cancel) override
    {
        m_addresses.push_back(url);
        m_target = target;
        m_headers = headers;
        m_posted.assign(postedData.GetData(), postedData.GetData() + postedData.GetSize());
        m_cancelBefore = *cancel;
        *cancel = m_cancel;
        CHtmlView::OnBeforeNavigate2(url, flags, target, postedData, headers, cancel);
        if (m_onNavigate)
            m_onNavigate();
    }

    void OnNavigateError(LPCTSTR url, LPCTSTR frame, DWORD error, BOOL* cancel) override
    {
        m_errors.push_back(url);
        CHtmlView::OnNavigateError(url, frame, error, cancel);
    }

    void PostNcDestroy() override
    {
        ++m_lastCalls; // the object is the test's
    }

    bool Came(const wchar_t* address) const { return !m_addresses.empty() && m_addresses.back() == CString(address); }

    std::vector<CString> m_addresses;
    std::vector<CString> m_errors;
    CString m_target;
    CString m_headers;
    std::vector<BYTE> m_posted;
    BOOL m_cancelBefore = TRUE;
    BOOL m_cancel = TRUE;
    int m_lastCalls = 0;
    std::function<void()> m_onNavigate;
};

class HtmlViewFixture : public testing::Test
{
protected:
    static const UINT ViewId = 77;

    HtmlViewFixture()
    {
        m_parent.CreateEx(0, AfxRegisterWndClass(0), L"Parent", WS_OVERLAPPEDWINDOW | WS_VISIBLE,
                          CRect(50, 50, 450, 350), nullptr, 0);
    }
    ~HtmlViewFixture() override { m_parent.DestroyWindow(); }

    BOOL Create(CHtmlView& view)
    {
        return view.Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE, CRect(10, 20, 210, 120), &m_parent, ViewId);
    }

    CWnd m_parent;
};
