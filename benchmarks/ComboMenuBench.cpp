// The combo button's menu of many entries beside a bare owner-drawn menu of the same entries: from the press on the
// drop zone, or the bare call, until every entry that fits the screen is drawn and the menu waits for input. Both are
// closed by the same call at that moment.
#include <afxwin.h>

#include "Bench.h"

#include <ComboButton.h>

#include <memory>
#include <string>
#include <vector>

namespace bench
{

namespace
{

constexpr int kEntries = 100;
constexpr int kRuns = 9;
constexpr int kIconSize = 16;
constexpr UINT kFirstId = 3000;
constexpr double kMilliseconds = 1e3;
constexpr double kLimit = 1.5; // times the bare menu
const CRect kPlace(10, 10, 130, 40);

std::wstring TextOf(int entry)
{
    return L"命令 " + std::to_wstring(entry);
}

class BenchItem : public CComboButtonItem
{
public:
    BenchItem(const std::wstring& name, HICON icon) : m_name(name.c_str()), m_icon(icon) {}

    bool Enabled() override { return true; }
    HICON GetIcon() override { return m_icon; }
    CString GetName() override { return m_name; }
    void Action() override {}

private:
    CString m_name;
    HICON m_icon;
};

// Ends the menu as soon as it waits for input: nothing is left to be drawn then.
void EndAtIdle(UINT message)
{
    if (message == WM_ENTERIDLE)
        ::EndMenu();
}

class MeasuredButton : public CComboButton
{
protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        EndAtIdle(message);
        return CComboButton::WindowProc(message, wParam, lParam);
    }
};

// An owner of a menu without the framework: it draws icon and text of each entry, as everybody would.
class BareOwner
{
public:
    BareOwner(HWND parent, HICON icon) : m_icon(icon)
    {
        WNDCLASSW info = {};
        info.lpfnWndProc = OnMessage;
        info.hInstance = ::GetModuleHandleW(NULL);
        info.lpszClassName = L"BenchMenuOwner";
        ::RegisterClassW(&info);
        m_window = ::CreateWindowW(info.lpszClassName, L"", WS_CHILD | WS_VISIBLE, kPlace.left, kPlace.bottom,
                                   kPlace.Width(), kPlace.Height(), parent, NULL, info.hInstance, NULL);
        ::SetWindowLongPtrW(m_window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
        for (int entry = 0; entry < kEntries; ++entry)
            m_texts.push_back(TextOf(entry));
    }

    ~BareOwner() { ::DestroyWindow(m_window); }

    void OpenMenu()
    {
        const HMENU menu = ::CreatePopupMenu();
        for (UINT entry = 0; entry < m_texts.size(); ++entry)
            ::AppendMenuW(menu, MF_OWNERDRAW, kFirstId + entry, m_texts[entry].c_str());
        POINT corner = {0, kPlace.Height()};
        ::ClientToScreen(m_window, &corner);
        ::TrackPopupMenu(menu, TPM_LEFTALIGN | TPM_TOPALIGN, corner.x, corner.y, 0, m_window, NULL);
        ::DestroyMenu(menu);
    }

private:
    static LRESULT CALLBACK OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        BareOwner* const owner = reinterpret_cast<BareOwner*>(::GetWindowLongPtrW(window, GWLP_USERDATA));
        EndAtIdle(message);
        switch (message)
        {
        case WM_MEASUREITEM:
            owner->Measure(*reinterpret_cast<MEASUREITEMSTRUCT*>(lParam));
            return TRUE;
        case WM_DRAWITEM:
            owner->Draw(*reinterpret_cast<DRAWITEMSTRUCT*>(lParam));
            return TRUE;
        }
        return ::DefWindowProcW(window, message, wParam, lParam);
    }

    static SIZE IconSize(HICON icon)
    {
        ICONINFO info = {};
        BITMAP bitmap = {};
        ::GetIconInfo(icon, &info);
        ::GetObjectW(info.hbmColor, sizeof(bitmap), &bitmap);
        ::DeleteObject(info.hbmColor);
        ::DeleteObject(info.hbmMask);
        return {bitmap.bmWidth, bitmap.bmHeight};
    }

    void Measure(MEASUREITEMSTRUCT& item) const
    {
        const std::wstring& text = m_texts[item.itemID - kFirstId];
        const SIZE image = IconSize(m_icon);
        const HDC dc = ::GetDC(m_window);
        SIZE size = {};
        ::GetTextExtentPoint32W(dc, text.c_str(), static_cast<int>(text.size()), &size);
        ::ReleaseDC(m_window, dc);
        item.itemWidth = static_cast<UINT>(size.cx + image.cx + kMargins);
        item.itemHeight = static_cast<UINT>(image.cy + kMargins / 2);
    }

    void Draw(const DRAWITEMSTRUCT& item) const
    {
        const std::wstring& text = m_texts[item.itemID - kFirstId];
        RECT place = item.rcItem;
        ::FillRect(item.hDC, &place, ::GetSysColorBrush(COLOR_MENU));
        ::DrawIconEx(item.hDC, place.left, place.top, m_icon, kIconSize, kIconSize, 0, NULL, DI_NORMAL);
        place.left += kIconSize + kMargins;
        ::SetBkMode(item.hDC, TRANSPARENT);
        ::DrawTextW(item.hDC, text.c_str(), static_cast<int>(text.size()), &place, DT_SINGLELINE | DT_VCENTER);
    }

    static constexpr int kMargins = 12;

    HICON m_icon;
    HWND m_window;
    std::vector<std::wstring> m_texts;
};

} // namespace

void MeasureComboMenu(Report& report)
{
    CWnd& frame = *AfxGetMainWnd();
    CWnd parent; // a button is drawn by way of a parent of the framework
    parent.CreateEx(0, AfxRegisterWndClass(0), L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 200, 100), &frame, 1);
    const HICON icon =
        static_cast<HICON>(::LoadImageW(NULL, IDI_APPLICATION, IMAGE_ICON, kIconSize, kIconSize, LR_DEFAULTCOLOR));
    BareOwner bare(parent.m_hWnd, icon);

    MeasuredButton button;
    button.Create(L"", WS_CHILD | WS_VISIBLE, kPlace, &parent, 2);
    std::vector<std::unique_ptr<BenchItem>> items;
    for (int entry = 0; entry < kEntries; ++entry)
    {
        items.emplace_back(new BenchItem(TextOf(entry), icon));
        button.AddItem(items.back().get());
    }

    Work ours;
    ours.run = [&] { button.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(kPlace.Width() - 1, 1)); };
    Work plain;
    plain.run = [&] { bare.OpenMenu(); };
    const Pair pair = MedianSeconds(kRuns, ours, plain);
    Figure figure;
    figure.name = "open the menu of " + std::to_string(kEntries) + " entries";
    figure.unit = "ms";
    figure.value = pair.ours * kMilliseconds;
    figure.reference = pair.bare * kMilliseconds;
    figure.limit = kLimit;
    figure.beside = "bare owner-drawn menu that measures its icons";
    report.Add(figure);
    button.DestroyWindow();
    parent.DestroyWindow();
    ::DestroyIcon(icon);
}

} // namespace bench
