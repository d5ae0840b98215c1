#include "CheckReport.h"

#include "StopPoll.h"

#include <KTMsgWnd.h>

#include <algorithm>
#include <cwchar>

namespace drawing_check
{

namespace group
{
const wchar_t* const kZeroLength = L"零长度线";
const wchar_t* const kDuplicates = L"重复对象";
const wchar_t* const kGaps = L"端点未相接";
const wchar_t* const kNearlyClosed = L"多段线未闭合";
const wchar_t* const kFlatTexts = L"文字高度为零";
const wchar_t* const kOutside = L"超出图幅";
const wchar_t* const kMissing = L"缺少引用";
const wchar_t* const kSummary = L"检查结果";
const wchar_t* const kDigest = L"检查摘要";
} // namespace group

namespace
{

const wchar_t* const kAllGroups[] = {group::kZeroLength,   group::kDuplicates, group::kGaps,
                                     group::kNearlyClosed, group::kFlatTexts,  group::kOutside,
                                     group::kMissing,      group::kSummary,    group::kDigest};

// Ends that are apart by no more than this part of the drawing's diagonal were meant to meet.
constexpr double kGapPart = 0.0005;

// Room around a gap when the viewer zooms to it, as a multiple of the gap's width.
constexpr double kGapRoom = 20.0;

std::wstring Format(const wchar_t* format, ...)
{
    wchar_t text[512];
    va_list arguments;
    va_start(arguments, format);
    std::vswprintf(text, std::size(text), format, arguments);
    va_end(arguments);
    return text;
}

using Ids = AcArray<AcDbObjectId>;

Ids IdsOf(const Drawing& drawing, std::initializer_list<std::size_t> objects)
{
    Ids ids;
    for (std::size_t object : objects)
    {
        ids.append(drawing.ids[object]);
    }
    return ids;
}

void AddMessage(KTMsgWnd::EMsgType type, const wchar_t* group, const std::wstring& text, const Ids& ids,
                const AcDbExtents* extents)
{
    KTMsgWnd::AddMsg(type, group, text.c_str(), true, &ids, extents);
}

AcDbExtents ExtentsOf(const Box& box)
{
    return AcDbExtents(AcGePoint3d(box.min.x, box.min.y, 0), AcGePoint3d(box.max.x, box.max.y, 0));
}

AcDbExtents ExtentsAround(Point first, Point second, double room)
{
    const Box box = {{std::min(first.x, second.x) - room, std::min(first.y, second.y) - room},
                     {std::max(first.x, second.x) + room, std::max(first.y, second.y) + room}};
    return ExtentsOf(box);
}

Box BoxOfAll(const Drawing& drawing)
{
    Box all = drawing.boxes.empty() ? Box() : drawing.boxes.front();
    for (const Box& box : drawing.boxes)
    {
        all.min = {std::min(all.min.x, box.min.x), std::min(all.min.y, box.min.y)};
        all.max = {std::max(all.max.x, box.max.x), std::max(all.max.y, box.max.y)};
    }
    return all;
}

double GapTolerance(const Drawing& drawing)
{
    const Box all = drawing.hasSheet ? drawing.sheet : BoxOfAll(drawing);
    return kGapPart * Distance(all.min, all.max);
}

// Adds the message of each finding and answers how many. What is found is kept when the user cancels; only where the
// findings are so many that adding them would make the user wait, the rest of them is left out.
template<typename Findings, typename Add>
int ReportEach(const Findings& findings, const Stop& stop, Add add)
{
    constexpr int kAlways = 10000;
    StopPoll poll(stop);
    int count = 0;
    for (const auto& finding : findings)
    {
        if (count >= kAlways && poll())
            break;
        add(finding);
        ++count;
    }
    return count;
}

int ReportZeroLength(const Drawing& drawing, const Stop& stop)
{
    return ReportEach(FindZeroLength(drawing.lines), stop, [&drawing](std::size_t object) {
        AddMessage(KTMsgWnd::eError, group::kZeroLength, L"直线的起点与终点重合", IdsOf(drawing, {object}), nullptr);
    });
}

int ReportDuplicates(const Drawing& drawing, const Stop& stop)
{
    const auto groups = FindDuplicates(drawing.descriptions, stop);
    return ReportEach(groups, stop, [&drawing](const std::vector<std::size_t>& same) {
        Ids ids;
        for (std::size_t object : same)
        {
            ids.append(drawing.ids[object]);
        }
        AddMessage(KTMsgWnd::eWarning, group::kDuplicates, Format(L"%d 个对象完全重合", static_cast<int>(same.size())),
                   ids, nullptr);
    });
}

int ReportGaps(const Drawing& drawing, const Stop& stop)
{
    const std::vector<Gap> gaps = FindGaps(drawing.ends, GapTolerance(drawing), stop);
    return ReportEach(gaps, stop, [&drawing](const Gap& gap) {
        const AcDbExtents extents = ExtentsAround(gap.firstEnd, gap.secondEnd, gap.width * kGapRoom);
        AddMessage(KTMsgWnd::eWarning, group::kGaps,
                   Format(L"两个端点相距 %.4f，位于 (%.2f, %.2f)", gap.width, gap.firstEnd.x, gap.firstEnd.y),
                   IdsOf(drawing, {gap.first, gap.second}), &extents);
    });
}

int ReportNearlyClosed(const Drawing& drawing, const Stop& stop)
{
    const std::vector<std::size_t> found = FindNearlyClosed(drawing.polylines, GapTolerance(drawing));
    return ReportEach(found, stop, [&drawing](std::size_t object) {
        AddMessage(KTMsgWnd::eWarning, group::kNearlyClosed, L"多段线的起点与终点几乎重合，但没有闭合",
                   IdsOf(drawing, {object}), nullptr);
    });
}

int ReportFlatTexts(const Drawing& drawing, const Stop& stop)
{
    return ReportEach(drawing.flatTexts, stop, [&drawing](std::size_t object) {
        AddMessage(KTMsgWnd::eError, group::kFlatTexts, L"文字的高度为零，图上看不见", IdsOf(drawing, {object}),
                   nullptr);
    });
}

int ReportOutside(const Drawing& drawing, const Stop& stop)
{
    if (!drawing.hasSheet)
    {
        KTMsgWnd::AddMsg(KTMsgWnd::eInfo, group::kSummary, L"图形没有设置图幅界限，未检查超出图幅的对象", true, nullptr,
                         nullptr);
        return 0;
    }
    return ReportEach(FindOutside(drawing.boxes, drawing.sheet), stop, [&drawing](std::size_t index) {
        const AcDbExtents extents = ExtentsOf(drawing.boxes[index]);
        AddMessage(KTMsgWnd::eWarning, group::kOutside, L"对象超出图幅界限", IdsOf(drawing, {drawing.boxed[index]}),
                   &extents);
    });
}

int ReportMissing(const Drawing& drawing, const Stop& stop)
{
    return ReportEach(drawing.missing, stop, [&drawing](const MissingReference& reference) {
        AddMessage(KTMsgWnd::eError, group::kMissing, L"引用的" + reference.what + L"“" + reference.name + L"”不存在",
                   IdsOf(drawing, {reference.object}), nullptr);
    });
}

struct Check
{
    const wchar_t* group;
    int (*report)(const Drawing&, const Stop&); // answers the number of findings
};

const Check kChecks[] = {
    {group::kZeroLength, &ReportZeroLength},
    {group::kDuplicates, &ReportDuplicates},
    {group::kGaps, &ReportGaps},
    {group::kNearlyClosed, &ReportNearlyClosed},
    {group::kFlatTexts, &ReportFlatTexts},
    {group::kOutside, &ReportOutside},
    {group::kMissing, &ReportMissing},
};

void ReportSummary(const Drawing& drawing, int findings, bool canceled)
{
    const int objects = static_cast<int>(drawing.ids.size());
    const wchar_t* const state = canceled ? L"检查已取消" : L"检查完成";
    const std::wstring text = findings == 0 ? Format(L"%ls：%d 个对象，没有发现问题", state, objects)
                                            : Format(L"%ls：%d 个对象，发现 %d 处问题", state, objects, findings);
    KTMsgWnd::AddMsg(canceled ? KTMsgWnd::eWarning : KTMsgWnd::eInfo, group::kSummary, text.c_str(), true, nullptr,
                     nullptr);
}

void ReportCount(int findings)
{
    const std::wstring text = Format(L"检查摘要：共 %d 处问题", findings);
    ZNKTPub::ReportMsg(findings == 0 ? CMsgCallback::eInfo : CMsgCallback::eWarning, group::kDigest, text.c_str(),
                       true);
}

} // namespace

void RemoveOldMessages()
{
    for (const wchar_t* name : kAllGroups)
    {
        KTMsgWnd::RemoveMsg(name, false);
    }
}

int ReportFindings(const Drawing& drawing, CMsgCallback& progress)
{
    const Stop stop = [&progress] { return progress.IsCanceled(); };
    const int count = static_cast<int>(std::size(kChecks));
    int findings = 0;
    for (int i = 0; i < count && !stop(); ++i)
    {
        progress.WaitDlgModiLastMsg(Format(L"检查 %d/%d：%ls", i + 1, count, kChecks[i].group).c_str());
        findings += kChecks[i].report(drawing, stop);
    }
    ReportSummary(drawing, findings, stop());
    return findings;
}

void ReportSummaryOfMessages()
{
    if (KTMsgWnd::GetMsgCount(group::kSummary) == 0)
    {
        ZNKTPub::ReportMsg(CMsgCallback::eWarning, group::kDigest, L"当前图形还没有检查过，请先运行“检查图形”", true);
        return;
    }
    int findings = 0;
    for (const Check& check : kChecks)
    {
        const int count = KTMsgWnd::GetMsgCount(check.group);
        if (count == 0)
            continue;
        const std::wstring text = Format(L"%ls：%d 处", check.group, count);
        ZNKTPub::ReportMsg(CMsgCallback::eWarning, group::kDigest, text.c_str(), true);
        findings += count;
    }
    ReportCount(findings);
}

} // namespace drawing_check
