// The host with the hover module under the real mouse.
// Before the other headers: it brings the system's in its own order.
#include "RealMouse.h"

#include "HostProcess.h"

#include <gtest/gtest.h>

#include <fstream>
#include <memory>

namespace
{

constexpr DWORD g_patience = 60000; // milliseconds
constexpr int g_history = 1;
constexpr int g_input = 3;
constexpr int g_text = 112;
const wchar_t g_richEdit[] = L"RichEdit20W";

// Three parallel lines: the view shows all of the drawing, so that the one in the middle runs through its centre.
std::wstring WriteDrawing()
{
    wchar_t folder[MAX_PATH];
    GetTempPathW(MAX_PATH, folder);
    const std::wstring path = std::wstring(folder) + L"entity_hover_test.dxf";
    std::ofstream file(std::string(path.begin(), path.end()));
    file << "0\nSECTION\n2\nENTITIES\n";
    for (const char* y : {"-40", "0", "40"})
        file << "0\nLINE\n8\n0\n10\n0\n20\n" << y << "\n11\n100\n21\n" << y << "\n";
    file << "0\nENDSEC\n0\nEOF\n";
    return path;
}

class EntityHoverInput : public testing::Test
{
protected:
    void SetUp() override
    {
        m_host.reset(new HostProcess(L"\"" + WriteDrawing() + L"\" /ld ZNKTControls.arx /ld entity_hover.arx /c HELP"));
        ASSERT_TRUE(WaitFor([&] { return HasStarted() || !m_host->IsRunning(); }, g_patience));
        ASSERT_TRUE(m_host->IsRunning());
        m_view = FindDrawingView(Frame());
        ASSERT_TRUE(m_view != NULL);
        CRect client;
        GetClientRect(m_view, &client);
        ClientToScreen(m_view, &client.TopLeft());
        ClientToScreen(m_view, &client.BottomRight());
        m_line = client.CenterPoint();
    }

    HWND History() const { return m_host->FindControl(L"Edit", g_history); }
    HWND Frame() const { return GetAncestor(History(), GA_ROOT); }

    // The list of commands comes after everything is loaded and laid out.
    bool HasStarted() const { return TextOf(History()).find(L"ENTITYHOVER") != std::wstring::npos; }

    HWND Window() const { return GetParent(m_host->FindControl(g_richEdit, g_text)); }
    bool IsShown() const { return m_host->FindControl(g_richEdit, g_text) != NULL; }
    bool RestOnLine() const
    {
        return MoveMouseUntil(m_line, [this] { return IsShown(); });
    }

    std::unique_ptr<HostProcess> m_host;
    HWND m_view = NULL;
    CPoint m_line; // on the screen
};

} // namespace

TEST_F(EntityHoverInput, PropertiesComeUpBesideTheMouseThatRestsOnALine)
{
    ASSERT_TRUE(RestOnLine());
    EXPECT_EQ(0u, TextOf(m_host->FindControl(g_richEdit, g_text)).find(L"类型: 直线"));
    EXPECT_NE(std::wstring::npos, TextOf(m_host->FindControl(g_richEdit, g_text)).find(L"起点: 0, 0"));
    CRect place;
    GetWindowRect(Window(), &place);
    EXPECT_NEAR(m_line.x, place.left, 10);
    EXPECT_NEAR(m_line.y, place.top, 10);
}

TEST_F(EntityHoverInput, OverNothingTheWindowHidesAndOverTheLineItComesUpAgain)
{
    const CPoint nothing = m_line - CPoint(0, 40);
    ASSERT_TRUE(RestOnLine());
    ASSERT_TRUE(MoveMouseUntil(nothing, [this] { return !IsShown(); }));
    EXPECT_TRUE(RestOnLine());
}

TEST_F(EntityHoverInput, WhatTheUserTypesGoesOnToTheCommandLine)
{
    SetForegroundWindow(Frame());
    ASSERT_TRUE(RestOnLine());
    ASSERT_TRUE(WaitFor([this] { return GetForegroundWindow() == Frame(); }));
    EXPECT_TRUE(IsShown());
    INPUT key = {};
    key.type = INPUT_KEYBOARD;
    key.ki.wVk = 'Z';
    SendInput(1, &key, sizeof(key));
    EXPECT_TRUE(WaitFor([this] { return TextOf(m_host->FindControl(L"Edit", g_input)) == L"z"; }));
    key.ki.dwFlags = KEYEVENTF_KEYUP;
    SendInput(1, &key, sizeof(key));
}

TEST_F(EntityHoverInput, ClosingTheLastDrawingAndTheHostUnderTheWindowIsHarmless)
{
    ASSERT_TRUE(RestOnLine());
    PostMessageW(GetParent(m_view), WM_CLOSE, 0, 0);
    EXPECT_TRUE(WaitFor([this] { return !IsWindow(m_view) && !IsShown(); }));
    EXPECT_TRUE(m_host->IsRunning());
    PostMessageW(Frame(), WM_CLOSE, 0, 0);
    EXPECT_EQ(0u, m_host->WaitForEnd(g_patience));
}

TEST_F(EntityHoverInput, TheHostEndsUnderTheWindow)
{
    ASSERT_TRUE(RestOnLine());
    PostMessageW(Frame(), WM_CLOSE, 0, 0);
    EXPECT_EQ(0u, m_host->WaitForEnd(g_patience));
}
