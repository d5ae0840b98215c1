// The message viewer beside a bare list view that does the same work: filling, sorting, deleting.
#include <afxwin.h>

#include <afxcmn.h>

#include "BareMessageList.h"
#include "Bench.h"

#include <KTMsgWnd.h>

#include <stdexcept>
#include <string>

namespace bench
{

namespace
{

constexpr int kRows = 100000;
constexpr int kRuns = 3;
constexpr double kMilliseconds = 1e3;

// Control identifiers of the viewer.
constexpr int kList = 103;
constexpr int kDeleteSelected = 106;

struct Find
{
    int id;
    const wchar_t* className;
    HWND found;
};

BOOL CALLBACK TakeMatch(HWND window, LPARAM parameter)
{
    Find& find = *reinterpret_cast<Find*>(parameter);
    wchar_t name[64] = L"";
    ::GetClassNameW(window, name, 64);
    if (::GetDlgCtrlID(window) == find.id && _wcsicmp(name, find.className) == 0)
        find.found = window;
    return find.found == NULL;
}

BOOL CALLBACK SearchTopLevel(HWND window, LPARAM parameter)
{
    ::EnumChildWindows(window, &TakeMatch, parameter);
    return reinterpret_cast<Find*>(parameter)->found == NULL;
}

HWND FindViewerList()
{
    Find find = {kList, WC_LISTVIEWW, NULL};
    ::EnumThreadWindows(::GetCurrentThreadId(), &SearchTopLevel, reinterpret_cast<LPARAM>(&find));
    return find.found;
}

void FillStore(int count)
{
    KTMsgWnd::RemoveAllMsg();
    for (int index = 0; index < count; ++index)
    {
        // Multiplying by a number without a common divisor scatters the texts, so that sorting has work to do.
        const std::wstring text = L"第 " + std::to_wstring(index * 7919LL % kRows) + L" 处：端点没有相接";
        KTMsgWnd::AddMsg(static_cast<KTMsgWnd::EMsgType>(index % 3), index % 2 ? L"端点检查" : L"图层检查",
                         text.c_str(), false, nullptr, nullptr);
    }
}

void ClickHeader(HWND list, int column)
{
    const HWND header = ListView_GetHeader(list);
    NMHEADERW notice = {};
    notice.hdr.hwndFrom = header;
    notice.hdr.idFrom = static_cast<UINT_PTR>(::GetDlgCtrlID(header));
    notice.hdr.code = HDN_ITEMCLICKW;
    notice.iItem = column;
    ::SendMessageW(list, WM_NOTIFY, notice.hdr.idFrom, reinterpret_cast<LPARAM>(&notice));
}

void SelectFirst(HWND list, int count)
{
    ListView_SetItemState(list, -1, 0, LVIS_SELECTED);
    for (int row = 0; row < count; ++row)
        ListView_SetItemState(list, row, LVIS_SELECTED, LVIS_SELECTED);
}

void MeasureRefresh(Report& report, BareMessageList& bare)
{
    const Work ours = {nullptr, [] { KTMsgWnd::UpdateMsgWnd(); }, nullptr};
    const Work theirs = {nullptr, [&] { bare.Fill(); }, nullptr};
    const Pair pair = MedianSeconds(kRuns, ours, theirs);
    report.Add({"viewer: full refresh of 100,000 messages", "ms", pair.ours * kMilliseconds, pair.bare * kMilliseconds,
                1.3, "bare list view, same rows, redraw off"});
}

void MeasureSort(Report& report, BareMessageList& bare, HWND list, int column, const char* name)
{
    const Work ours = {[] { KTMsgWnd::UpdateMsgWnd(); }, [&] { ClickHeader(list, column); }, nullptr};
    const Work theirs = {[&] { bare.Fill(); }, [&] { bare.Sort(column); }, nullptr};
    const Pair pair = MedianSeconds(kRuns, ours, theirs);
    report.Add(
        {name, "ms", pair.ours * kMilliseconds, pair.bare * kMilliseconds, 1.3, "bare list view, keys fetched once"});
}

double SecondsForDeleting(HWND list, int count)
{
    const auto prepare = [=] {
        FillStore(2 * count);
        KTMsgWnd::UpdateMsgWnd();
        SelectFirst(list, count);
    };
    const auto press = [=] {
        ::SendMessageW(::GetParent(list), WM_COMMAND, MAKEWPARAM(kDeleteSelected, BN_CLICKED), 0);
    };
    return MedianSeconds(1, prepare, press, nullptr);
}

void MeasureDeleting(Report& report, HWND list)
{
    constexpr int many = 10000;
    constexpr int few = many / 4;
    const double full = SecondsForDeleting(list, many);
    const double part = SecondsForDeleting(list, few);
    // Four times the rows: linear work has a ratio of four, quadratic work one of sixteen.
    report.Add({"viewer: deleting 10,000 selected of 20,000 rows", "ms", full * kMilliseconds, part * kMilliseconds, 6,
                "deleting 2,500 of 5,000 rows"});
}

} // namespace

void MeasureMessageViewer(Report& report)
{
    FillStore(kRows);
    if (!KTMsgWnd::ShowMsgWnd(true))
        throw std::runtime_error("the message palette did not open");
    const HWND list = FindViewerList();
    if (list == NULL)
        throw std::runtime_error("the message palette has no list");
    BareMessageList bare(list, kRows);
    MeasureRefresh(report, bare);
    MeasureSort(report, bare, list, 0, "viewer: sorting 100,000 rows by type");
    MeasureSort(report, bare, list, 1, "viewer: sorting 100,000 rows by time");
    MeasureSort(report, bare, list, 2, "viewer: sorting 100,000 rows by source");
    MeasureSort(report, bare, list, 3, "viewer: sorting 100,000 rows by description");
    MeasureDeleting(report, list);
    KTMsgWnd::RemoveAllMsg();
    KTMsgWnd::ShowMsgWnd(false);
}

} // namespace bench
