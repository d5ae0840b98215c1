// The browser control: a page whose links are commands, and the log of what
// they ask for.
#pragma once

#include "../GalleryPage.h"

// [show]
#include <HtmlCtrl.h>
// [end]

class CHtmlPage : public CGalleryPage
{
public:
    static const wchar_t Description[];

    CHtmlPage();

protected:
    BOOL OnInitDialog() override;

    afx_msg void OnLink(UINT id);

    DECLARE_MESSAGE_MAP()

private:
    // Writes into the log what the page asks for.
    // [show]
    class CLinks : public CHtmlCtrl
    {
    public:
        void OnBeforeNavigate2(LPCTSTR url, DWORD flags, LPCTSTR target,
                               CByteArray& data, LPCTSTR headers,
                               BOOL* cancel) override;
        // <a href="app:open?id=3"> 给出 "open?id=3"
        void OnAppCmd(const wchar_t* command) override;

    private:
        void Log(const wchar_t* what, const wchar_t* text);
    };
    // [end]

    // [show]
    CLinks m_html; // 对话框成员
    // [end]
};
