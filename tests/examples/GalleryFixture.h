// The gallery's module in the host, and its window as a user sees it.
#pragma once

#include "HostFixture.h"

#include <afxcmn.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

class GalleryFixture : public HostFixture
{
protected:
    GalleryFixture();
    ~GalleryFixture() override;

    static void Run(const wchar_t* line);
    void CloseGallery();
    void UnloadGallery();

    // All open windows of the gallery; the only one, null for none.
    std::vector<HWND> Windows() const;
    HWND Window() const;
    HWND Control(int id) const { return ::GetDlgItem(Window(), id); }
    // Of the page that is shown.
    HWND Page() const;
    HWND PageControl(int id) const { return ::GetDlgItem(Page(), id); }

    // The tree, pages without groups, in the order shown.
    std::vector<HTREEITEM> PageItems() const;
    std::vector<std::wstring> PageTitles() const;
    std::wstring SelectedTitle() const;
    void SelectPage(HTREEITEM item);
    void Search(const wchar_t* text);

    // Waits while messages are dispatched the framework's way, keys to dialogs included.
    static bool WaitThroughFramework(const std::function<bool()>& condition);

    std::wstring printed; // on the command line

private:
    class Sink;
    CTreeCtrl& Tree() const;

    std::unique_ptr<Sink> m_sink;
    bool m_loaded;
};

std::wstring TextOfWindow(HWND window);

// For messages of failed tests.
std::string Utf8(const std::wstring& text);
