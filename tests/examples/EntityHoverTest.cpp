// The hover module in the host: what it posts to the window, when, and how it ends.
#include "HostFixture.h"
#include "Wait.h"

#include "arx/ed/HostServices.h"

#include <accmd.h>
#include <acdocman.h>
#include <dbapserv.h>
#include <dbents.h>
#include <dbsymtb.h>
#include <rxregsvc.h>

#include <atomic>
#include <functional>

namespace
{

constexpr int kTextId = 112;
constexpr int kCloseId = 114;
constexpr UINT kTextsMessage = 1226;
constexpr UINT kLongerThanARest = 300; // ms
const wchar_t kModule[] = L"entity_hover.arx";

std::atomic<int> g_posts;
bool g_rested;
std::function<void()> g_inCommand;

LRESULT CALLBACK CountPosts(int code, WPARAM wParam, LPARAM lParam)
{
    if (code == HC_ACTION && wParam == PM_REMOVE && reinterpret_cast<MSG*>(lParam)->message == kTextsMessage)
        ++g_posts;
    return ::CallNextHookEx(NULL, code, wParam, lParam);
}

void CALLBACK HaveRested(HWND, UINT, UINT_PTR timer, DWORD)
{
    ::KillTimer(NULL, timer);
    g_rested = true;
}

// Timers come in the order in which they are due: the module's, set earlier and due earlier, has been there.
void LetTheMouseRest()
{
    g_rested = false;
    ::SetTimer(NULL, 0, kLongerThanARest, &HaveRested);
    ASSERT_TRUE(WaitFor([] { return g_rested; }));
}

void RunInCommand()
{
    g_inCommand();
}

BOOL CALLBACK TakeWindow(HWND window, LPARAM found)
{
    DWORD process = 0;
    ::GetWindowThreadProcessId(window, &process);
    if (process == ::GetCurrentProcessId() && ::GetDlgItem(window, kTextId) && ::GetDlgItem(window, kCloseId))
        *reinterpret_cast<HWND*>(found) = window;
    return TRUE;
}

class Sink : public arxhost::IPrintSink
{
public:
    void Print(const wchar_t* piece) override { text += piece; }
    std::wstring text;
};

class EntityHover : public HostFixture
{
protected:
    EntityHover()
    {
        arxhost::SetPrintSink(&m_sink);
        m_document = arxhost::NewDocument();
        m_line = Append(new AcDbLine(AcGePoint3d(0, 0, 0), AcGePoint3d(3, 4, 0)));
        m_circle = Append(new AcDbCircle(AcGePoint3d(9, 9, 0), AcGeVector3d::kZAxis, 25));
        EXPECT_TRUE(acrxLoadModule(L"ZNKTControls.arx", false, false));
        Load();
    }
    ~EntityHover() override
    {
        Unload();
        acrxUnloadModule(L"ZNKTControls.arx", false);
    }

    void Load()
    {
        m_loaded = acrxLoadModule(kModule, false, false);
        EXPECT_TRUE(m_loaded);
        ASSERT_TRUE(WaitFor([] { return Window() != NULL; }));
        g_posts = 0;
        m_hook = ::SetWindowsHookExW(WH_GETMESSAGE, &CountPosts, NULL, ::GetWindowThreadProcessId(Window(), nullptr));
    }
    void Unload()
    {
        ::UnhookWindowsHookEx(m_hook);
        if (m_loaded)
            acrxUnloadModule(kModule, false);
        m_loaded = false;
    }

    static AcDbObjectId Append(AcDbEntity* entity)
    {
        AcDbBlockTableRecord* space = nullptr;
        AcDbDatabase* const database = acdbHostApplicationServices()->workingDatabase();
        EXPECT_EQ(Acad::eOk, acdbOpenObject(space, database->currentSpaceId(), AcDb::kForWrite));
        space->appendAcDbEntity(entity);
        const AcDbObjectId id = entity->objectId();
        entity->close();
        space->close();
        return id;
    }

    // As the view does at every move of the mouse.
    void MoveOver(AcDbObjectId entity) { arxhost::TellCursor(m_document, AcGePoint2d(1, 1), {entity}); }
    void MoveOverNothing() { arxhost::TellCursor(m_document, AcGePoint2d(1, 1)); }

    static HWND Window()
    {
        HWND found = NULL;
        ::EnumWindows(&TakeWindow, reinterpret_cast<LPARAM>(&found));
        return found;
    }
    static bool IsShown() { return ::IsWindowVisible(Window()) != FALSE; }
    static std::wstring Text()
    {
        wchar_t text[400] = L"";
        ::SendMessageW(::GetDlgItem(Window(), kTextId), WM_GETTEXT, 400, reinterpret_cast<LPARAM>(text));
        return text;
    }
    static bool Shows(const wchar_t* text)
    {
        return WaitFor([text] { return IsShown() && Text().find(text) == 0; });
    }

    Sink m_sink;
    AcApDocument* m_document = nullptr;
    AcDbObjectId m_line;
    AcDbObjectId m_circle;
    HHOOK m_hook = NULL;
    bool m_loaded = false;
};

} // namespace

TEST_F(EntityHover, PropertiesOfTheEntityUnderTheRestingMouseComeUp)
{
    MoveOver(m_line);
    ASSERT_TRUE(Shows(L"类型: 直线"));
    EXPECT_NE(std::wstring::npos, Text().find(L"长度: 5\r"));
    EXPECT_NE(std::wstring::npos, Text().find(L"图层: 0\r"));
}

TEST_F(EntityHover, SameEntityIsPostedOnce)
{
    MoveOver(m_line);
    ASSERT_TRUE(Shows(L"类型: 直线"));
    for (int i = 0; i < 5; ++i)
        MoveOver(m_line);
    LetTheMouseRest();
    MoveOver(m_circle);
    ASSERT_TRUE(Shows(L"类型: 圆"));
    EXPECT_EQ(2, g_posts) << "the line and the circle";
}

TEST_F(EntityHover, NothingIsPostedForWhatTheMouseOnlyPassedOver)
{
    for (int i = 0; i < 5; ++i)
        MoveOver(m_line);
    MoveOver(m_circle);
    ASSERT_TRUE(Shows(L"类型: 圆"));
    EXPECT_EQ(1, g_posts);
}

TEST_F(EntityHover, OverNothingTheWindowKeepsItsTexts)
{
    MoveOver(m_line);
    ASSERT_TRUE(Shows(L"类型: 直线"));
    MoveOverNothing();
    LetTheMouseRest();
    EXPECT_EQ(0u, Text().find(L"类型: 直线"));
    MoveOver(m_line);
    MoveOverNothing(); // before it rests
    LetTheMouseRest();
    MoveOver(m_circle);
    ASSERT_TRUE(Shows(L"类型: 圆"));
    EXPECT_EQ(2, g_posts);
}

TEST_F(EntityHover, ChangedEntityIsNews)
{
    MoveOver(m_circle);
    ASSERT_TRUE(Shows(L"类型: 圆"));
    AcDbCircle* circle = nullptr;
    ASSERT_EQ(Acad::eOk, acdbOpenObject(circle, m_circle, AcDb::kForWrite));
    circle->setRadius(77);
    circle->close();
    MoveOver(m_circle);
    EXPECT_TRUE(WaitFor([] { return Text().find(L"半径: 77") != std::wstring::npos; }));
}

TEST_F(EntityHover, ErasedEntityIsPassedOver)
{
    MoveOver(m_line);
    EXPECT_EQ(1, arxhost::Erase({m_line}));
    LetTheMouseRest();
    MoveOver(m_circle);
    ASSERT_TRUE(Shows(L"类型: 圆"));
    EXPECT_EQ(1, g_posts);
}

TEST_F(EntityHover, NothingComesUpWhileACommandRuns)
{
    g_inCommand = [this] {
        MoveOver(m_line);
        LetTheMouseRest();
    };
    acedRegCmds->addCommand(L"TEST", L"WAITING", L"WAITING", ACRX_CMD_MODAL, &RunInCommand);
    ASSERT_TRUE(arxhost::ExecuteLine(L"WAITING"));
    MoveOver(m_circle);
    ASSERT_TRUE(Shows(L"类型: 圆"));
    EXPECT_EQ(1, g_posts);
    acedRegCmds->removeGroup(L"TEST");
}

TEST_F(EntityHover, CommandTurnsItOffAndOnAndSaysSo)
{
    MoveOver(m_line);
    ASSERT_TRUE(Shows(L"类型: 直线"));
    ASSERT_TRUE(arxhost::ExecuteLine(L"ENTITYHOVER"));
    EXPECT_EQ(NULL, Window());
    EXPECT_NE(std::wstring::npos, m_sink.text.find(L"悬停显示实体特性：关"));
    EXPECT_FALSE(arxhost::IsPickForced(m_document));
    MoveOver(m_line);
    LetTheMouseRest();
    EXPECT_EQ(NULL, Window());
    ASSERT_TRUE(arxhost::ExecuteLine(L"实体悬停"));
    EXPECT_NE(std::wstring::npos, m_sink.text.find(L"悬停显示实体特性：开"));
    ASSERT_TRUE(WaitFor([] { return Window() != NULL; }));
    MoveOver(m_line);
    EXPECT_TRUE(Shows(L"类型: 直线")) << "the same texts as before";
}

TEST_F(EntityHover, UnloadingTakesTheWindowAwayAndLoadingAgainWorks)
{
    MoveOver(m_line);
    ASSERT_TRUE(Shows(L"类型: 直线"));
    Unload();
    EXPECT_EQ(NULL, Window());
    EXPECT_FALSE(arxhost::IsPickForced(m_document));
    EXPECT_FALSE(arxhost::ExecuteLine(L"ENTITYHOVER"));
    MoveOver(m_line); // nobody listens
    Load();
    MoveOver(m_circle);
    EXPECT_TRUE(Shows(L"类型: 圆"));
}

TEST_F(EntityHover, UnloadingBeforeTheMouseRestedIsHarmless)
{
    MoveOver(m_line);
    Unload();
    LetTheMouseRest();
    EXPECT_EQ(NULL, Window());
}

TEST_F(EntityHover, ClosingTheLastDrawingHidesTheWindow)
{
    MoveOver(m_line);
    ASSERT_TRUE(Shows(L"类型: 直线"));
    ASSERT_TRUE(arxhost::CloseDocument(m_document));
    EXPECT_TRUE(WaitFor([] { return !IsShown(); }));
}

TEST_F(EntityHover, ClosingTheDrawingBeforeTheMouseRestedIsHarmless)
{
    MoveOver(m_line);
    ASSERT_TRUE(arxhost::CloseDocument(m_document));
    LetTheMouseRest();
    EXPECT_FALSE(IsShown());
    EXPECT_EQ(0, g_posts);
}

TEST_F(EntityHover, ClosingAnotherDrawingLeavesTheWindow)
{
    AcApDocument* const other = arxhost::NewDocument();
    arxhost::SetCurrentDocument(m_document);
    MoveOver(m_line);
    ASSERT_TRUE(Shows(L"类型: 直线"));
    ASSERT_TRUE(arxhost::CloseDocument(other));
    MoveOver(m_circle);
    EXPECT_TRUE(Shows(L"类型: 圆"));
}

TEST_F(EntityHover, DrawingsOpenedLaterAreWatched)
{
    ASSERT_TRUE(arxhost::CloseDocument(m_document));
    m_document = arxhost::NewDocument();
    EXPECT_TRUE(arxhost::IsPickForced(m_document));
    MoveOver(Append(new AcDbPoint(AcGePoint3d(1, 2, 0))));
    EXPECT_TRUE(Shows(L"类型: 点"));
}
