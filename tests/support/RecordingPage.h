// Pages of a property sheet for tests: made of a template in memory, each writes what the sheet tells it into a common
// log, as "name event", and refuses what the test wants refused.
//
//   SheetLog log;
//   RecordingPage general(log, L"General");
//   sheet.AddPage(&general);
//   EXPECT_EQ("General init, General set", log.Take());
#pragma once

#include <afxwin.h>
#include <afxdlgs.h>

#include <string>
#include <vector>

#include "DialogTemplate.h"

class SheetLog
{
public:
    void Add(const std::string& line) { m_lines.push_back(line); }

    // All lines since the last call.
    std::string Take()
    {
        std::string all;
        for (const std::string& line : m_lines)
            all += (all.empty() ? "" : ", ") + line;
        m_lines.clear();
        return all;
    }

private:
    std::vector<std::string> m_lines;
};

class RecordingPage : public CPropertyPage
{
public:
    static const int EditId = 1001;

    RecordingPage(SheetLog& log, const wchar_t* name, DWORD flags = 0)
        : m_template(name, 160, 80, WS_CHILD | WS_CAPTION | WS_DISABLED | DS_SETFONT), m_log(log),
          m_name(CStringA(name).GetString())
    {
        m_template.Edit(EditId, 10, 10);
        m_psp.dwFlags |= PSP_DLGINDIRECT | flags;
        m_psp.pResource = m_template.Get();
    }

    BOOL OnInitDialog() override
    {
        Log("init");
        return CPropertyPage::OnInitDialog();
    }
    BOOL OnSetActive() override
    {
        Log("set");
        return CPropertyPage::OnSetActive() && m_allowSet;
    }
    BOOL OnKillActive() override
    {
        Log("kill");
        return CPropertyPage::OnKillActive() && m_allowKill;
    }
    BOOL OnApply() override
    {
        Log("apply");
        return m_allowApply && CPropertyPage::OnApply();
    }
    void OnOK() override { Log("ok"); }
    void OnCancel() override { Log("cancel"); }
    BOOL OnQueryCancel() override
    {
        Log("query");
        return m_allowCancel;
    }
    LRESULT OnWizardNext() override
    {
        Log("next");
        return m_wizardNext;
    }
    BOOL OnWizardFinish() override
    {
        Log("finish");
        return m_allowFinish;
    }
    LRESULT OnQuerySiblings(WPARAM wParam, LPARAM lParam) override
    {
        Log("siblings");
        return static_cast<LRESULT>(wParam) + lParam == m_siblingQuestion ? m_siblingAnswer : 0;
    }

    BOOL m_allowSet = TRUE;
    BOOL m_allowKill = TRUE;
    BOOL m_allowApply = TRUE;
    BOOL m_allowCancel = TRUE;
    BOOL m_allowFinish = TRUE;
    LRESULT m_wizardNext = 0;
    LRESULT m_siblingQuestion = -1;
    LRESULT m_siblingAnswer = 0;
    CString m_text = L"first";

protected:
    void DoDataExchange(CDataExchange* exchange) override
    {
        CPropertyPage::DoDataExchange(exchange);
        DDX_Text(exchange, EditId, m_text);
    }

private:
    void Log(const char* event) { m_log.Add(m_name + " " + event); }

    DialogTemplate m_template;
    SheetLog& m_log;
    std::string m_name;
};
