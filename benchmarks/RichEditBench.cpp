// RTF through the string of the rich edit beside a bare rich edit that streams from and to a buffer in memory.
#include <afxwin.h>

#include "Bench.h"

#include <AutoRichEditCtrl.h>

#include <cstring>
#include <stdexcept>
#include <string>
#include <vector>

namespace bench
{

namespace
{

constexpr int kRuns = 5;
constexpr double kMilliseconds = 1e3;
constexpr int kMegabyte = 1 << 20;
constexpr int kLargeMegabytes = 4;
constexpr int kTextEvery = 64;  // one line of text in so many of other data, as in a text with pictures
constexpr double kLinear = 1.3; // how much more a byte of the large text may cost

struct Source
{
    const char* next;
    const char* end;
};

DWORD CALLBACK ReadMemory(DWORD_PTR cookie, LPBYTE buffer, LONG wanted, LONG* read)
{
    Source& source = *reinterpret_cast<Source*>(cookie);
    const LONG left = static_cast<LONG>(source.end - source.next);
    *read = wanted < left ? wanted : left;
    std::memcpy(buffer, source.next, static_cast<size_t>(*read));
    source.next += *read;
    return 0;
}

DWORD CALLBACK WriteMemory(DWORD_PTR cookie, LPBYTE bytes, LONG count, LONG* written)
{
    reinterpret_cast<std::string*>(cookie)->append(reinterpret_cast<const char*>(bytes), static_cast<size_t>(count));
    *written = count;
    return 0;
}

// RTF of a text with pictures: mostly data that the control reads and doesn't lay out.
std::string WithPictures(int bytes)
{
    const std::string data = "{\\*\\picturedata " + std::string(80, 'f') + "}\n";
    std::string rtf = "{\\rtf1 ";
    for (int line = 0; static_cast<int>(rtf.size()) < bytes; ++line)
        rtf += line % kTextEvery == 0 ? "a line of {\\b text}\\par\n" : data;
    return rtf + "}";
}

// RTF of so many characters in short lines, which need no breaking.
std::string Lines(int characters)
{
    const std::string line = std::string(63, 'x') + "\\par\n";
    std::string rtf = "{\\rtf1 ";
    for (int i = 0; i < characters / 64; ++i)
        rtf += line;
    return rtf + "}";
}

void StreamIn(CRichEditCtrl& edit, const std::string& rtf)
{
    Source source = {rtf.data(), rtf.data() + rtf.size()};
    EDITSTREAM stream = {reinterpret_cast<DWORD_PTR>(&source), 0, &ReadMemory};
    edit.StreamIn(SF_RTF, stream);
}

size_t StreamOut(CRichEditCtrl& edit)
{
    std::string rtf;
    EDITSTREAM stream = {reinterpret_cast<DWORD_PTR>(&rtf), 0, &WriteMemory};
    edit.StreamOut(SF_RTF, stream);
    return rtf.size();
}

// Two hidden controls, so that nothing but the streams is measured.
struct Controls
{
    explicit Controls(CWnd& owner) : ours(0)
    {
        const DWORD style = WS_CHILD | ES_MULTILINE | ES_AUTOVSCROLL | ES_AUTOHSCROLL;
        const CRect place(0, 0, 400, 300);
        if (!ours.Create(style, place, &owner, 1) || !bare.Create(style, place, &owner, 2))
            throw std::runtime_error("the rich edits could not be made");
        bare.LimitText(kLargeMegabytes * kMegabyte * 2);
    }

    CAutoRichEditCtrl ours;
    CRichEditCtrl bare;
};

Pair MeasureIn(Controls& controls, int bytes)
{
    const std::string rtf = WithPictures(bytes);
    const CString text(rtf.c_str(), static_cast<int>(rtf.size()));
    const auto ours = [&] {
        if (!controls.ours.SetRTF(text))
            throw std::runtime_error("the text was not taken in");
    };
    return MedianSeconds(kRuns, {nullptr, ours, nullptr}, {nullptr, [&] { StreamIn(controls.bare, rtf); }, nullptr});
}

Pair MeasureOut(Controls& controls, int bytes)
{
    const std::string rtf = Lines(bytes);
    StreamIn(controls.bare, rtf);
    controls.ours.SetRTF(CString(rtf.c_str(), static_cast<int>(rtf.size())));
    const auto check = [bytes](size_t length) {
        if (length < static_cast<size_t>(bytes))
            throw std::runtime_error("the text came out cut off");
    };
    return MedianSeconds(kRuns, {nullptr, [&] { check(controls.ours.GetRTF().GetLength()); }, nullptr},
                         {nullptr, [&] { check(StreamOut(controls.bare)); }, nullptr});
}

void AddFigures(Report& report, const std::string& what, const Pair& small, const Pair& large)
{
    report.Add({"rich edit: 1 MB of RTF " + what, "ms", small.ours * kMilliseconds, small.bare * kMilliseconds, 1.5,
                "bare rich edit, buffer in memory"});
    report.Add({"rich edit: 4 MB of RTF " + what, "ms", large.ours * kMilliseconds, large.bare * kMilliseconds, 1.5,
                "bare rich edit, buffer in memory"});
    report.Add({"rich edit: a megabyte of 4 MB " + what, "ms", large.ours * kMilliseconds / kLargeMegabytes,
                small.ours * kMilliseconds, kLinear, "a megabyte of 1 MB"});
}

} // namespace

void MeasureRichEdit(Report& report)
{
    CWnd owner;
    if (!owner.CreateEx(0, AfxRegisterWndClass(0), L"bench", WS_POPUP, CRect(0, 0, 500, 400), NULL, 0))
        throw std::runtime_error("the window of the rich edits could not be made");
    {
        Controls controls(owner);
        const Pair small = MeasureIn(controls, kMegabyte);
        AddFigures(report, "in", small, MeasureIn(controls, kLargeMegabytes * kMegabyte));
    }
    {
        Controls controls(owner);
        const Pair small = MeasureOut(controls, kMegabyte);
        AddFigures(report, "out", small, MeasureOut(controls, kLargeMegabytes * kMegabyte));
    }
    owner.DestroyWindow();
}

} // namespace bench
