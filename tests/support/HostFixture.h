// The host in-process for tests of palettes and modules: a shown MDI frame with its bars, the host services connected
// to it, and a profile of its own, so that layouts of one test never meet another.
//
//     class MyTest : public HostFixture {};
//     TEST_F(MyTest, ...) { set.Create(..., &Frame()); Frame().ShowControlBar(&set, TRUE, FALSE); ... }
#pragma once

#include <afxwin.h>

#include <gtest/gtest.h>

#include <string>

class CMDIFrameWnd;

// Sends the application's profile to a new file while it lives.
class TemporaryProfile
{
public:
    TemporaryProfile();
    ~TemporaryProfile();
    TemporaryProfile(const TemporaryProfile&) = delete;
    TemporaryProfile& operator=(const TemporaryProfile&) = delete;

private:
    std::wstring m_path;
    LPCTSTR m_formerProfile;
    LPCTSTR m_formerKey;
};

class HostFixture : public testing::Test
{
protected:
    HostFixture();
    ~HostFixture() override;

    // The main frame, 1000 by 700 pixels.
    CMDIFrameWnd& Frame() { return *m_frame; }
    // Destroys the frame ahead of time.
    void DestroyFrame();
    // The frame's client area in screen coordinates.
    CRect ClientOnScreen() const;

    // Brings the frame to the front for tests with real input; false when the desktop refuses.
    bool BringToFront();
    // Real mouse by screen coordinates: moves there; presses and releases the left button.
    static void MoveMouse(CPoint point);
    static void MouseButton(bool down);
    // Dispatches what is in the message queue.
    static void Pump();

private:
    TemporaryProfile m_profile;
    CMDIFrameWnd* m_frame; // deletes itself with its window
    CWnd* m_formerMainWindow;
};

// Screen rectangle of a window.
CRect ScreenRectOf(const CWnd& window);
