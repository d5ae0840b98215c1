// What holds for every page of the gallery: its texts, its layout, its keys.
#include "GalleryFixture.h"

#include <algorithm>
#include <map>
#include <set>
#include <sstream>

namespace
{

// Parts of headers that pages show, or nothing that could be shown.
const char* const kWithoutPage[] = {
    "ZNKTControls.h",                // includes all others
    "base/ZnktApi.h",                // the macro of exported names
    "app/DySubclassWnd.h",           // no control: watches messages of windows
    "edit/SuperEditTypes.h",         // of SuperEdit.h
    "button/ComboButtonStyle.h",     // of ComboButton.h
    "tree/CheckStates.h",            // of StateTreeCtrl.h
    "tip/XTButtonToolTipWnd.h",      // of ToolTipXTButton.h
    "dialog/CtrlPlace.h",            // of CtrlResize.h
    "dialog/PopupMenuInitHandler.h", // of AutoRichEditCtrl.h
    "dialog/EditMenuHandler.h",      // of AutoRichEditCtrl.h
};

const int kColumns = 78; // of the code's pane

bool HasStyle(HWND window, LONG_PTR style)
{
    return (::GetWindowLongPtrW(window, GWL_STYLE) & style) == style;
}

bool IsStatic(HWND window)
{
    return ClassOfWindow(window) == L"Static";
}

bool IsButton(HWND window)
{
    return ClassOfWindow(window) == L"Button";
}

// A static control that is drawn around others.
bool IsFrame(HWND window)
{
    return IsStatic(window) && (::GetWindowLongPtrW(window, GWL_STYLE) & SS_TYPEMASK) == SS_BLACKFRAME;
}

bool IsTabStop(HWND window)
{
    return HasStyle(window, WS_TABSTOP) && ::IsWindowEnabled(window);
}

// With the children of children, as the pages of the tab sheet; the editors in a list are the list's own.
std::vector<HWND> VisibleDescendants(HWND parent)
{
    std::vector<HWND> all;
    for (const HWND child : VisibleChildren(parent))
    {
        all.push_back(child);
        if (ClassOfWindow(child) == WC_LISTVIEWW)
            continue;
        const std::vector<HWND> below = VisibleDescendants(child);
        all.insert(all.end(), below.begin(), below.end());
    }
    return all;
}

// The letter behind the first single "&", 0 for none.
wchar_t MnemonicOf(HWND window)
{
    if (!IsButton(window) && (!IsStatic(window) || HasStyle(window, SS_NOPREFIX)))
        return L'\0';
    const std::wstring text = TextOfWindow(window);
    for (size_t place = text.find(L'&'); place != std::wstring::npos && place + 1 < text.size();
         place = text.find(L'&', place + 2))
    {
        if (text[place + 1] != L'&')
            return static_cast<wchar_t>(::towupper(text[place + 1]));
    }
    return L'\0';
}

class FontOf
{
public:
    explicit FontOf(HWND window) : m_window(window), m_dc(::GetDC(window))
    {
        m_former = ::SelectObject(m_dc, reinterpret_cast<HFONT>(::SendMessageW(window, WM_GETFONT, 0, 0)));
    }
    ~FontOf()
    {
        ::SelectObject(m_dc, m_former);
        ::ReleaseDC(m_window, m_dc);
    }
    FontOf(const FontOf&) = delete;
    FontOf& operator=(const FontOf&) = delete;

    // What a text takes in a width, lines broken at words or not.
    CSize Measure(const std::wstring& text, int width, UINT format) const
    {
        CRect needed(0, 0, width, 0);
        ::DrawTextW(m_dc, text.c_str(), -1, &needed, format | DT_CALCRECT);
        return needed.Size();
    }

private:
    HWND m_window;
    HDC m_dc;
    HGDIOBJ m_former;
};

CSize ClientSize(HWND window)
{
    CRect client;
    ::GetClientRect(window, &client);
    return client.Size();
}

// Whether the control has room for its text. Other classes scroll, or have none.
bool HoldsItsText(HWND window)
{
    const std::wstring text = TextOfWindow(window);
    const FontOf font(window);
    CSize room = ClientSize(window);
    if (IsStatic(window))
    {
        const UINT prefix = HasStyle(window, SS_NOPREFIX) ? DT_NOPREFIX : 0;
        const CSize needed = font.Measure(text, room.cx, DT_WORDBREAK | prefix);
        return needed.cx <= room.cx && needed.cy <= room.cy;
    }
    if (!IsButton(window))
        return true;
    const LONG_PTR type = ::GetWindowLongPtrW(window, GWL_STYLE) & BS_TYPEMASK;
    if (type == BS_AUTOCHECKBOX || type == BS_AUTORADIOBUTTON)
        room.cx -= ::GetSystemMetrics(SM_CXMENUCHECK) + ::GetSystemMetrics(SM_CXEDGE);
    else
        room -= CSize(2 * ::GetSystemMetrics(SM_CXEDGE), 2 * ::GetSystemMetrics(SM_CYEDGE));
    const CSize needed = font.Measure(text, room.cx, DT_SINGLELINE);
    return needed.cx <= room.cx && needed.cy <= room.cy;
}

// East Asian characters take two columns.
int ColumnsOf(const std::wstring& line)
{
    constexpr wchar_t firstWide = 0x2E80;
    int columns = 0;
    for (const wchar_t character : line)
        columns += character >= firstWide ? 2 : 1;
    return columns;
}

std::vector<std::wstring> LinesOf(const std::wstring& text)
{
    std::vector<std::wstring> lines;
    std::wistringstream stream(text);
    for (std::wstring line; std::getline(stream, line);)
    {
        if (!line.empty() && line.back() == L'\r')
            line.pop_back();
        lines.push_back(line);
    }
    return lines;
}

class EveryGalleryPage : public GalleryFixture
{
protected:
    void SetUp() override { Run(L"GALLERY"); }

    template<class CHECK>
    void ForEachPage(CHECK check)
    {
        ASSERT_LT(1u, PageItems().size());
        for (const HTREEITEM item : PageItems())
        {
            SelectPage(item);
            SCOPED_TRACE(Utf8(SelectedTitle()));
            ASSERT_NE(nullptr, Page());
            check();
        }
    }
};

} // namespace

TEST_F(EveryGalleryPage, IsShownWithItsTitleItsTextAndItsCode)
{
    std::set<std::wstring> codes;
    ForEachPage([&] {
        const std::wstring title = SelectedTitle();
        EXPECT_TRUE(::IsWindowVisible(Page()));
        EXPECT_EQ(title, TextOfWindow(Page()));
        EXPECT_EQ(title, TextOfWindow(Control(IDC_GALLERY_TITLE)));
        EXPECT_FALSE(TextOfWindow(Control(IDC_GALLERY_DESCRIPTION)).empty());
        EXPECT_EQ(0u, Code().find(L"#include <")) << Utf8(Code());
        EXPECT_TRUE(codes.insert(Code()).second) << "another page has the same code";
    });
}

TEST_F(EveryGalleryPage, HasAControlThatTakesKeys)
{
    ForEachPage([this] {
        const std::vector<HWND> controls = VisibleChildren(Page());
        EXPECT_TRUE(std::any_of(controls.begin(), controls.end(), &IsTabStop));
    });
}

TEST_F(EveryGalleryPage, HasMnemonicsOfItsOwn)
{
    ForEachPage([this] {
        std::map<wchar_t, std::wstring> taken;
        for (const HWND control : VisibleDescendants(Window()))
        {
            const wchar_t letter = MnemonicOf(control);
            if (letter == L'\0')
                continue;
            EXPECT_TRUE(taken.insert({letter, TextOfWindow(control)}).second)
                << Utf8(TextOfWindow(control)) << " and " << Utf8(taken[letter]);
        }
    });
}

TEST_F(EveryGalleryPage, HoldsItsControls)
{
    ForEachPage([this] {
        const CRect page = RectOfWindow(Page());
        for (const HWND control : VisibleChildren(Page()))
        {
            CRect inside;
            inside.IntersectRect(&page, RectOfWindow(control));
            EXPECT_EQ(RectOfWindow(control), inside) << Utf8(TextOfWindow(control));
        }
    });
}

TEST_F(EveryGalleryPage, HasNoControlOverAnother)
{
    ForEachPage([this] {
        const std::vector<HWND> controls = VisibleChildren(Page());
        for (size_t first = 0; first < controls.size(); ++first)
        {
            for (size_t second = first + 1; second < controls.size(); ++second)
            {
                if (IsFrame(controls[first]) || IsFrame(controls[second]))
                    continue;
                CRect common;
                common.IntersectRect(RectOfWindow(controls[first]), RectOfWindow(controls[second]));
                EXPECT_TRUE(common.IsRectEmpty())
                    << Utf8(TextOfWindow(controls[first])) << " and " << Utf8(TextOfWindow(controls[second]));
            }
        }
    });
}

TEST_F(EveryGalleryPage, HasRoomForItsTexts)
{
    ForEachPage([this] {
        for (const HWND control : VisibleDescendants(Window()))
            EXPECT_TRUE(HoldsItsText(control)) << Utf8(TextOfWindow(control));
    });
}

TEST_F(EveryGalleryPage, IsGoneThroughInReadingOrder)
{
    ForEachPage([this] {
        CRect last;
        for (const HWND control : VisibleChildren(Page()))
        {
            if (!IsTabStop(control))
                continue;
            const CRect place = RectOfWindow(control);
            EXPECT_TRUE(last.IsRectNull() || place.top >= last.bottom || place.left >= last.right)
                << Utf8(TextOfWindow(control));
            last = place;
        }
    });
}

TEST_F(EveryGalleryPage, HasCodeThatFitsThePane)
{
    const HWND pane = Control(IDC_GALLERY_CODE);
    CRect room;
    ::SendMessageW(pane, EM_GETRECT, 0, reinterpret_cast<LPARAM>(&room));
    EXPECT_LE(FontOf(pane).Measure(std::wstring(kColumns, L'0'), 0, DT_SINGLELINE).cx, room.Width());
    ForEachPage([this] {
        for (const std::wstring& line : LinesOf(Code()))
            EXPECT_GE(kColumns, ColumnsOf(line)) << Utf8(line);
    });
}

TEST_F(EveryGalleryPage, TogetherTheyShowEveryExportedHeader)
{
    std::wstring shown;
    ForEachPage([&] { shown += Code(); });
    std::istringstream headers(EXPORTED_HEADERS);
    int count = 0;
    for (std::string header; headers >> header; ++count)
    {
        if (std::find(std::begin(kWithoutPage), std::end(kWithoutPage), header) != std::end(kWithoutPage))
            continue;
        const std::string name = header.substr(header.find('/') + 1);
        const std::wstring include = L"#include <" + std::wstring(name.begin(), name.end()) + L">";
        EXPECT_NE(std::wstring::npos, shown.find(include)) << header << " has no page";
    }
    EXPECT_LT(static_cast<int>(std::size(kWithoutPage)), count);
}
