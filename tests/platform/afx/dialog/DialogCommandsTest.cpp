// Commands that neither a dialog nor a property sheet knows: which go on, to whom, and in which order.
#include "ScriptedDialog.h"

#include <afxcmn.h>
#include <afxdlgs.h>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "RecordingPage.h"

namespace
{

struct CommandRow
{
    const char* name;
    UINT id;
    int code;
    bool goesOn;
};

const CommandRow kRows[] = {
    {"the last identifier of controls", 0x7FFF, CN_COMMAND, false},
    {"the first identifier of commands", 0x8000, CN_COMMAND, true},
    {"the last identifier of commands", 0xEFFF, CN_COMMAND, true},
    {"the first command of the system", 0xF000, CN_COMMAND, false},
    {"an update request", 0x8000, static_cast<int>(CN_UPDATE_COMMAND_UI), true},
    {"an update request for a control", 0x7FFF, static_cast<int>(CN_UPDATE_COMMAND_UI), false},
    {"a notification of a control", 0x8000, EN_CHANGE, false},
};

// Notes what it is offered and knows nothing.
class AskedOwner : public OwnerWindow
{
public:
    BOOL OnCmdMsg(UINT id, int code, void*, AFX_CMDHANDLERINFO*) override
    {
        m_asked.push_back(id);
        m_codes.push_back(code);
        return m_knows;
    }

    BOOL m_knows = FALSE;
    std::vector<UINT> m_asked;
    std::vector<int> m_codes;
};

// A dialog and a sheet over the owner; both must route alike.
struct DialogAndSheet
{
    explicit DialogAndSheet(CWnd* owner) : page(log, L"Page"), sheet(L"Sheet", owner)
    {
        DialogTemplate form = ScriptedDialog::Form(WS_POPUP | WS_CAPTION | DS_SETFONT);
        dialog.CreateIndirect(form.Get(), owner);
        sheet.AddPage(&page);
        sheet.Create(owner);
    }
    ~DialogAndSheet()
    {
        sheet.DestroyWindow();
        dialog.DestroyWindow();
    }

    std::vector<CWnd*> Both() { return {&dialog, &sheet}; }

    SheetLog log;
    RecordingPage page;
    ScriptedDialog dialog;
    CPropertySheet sheet;
};

} // namespace

TEST(DialogCommands, GoOnToTheOwnerFromADialogAndFromASheet)
{
    AskedOwner owner;
    owner.m_knows = TRUE;
    DialogAndSheet routed(&owner);
    for (CWnd* const window : routed.Both())
    {
        for (const CommandRow& row : kRows)
        {
            owner.m_asked.clear();
            owner.m_codes.clear();
            EXPECT_EQ(row.goesOn, window->OnCmdMsg(row.id, row.code, nullptr, nullptr) != FALSE) << row.name;
            ASSERT_EQ(row.goesOn ? 1u : 0u, owner.m_asked.size()) << row.name;
            if (row.goesOn)
            {
                EXPECT_EQ(row.id, owner.m_asked[0]) << row.name;
                EXPECT_EQ(row.code, owner.m_codes[0]) << row.name;
            }
        }
    }
}

TEST(DialogCommands, WhatTheDialogKnowsItselfDoesNotGoOn)
{
    AskedOwner owner;
    DialogAndSheet routed(&owner);
    EXPECT_TRUE(routed.dialog.OnCmdMsg(IDC_APPLY, BN_CLICKED, nullptr, nullptr));
    EXPECT_EQ(1, routed.dialog.m_applies);
    EXPECT_TRUE(owner.m_asked.empty());
}

namespace
{

// A thread of its own, in which the commands of a dialog end that the owner does not know either.
class AskedThread : public CWinThread
{
public:
    BOOL InitInstance() override
    {
        AskedOwner owner;
        DialogAndSheet routed(&owner);
        for (CWnd* const window : routed.Both())
        {
            m_answers.push_back(window->OnCmdMsg(0x8000, CN_COMMAND, nullptr, nullptr));
            m_answers.push_back(window->OnCmdMsg(0x7FFF, CN_COMMAND, nullptr, nullptr));
        }
        m_ownerAsked = owner.m_asked.size();
        return FALSE;
    }

    BOOL OnCmdMsg(UINT id, int, void*, AFX_CMDHANDLERINFO*) override
    {
        m_asked.push_back(id);
        return TRUE;
    }

    std::vector<BOOL> m_answers;
    std::vector<UINT> m_asked;
    size_t m_ownerAsked = 0;
};

} // namespace

TEST(DialogCommands, GoOnToTheThreadWhenTheOwnerDoesNotKnowThem)
{
    AskedThread thread;
    thread.m_bAutoDelete = FALSE;
    ASSERT_TRUE(thread.CreateThread());
    ::WaitForSingleObject(thread.m_hThread, INFINITE);
    EXPECT_EQ((std::vector<BOOL>{TRUE, FALSE, TRUE, FALSE}), thread.m_answers);
    EXPECT_EQ((std::vector<UINT>{0x8000, 0x8000}), thread.m_asked);
    EXPECT_EQ(2u, thread.m_ownerAsked) << "the owner is asked first";
}
