// The message store: what a message costs in time and memory, and what counting and removing cost.
#include "Bench.h"
#include "Memory.h"

#include <KTMsgWnd.h>

#include <string>
#include <vector>

namespace bench
{

namespace
{

constexpr int kMillion = 1000000;
constexpr int kThousand = 1000;
constexpr int kGroups = 100;
constexpr int kTextLength = 40;
constexpr int kRuns = 3;
constexpr double kNanoseconds = 1e9;
constexpr double kMilliseconds = 1e3;

std::vector<std::wstring> GroupNames()
{
    std::vector<std::wstring> names;
    for (int index = 0; index < kGroups; ++index)
        names.push_back(L"检查项 " + std::to_wstring(index));
    return names;
}

const std::vector<std::wstring> g_groups = GroupNames();
const std::wstring g_text(kTextLength, L'文');

AcArray<AcDbObjectId> TwoIds()
{
    AcArray<AcDbObjectId> ids;
    ids.append(AcDbObjectId());
    ids.append(AcDbObjectId());
    return ids;
}

void AddMessages(int count)
{
    static const AcArray<AcDbObjectId> ids = TwoIds();
    for (int index = 0; index < count; ++index)
        KTMsgWnd::AddMsg(KTMsgWnd::eWarning, g_groups[index % kGroups].c_str(), g_text.c_str(), false, &ids, nullptr);
}

// Time of one of `count` additions to a store that holds `held` messages already.
double SecondsForAdding(int held, int count)
{
    KTMsgWnd::RemoveAllMsg();
    AddMessages(held);
    return MedianSeconds(
               1, nullptr, [count] { AddMessages(count); }, nullptr) /
           count;
}

void MeasureAdding(Report& report)
{
    constexpr int sample = 20000;
    // The first thousand messages are too short a work for the clock: many stores one after the other.
    const double first = MedianSeconds(
                             kRuns, nullptr,
                             [] {
                                 for (int round = 0; round < sample / kThousand; ++round)
                                 {
                                     KTMsgWnd::RemoveAllMsg();
                                     AddMessages(kThousand);
                                 }
                             },
                             nullptr) /
                         sample;
    const double last = SecondsForAdding(kMillion - 2 * sample, sample);
    report.Add({"AddMsg, up to the 1,000,000th message", "ns", last * kNanoseconds, first * kNanoseconds, 1.5,
                "AddMsg, up to the 1,000th message"});
}

void MeasureMemory(Report& report)
{
    KTMsgWnd::RemoveAllMsg();
    const double before = AllocatedBytes();
    AddMessages(kMillion);
    const double each = (AllocatedBytes() - before) / kMillion - (kTextLength + 1) * sizeof(wchar_t);
    report.Add({"memory of a message beside its text's characters", "bytes", each, 0, 400, ""});
}

// A count that walks: what a store without an index would do.
int CountByWalking(const std::vector<std::wstring>& groups, const wchar_t* name)
{
    int count = 0;
    for (const std::wstring& group : groups)
        count += ::CompareStringW(LOCALE_INVARIANT, NORM_IGNORECASE, group.c_str(), -1, name, -1) == CSTR_EQUAL;
    return count;
}

void MeasureCounting(Report& report)
{
    constexpr int lookups = 1000;
    const auto countAll = [] {
        int sum = 0;
        for (int round = 0; round < lookups; ++round)
            sum += KTMsgWnd::GetMsgCount(g_groups[round % kGroups].c_str());
        return sum;
    };
    const double full = MedianSeconds(kRuns, nullptr, countAll, nullptr) / lookups;
    std::vector<std::wstring> walked;
    for (int index = 0; index < kMillion; ++index)
        walked.push_back(g_groups[index % kGroups]);
    const double walk = MedianSeconds(
        1, nullptr, [&] { CountByWalking(walked, g_groups[0].c_str()); }, nullptr);
    KTMsgWnd::RemoveAllMsg();
    AddMessages(kThousand);
    const double few = MedianSeconds(kRuns, nullptr, countAll, nullptr) / lookups;
    report.Add({"GetMsgCount in 1,000,000 messages", "ns", full * kNanoseconds, few * kNanoseconds, 2,
                "GetMsgCount in 1,000 messages"});
    report.Add({"GetMsgCount in 1,000,000 messages, beside a walk", "ns", full * kNanoseconds, walk * kNanoseconds,
                0.01, "a walk over 1,000,000 names"});
}

double SecondsForRemoving(int held)
{
    return MedianSeconds(
        1, [held] { KTMsgWnd::RemoveAllMsg(), AddMessages(held); },
        [] { KTMsgWnd::RemoveMsg(g_groups[0].c_str(), true); }, nullptr);
}

void MeasureRemoving(Report& report)
{
    constexpr int tenth = kMillion / 10;
    const double full = SecondsForRemoving(kMillion);
    const double part = SecondsForRemoving(tenth);
    // Ten times the messages: linear work has a ratio of ten, quadratic work one of a hundred.
    report.Add({"RemoveMsg of a group in 1,000,000 messages", "ms", full * kMilliseconds, part * kMilliseconds, 15,
                "the same in 100,000 messages"});
}

} // namespace

void MeasureMessageStore(Report& report)
{
    MeasureAdding(report);
    MeasureMemory(report);
    MeasureCounting(report);
    MeasureRemoving(report);
    KTMsgWnd::RemoveAllMsg();
}

} // namespace bench
