// The gallery's module in the host, and its window as a user sees it.
#pragma once

#include "FileAside.h"
#include "HostFixture.h"

#include "gallery/GalleryIds.h"

#include <afxcmn.h>

#include <memory>
#include <string>
#include <vector>

std::wstring TextOfWindow(HWND window);
std::wstring ClassOfWindow(HWND window);
CRect RectOfWindow(HWND window); // screen coordinates
std::vector<HWND> VisibleChildren(HWND parent);

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
    std::vector<std::wstring> GroupTitles() const;
    std::wstring SelectedTitle() const;
    void SelectPage(HTREEITEM item);
    void Search(const wchar_t* text);

    std::wstring Code() const { return TextOfWindow(Control(IDC_GALLERY_CODE)); }

    std::wstring printed; // on the command line

private:
    class Sink;
    CTreeCtrl& Tree() const;

    const FileAside m_places; // of windows, where the gallery keeps its own
    std::unique_ptr<Sink> m_sink;
    bool m_loaded;
};

// For messages of failed tests.
std::string Utf8(const std::wstring& text);
