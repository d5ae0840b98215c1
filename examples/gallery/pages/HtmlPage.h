// The browser control: a page whose links are commands, and the log of what they ask for.
#pragma once

#include "../GalleryPage.h"

#include <HtmlCtrl.h>

class CHtmlPage : public CGalleryPage
{
public:
    static const wchar_t Description[];
    static const wchar_t Code[];

    CHtmlPage();

protected:
    BOOL OnInitDialog() override;

    afx_msg void OnLink(UINT id);

    DECLARE_MESSAGE_MAP()

private:
    // Writes into the log what the page asks for.
    class CLinks : public CHtmlCtrl
    {
    public:
        void OnBeforeNavigate2(LPCTSTR url, DWORD flags, LPCTSTR target, CByteArray& data, LPCTSTR headers,
                               BOOL* cancel) override;
        void OnAppCmd(const wchar_t* command) override;

    private:
        void Log(const wchar_t* what, const wchar_t* text);
    };

    CLinks m_html;
};
