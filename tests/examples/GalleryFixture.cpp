#include "GalleryFixture.h"

#include "arx/ed/HostServices.h"

#include <rxregsvc.h>

#include <ZNKTPub.h>

namespace
{

const wchar_t kControls[] = L"ZNKTControls.arx";
const wchar_t kGallery[] = L"gallery.arx";
const wchar_t kTitle[] = L"控件库";

bool IsDialog(HWND window)
{
    return ::GetClassLongPtrW(window, GCW_ATOM) == reinterpret_cast<ULONG_PTR>(WC_DIALOG);
}

BOOL CALLBACK TakeGallery(HWND window, LPARAM found)
{
    if (IsDialog(window) && TextOfWindow(window) == kTitle)
        reinterpret_cast<std::vector<HWND>*>(found)->push_back(window);
    return TRUE;
}

} // namespace

class GalleryFixture::Sink : public arxhost::IPrintSink
{
public:
    explicit Sink(std::wstring& text) : m_text(text) { arxhost::SetPrintSink(this); }
    ~Sink() override { arxhost::SetPrintSink(nullptr); }

    void Print(const wchar_t* text) override { m_text += text; }

private:
    std::wstring& m_text;
};

GalleryFixture::GalleryFixture()
    : m_places(ZNKTPub::GetCurUserWayfarerPath() + L"\\WindowPos.ini"), m_sink(new Sink(printed)),
      m_loaded(acrxLoadModule(kControls, false, false) && acrxLoadModule(kGallery, false, false))
{
    EXPECT_TRUE(m_loaded);
    arxhost::NewDocument();
}

GalleryFixture::~GalleryFixture()
{
    UnloadGallery();
    acrxUnloadModule(kControls, false);
}

void GalleryFixture::Run(const wchar_t* line)
{
    EXPECT_TRUE(arxhost::ExecuteLine(line));
    Pump();
}

// As the button in the caption does.
void GalleryFixture::CloseGallery()
{
    ::SendMessageW(Window(), WM_CLOSE, 0, 0);
    Pump();
}

void GalleryFixture::UnloadGallery()
{
    if (m_loaded)
        acrxUnloadModule(kGallery, false);
    m_loaded = false;
}

std::vector<HWND> GalleryFixture::Windows() const
{
    std::vector<HWND> found;
    ::EnumThreadWindows(::GetCurrentThreadId(), &TakeGallery, reinterpret_cast<LPARAM>(&found));
    return found;
}

HWND GalleryFixture::Window() const
{
    const std::vector<HWND> windows = Windows();
    return windows.size() == 1 ? windows.front() : NULL;
}

HWND GalleryFixture::Page() const
{
    for (HWND child = ::GetWindow(Window(), GW_CHILD); child != NULL; child = ::GetWindow(child, GW_HWNDNEXT))
    {
        if (IsDialog(child))
            return child;
    }
    return NULL;
}

std::vector<HTREEITEM> GalleryFixture::PageItems() const
{
    std::vector<HTREEITEM> items;
    const CTreeCtrl& tree = Tree();
    for (HTREEITEM group = tree.GetRootItem(); group != NULL; group = tree.GetNextSiblingItem(group))
    {
        for (HTREEITEM item = tree.GetChildItem(group); item != NULL; item = tree.GetNextSiblingItem(item))
            items.push_back(item);
    }
    return items;
}

std::vector<std::wstring> GalleryFixture::PageTitles() const
{
    std::vector<std::wstring> titles;
    for (const HTREEITEM item : PageItems())
        titles.push_back(Tree().GetItemText(item).GetString());
    return titles;
}

std::vector<std::wstring> GalleryFixture::GroupTitles() const
{
    std::vector<std::wstring> titles;
    for (HTREEITEM group = Tree().GetRootItem(); group != NULL; group = Tree().GetNextSiblingItem(group))
        titles.push_back(Tree().GetItemText(group).GetString());
    return titles;
}

std::wstring GalleryFixture::SelectedTitle() const
{
    const HTREEITEM item = Tree().GetSelectedItem();
    return item != NULL ? Tree().GetItemText(item).GetString() : L"";
}

void GalleryFixture::SelectPage(HTREEITEM item)
{
    Tree().SelectItem(item);
    Pump();
}

void GalleryFixture::Search(const wchar_t* text)
{
    ::SetWindowTextW(Control(IDC_GALLERY_SEARCH), text);
    Pump();
}

CTreeCtrl& GalleryFixture::Tree() const
{
    return *static_cast<CTreeCtrl*>(CWnd::FromHandle(Control(IDC_GALLERY_TREE)));
}

std::wstring TextOfWindow(HWND window)
{
    std::wstring text(static_cast<size_t>(::GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<size_t>(::GetWindowTextW(window, &text[0], static_cast<int>(text.size()))));
    return text;
}

std::wstring ClassOfWindow(HWND window)
{
    wchar_t name[64] = L"";
    ::GetClassNameW(window, name, 64);
    return name;
}

CRect RectOfWindow(HWND window)
{
    CRect rect;
    ::GetWindowRect(window, &rect);
    return rect;
}

std::vector<HWND> VisibleChildren(HWND parent)
{
    std::vector<HWND> children;
    for (HWND child = ::GetWindow(parent, GW_CHILD); child != NULL; child = ::GetWindow(child, GW_HWNDNEXT))
    {
        if (::IsWindowVisible(child))
            children.push_back(child);
    }
    return children;
}

std::string Utf8(const std::wstring& text)
{
    const int length = static_cast<int>(text.size());
    std::string bytes(static_cast<size_t>(::WideCharToMultiByte(CP_UTF8, 0, text.c_str(), length, NULL, 0, NULL, NULL)),
                      '\0');
    ::WideCharToMultiByte(CP_UTF8, 0, text.c_str(), length, &bytes[0], static_cast<int>(bytes.size()), NULL, NULL);
    return bytes;
}
