#include "HostFixture.h"

#include "adslib.h"

#include <stdexcept>
#include <vector>

namespace
{

// What the test commands did; they are plain functions.
std::wstring theTrace;

void First()
{
    theTrace += L"first ";
}

void Second()
{
    theTrace += L"second ";
}

void TellState()
{
    const AcApDocument* document = acDocManager->curDocument();
    theTrace += acDocManager->isApplicationContext() ? L"application " : L"document ";
    if (document != nullptr)
    {
        theTrace += document->isQuiescent() ? L"quiet " : L"busy ";
        theTrace += L"lock" + std::to_wstring(document->myLockMode()) + L" ";
    }
}

void TellContextOf(void*)
{
    theTrace += acDocManager->isApplicationContext() ? L"application " : L"document ";
}

void LeaveContext()
{
    acDocManager->executeInApplicationContext(&TellContextOf, nullptr);
    TellContextOf(nullptr);
}

void ReadAnswers()
{
    ACHAR text[133];
    int number = 0;
    ads_real real = 0;
    theTrace += acedGetString(0, L"Name: ", text) == RTNORM ? text : L"?";
    theTrace += L"|";
    theTrace += acedGetInt(L"Count: ", &number) == RTNORM ? std::to_wstring(number * 2) : L"?";
    theTrace += L"|";
    theTrace += acedGetReal(L"Size: ", &real) == RTNORM ? std::to_wstring(static_cast<int>(real * 10)) : L"?";
    theTrace += L"|";
    theTrace += acedGetString(1, L"Rest: ", text) == RTNORM ? text : L"?";
}

void CloseItself()
{
    theTrace += arxhost::CloseDocument(acDocManager->curDocument()) ? L"closed " : L"refused ";
}

void CallAnother()
{
    theTrace +=
        acedCommand(RTSTR, L"READANSWERS", RTSTR, L"a b", RTSHORT, 4, RTREAL, 2.5, RTSTR, L"end", RTNONE) == RTNORM
            ? L" called"
            : L" failed";
}

void Throw()
{
    throw std::runtime_error("command");
}

class Events : public AcEditorReactor
{
public:
    void commandWillStart(const ACHAR* name) override { Note(L"start", name); }
    void commandEnded(const ACHAR* name) override { Note(L"end", name); }
    void commandCancelled(const ACHAR* name) override { Note(L"cancelled", name); }
    void unknownCommand(const ACHAR* name) override { Note(L"unknown", name); }
    void pickfirstModified() override { text += L"pickfirst "; }

    std::wstring text;

private:
    void Note(const wchar_t* what, const ACHAR* name) { text += std::wstring(what) + L":" + name + L" "; }
};

class Commands : public HostTest
{
protected:
    void SetUp() override
    {
        HostTest::SetUp();
        theTrace.clear();
        document = arxhost::NewDocument();
    }

    static Acad::ErrorStatus Add(const ACHAR* name, AcRxFunctionPtr function, Adesk::Int32 flags = ACRX_CMD_MODAL)
    {
        return acedRegCmds->addCommand(L"TESTS", name, name, flags, function);
    }

    static std::wstring Run(const wchar_t* line)
    {
        theTrace.clear();
        return arxhost::ExecuteLine(line) ? theTrace : L"no command";
    }

    AcApDocument* document = nullptr;
};

TEST_F(Commands, AreFoundByGlobalAndLocalName)
{
    acedRegCmds->addCommand(L"TESTS", L"_LINE", L"ZHIXIAN", ACRX_CMD_MODAL, &First);
    for (const wchar_t* name : {L"LINE", L"line", L"_LINE", L"_line", L"zhixian", L"'LINE", L"_.LINE", L"._LINE"})
    {
        EXPECT_EQ(Run(name), L"first ") << name;
    }
    EXPECT_EQ(Run(L"_ZHIXIAN"), L"no command");
    EXPECT_EQ(Run(L"LIN"), L"no command");
    EXPECT_EQ(Run(L""), L"no command");
    EXPECT_EQ(Run(L"   "), L"no command");
}

TEST_F(Commands, UnknownOneIsReported)
{
    Events events;
    acedEditor->addReactor(&events);
    EXPECT_FALSE(arxhost::ExecuteCommand(L"NONE%s"));
    EXPECT_EQ(Take(), L"\n未知命令“NONE%s”。\n");
    EXPECT_EQ(events.text, L"unknown:NONE%s ");
    EXPECT_FALSE(arxhost::ExecuteCommand(nullptr));
    acedEditor->removeReactor(&events);
}

TEST_F(Commands, NameIsUniqueInItsGroup)
{
    EXPECT_EQ(Add(L"A", &First), Acad::eOk);
    EXPECT_EQ(Add(L"a", &Second), Acad::eDuplicateKey);
    EXPECT_EQ(acedRegCmds->addCommand(L"tests", L"OTHER", L"A", 0, &Second), Acad::eDuplicateKey);
    EXPECT_EQ(acedRegCmds->addCommand(L"MORE", L"A", L"A", 0, &Second), Acad::eOk);
    EXPECT_EQ(Run(L"A"), L"second ");
    EXPECT_EQ(acedRegCmds->removeGroup(L"more"), Acad::eOk);
    EXPECT_EQ(Run(L"A"), L"first ");
    EXPECT_EQ(acedRegCmds->removeGroup(L"MORE"), Acad::eKeyNotFound);
}

TEST_F(Commands, IncompleteOnesAreRefused)
{
    EXPECT_EQ(acedRegCmds->addCommand(nullptr, L"A", L"A", 0, &First), Acad::eInvalidInput);
    EXPECT_EQ(acedRegCmds->addCommand(L"G", L"", L"A", 0, &First), Acad::eInvalidInput);
    EXPECT_EQ(acedRegCmds->addCommand(L"G", L"_", L"A", 0, &First), Acad::eInvalidInput);
    EXPECT_EQ(acedRegCmds->addCommand(L"G", L"A", nullptr, 0, &First), Acad::eInvalidInput);
    EXPECT_EQ(acedRegCmds->addCommand(L"G", L"A", L"A", 0, nullptr), Acad::eInvalidInput);
    EXPECT_TRUE(arxhost::CommandNames().empty());
}

TEST_F(Commands, CanBeRemovedOneByOne)
{
    Add(L"A", &First);
    Add(L"B", &Second);
    EXPECT_EQ(arxhost::CommandNames(), (std::vector<std::wstring>{L"A", L"B"}));
    EXPECT_EQ(acedRegCmds->removeCmd(L"TESTS", L"_a"), Acad::eOk);
    EXPECT_EQ(acedRegCmds->removeCmd(L"TESTS", L"A"), Acad::eKeyNotFound);
    EXPECT_EQ(acedRegCmds->removeCmd(L"NONE", L"B"), Acad::eKeyNotFound);
    EXPECT_EQ(arxhost::CommandNames(), std::vector<std::wstring>{L"B"});
}

TEST_F(Commands, RunInTheDocumentUnderItsLock)
{
    Add(L"STATE", &TellState);
    EXPECT_EQ(Run(L"STATE"), L"document busy lock4 ");
    EXPECT_TRUE(acDocManager->isApplicationContext());
    EXPECT_TRUE(document->isQuiescent());
    EXPECT_EQ(document->myLockMode(), AcAp::kNone);
}

TEST_F(Commands, SessionOnesRunInTheApplication)
{
    Add(L"STATE", &TellState, ACRX_CMD_SESSION);
    EXPECT_EQ(Run(L"STATE"), L"application quiet lock0 ");
    arxhost::CloseDocument(document);
    EXPECT_EQ(Run(L"STATE"), L"application ");
}

TEST_F(Commands, OthersNeedADrawing)
{
    Add(L"A", &First);
    arxhost::CloseDocument(document);
    EXPECT_EQ(Run(L"A"), L"no command");
    EXPECT_EQ(Take(), L"\n没有打开的图形，不能执行命令“A”。\n");
}

TEST_F(Commands, DocumentIsNotClosedUnderACommand)
{
    Add(L"INDOC", &CloseItself);
    Add(L"INAPP", &CloseItself, ACRX_CMD_SESSION);
    EXPECT_EQ(Run(L"INDOC"), L"refused ");
    EXPECT_TRUE(arxhost::IsDocument(document));
    EXPECT_EQ(Run(L"INAPP"), L"closed ");
    EXPECT_FALSE(arxhost::IsDocument(document));
}

TEST_F(Commands, ContextCanBeLeftForACall)
{
    Add(L"LEAVE", &LeaveContext);
    EXPECT_EQ(Run(L"LEAVE"), L"application document ");
}

TEST_F(Commands, TakeTheirAnswersFromTheLine)
{
    Add(L"READANSWERS", &ReadAnswers);
    EXPECT_EQ(Run(L"READANSWERS box 21 1.5 all the rest "), L"box|42|15|all the rest");
    EXPECT_EQ(Run(L"READANSWERS \"two words\" 1 1 \"a b\""), L"two words|2|10|a b");
    EXPECT_EQ(Run(L"READANSWERS box 2x 1.5y rest"), L"box|?|?|rest");
    EXPECT_EQ(Run(L"READANSWERS box"), L"box|?|?|?");
}

TEST_F(Commands, RefuseNumbersThatTheirTypeCannotHold)
{
    Add(L"READANSWERS", &ReadAnswers);
    EXPECT_EQ(Run(L"READANSWERS box 99999999999 1e999 rest"), L"box|?|?|rest");
    EXPECT_EQ(Run(L"READANSWERS box -99999999999 inf rest"), L"box|?|?|rest");
    EXPECT_EQ(Run(L"READANSWERS box 1 nan rest"), L"box|2|?|rest");
}

class Answering : public arxhost::IHostUi
{
public:
    bool GetString(const wchar_t* prompt, bool wholeLine, std::wstring& answer) override
    {
        prompts += prompt;
        prompts += wholeLine ? L"(line)" : L"(word)";
        answer = L"7";
        return true;
    }
    void InputPending() override { ++pending; }

    std::wstring prompts;
    int pending = 0;
};

TEST_F(Commands, AskTheUserWhenTheLineEnds)
{
    Answering ui;
    arxhost::SetHostUi(&ui);
    Add(L"READANSWERS", &ReadAnswers);
    EXPECT_EQ(Run(L"READANSWERS box 3"), L"box|6|70|7");
    EXPECT_EQ(ui.prompts, L"Size: (word)Rest: (line)");
    arxhost::SetHostUi(nullptr);
}

TEST_F(Commands, CanBeCalledByCommands)
{
    Add(L"READANSWERS", &ReadAnswers);
    Add(L"CALL", &CallAnother);
    EXPECT_EQ(Run(L"CALL"), L"a b|8|25|end called");
    EXPECT_EQ(acedCommand(RTSTR, L"NONE", RTNONE), RTERROR);
    EXPECT_EQ(acedCommand(RTSHORT, 5, RTNONE), RTERROR);
    EXPECT_EQ(acedCommand(RTNONE), RTERROR);
}

TEST_F(Commands, VetoedLockCancels)
{
    class Refusing : public AcApDocManagerReactor
    {
    public:
        void documentLockModeWillChange(AcApDocument*, AcAp::DocLockMode, AcAp::DocLockMode, AcAp::DocLockMode,
                                        const ACHAR*) override
        {
            veto();
        }
    };
    Refusing refusing;
    Events events;
    Add(L"A", &First);
    acDocManager->addReactor(&refusing);
    acedEditor->addReactor(&events);
    EXPECT_EQ(Run(L"A"), L"no command");
    EXPECT_EQ(events.text, L"start:A cancelled:A ");
    EXPECT_EQ(theTrace, L"");
    EXPECT_TRUE(document->isQuiescent());
    acDocManager->removeReactor(&refusing);
    EXPECT_EQ(Run(L"A"), L"first ");
    EXPECT_EQ(events.text, L"start:A cancelled:A start:A end:A ");
    acedEditor->removeReactor(&events);
}

TEST_F(Commands, ThrowingOneLeavesTheHostInOrder)
{
    Add(L"THROW", &Throw);
    EXPECT_THROW(arxhost::ExecuteCommand(L"THROW"), std::runtime_error);
    EXPECT_FALSE(arxhost::IsCommandActive());
    EXPECT_TRUE(document->isQuiescent());
    EXPECT_EQ(document->myLockMode(), AcAp::kNone);
}

TEST_F(Commands, PickfirstSurvivesThoseThatUseIt)
{
    const AcDbObjectId id = AddToModelSpace(*document->database(), new BoxEntity);
    Events events;
    Add(L"USES", &First, ACRX_CMD_USEPICKSET);
    Add(L"BESIDE", &First, ACRX_CMD_TRANSPARENT);
    Add(L"PLAIN", &First);
    arxhost::SetPickfirst(document, {id});
    acedEditor->addReactor(&events);
    Run(L"USES");
    Run(L"BESIDE");
    EXPECT_EQ(arxhost::GetPickfirst(document).size(), 1u);
    Run(L"PLAIN");
    EXPECT_TRUE(arxhost::GetPickfirst(document).empty());
    EXPECT_EQ(events.text, L"start:USES end:USES start:BESIDE end:BESIDE pickfirst start:PLAIN end:PLAIN ");
    acedEditor->removeReactor(&events);
}

TEST_F(Commands, SentTextRunsLater)
{
    Answering ui;
    arxhost::SetHostUi(&ui);
    Add(L"A", &First);
    Add(L"B", &Second);
    EXPECT_EQ(acDocManager->sendStringToExecute(document, L"A\nB\n\n"), Acad::eOk);
    EXPECT_EQ(ui.pending, 1);
    EXPECT_EQ(theTrace, L"");
    EXPECT_GT(acDocManager->inputPending(document), 0);
    EXPECT_EQ(arxhost::RunPendingInput(), 2);
    EXPECT_EQ(theTrace, L"first second ");
    EXPECT_EQ(acDocManager->inputPending(document), 0);
    EXPECT_EQ(acDocManager->sendStringToExecute(nullptr, L"A\n"), Acad::eInvalidInput);
    EXPECT_EQ(acDocManager->sendStringToExecute(document, nullptr), Acad::eInvalidInput);
    arxhost::SetHostUi(nullptr);
}

TEST_F(Commands, SentTextWaitsForItsEnd)
{
    Add(L"A", &First);
    acDocManager->sendStringToExecute(document, L"A", true, false, false);
    EXPECT_EQ(Take(), L"");
    EXPECT_EQ(arxhost::RunPendingInput(), 0);
    acDocManager->sendStringToExecute(document, L" ");
    EXPECT_EQ(arxhost::RunPendingInput(), 1);
    EXPECT_EQ(theTrace, L"first ");
}

TEST_F(Commands, SentTextActivatesItsDocument)
{
    AcApDocument* other = arxhost::NewDocument();
    acDocManager->sendStringToExecute(document, L"A", false);
    EXPECT_EQ(acDocManager->mdiActiveDocument(), other);
    acDocManager->sendStringToExecute(document, L"A", true);
    EXPECT_EQ(acDocManager->mdiActiveDocument(), document);
}

class StatusBar : public arxhost::IHostUi
{
public:
    bool SetProgressMeter(const wchar_t* label, int minimum, int maximum) override
    {
        text = label + std::to_wstring(minimum) + L"-" + std::to_wstring(maximum);
        return true;
    }
    bool SetProgressPosition(int position) override
    {
        text += L":" + std::to_wstring(position);
        return true;
    }
    bool RestoreStatusBar() override
    {
        text.clear();
        return true;
    }

    std::wstring text;
};

TEST_F(Commands, ProgressReachesTheStatusBar)
{
    EXPECT_EQ(acedSetStatusBarProgressMeter(L"Load", 0, 10), RTERROR);
    StatusBar ui;
    arxhost::SetHostUi(&ui);
    EXPECT_EQ(acedSetStatusBarProgressMeter(L"Load", 0, 10), RTNORM);
    EXPECT_EQ(acedSetStatusBarProgressMeter(L"Crossed", 5, 2), RTERROR);
    EXPECT_EQ(acedSetStatusBarProgressMeterPos(4), RTNORM);
    EXPECT_EQ(ui.text, L"Load0-10:4");
    EXPECT_EQ(acedRestoreStatusBar(), RTNORM);
    EXPECT_EQ(ui.text, L"");
    arxhost::SetHostUi(nullptr);
}

} // namespace
