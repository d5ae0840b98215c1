// A slide beside bare GDI calls of the same lines.
#include <afxwin.h>

#include "Bench.h"

#include <SlideCtrl.h>

#include <algorithm>
#include <cstdlib>
#include <stdexcept>
#include <string>
#include <vector>

namespace bench
{

namespace
{

constexpr int kVectors = 100000;
constexpr int kColors = 8;
constexpr int kVectorsOfColor = kVectors / kColors;
constexpr int kRuns = 9;
constexpr int kWidth = 800;
constexpr int kHeight = 600;
constexpr int kLongest = 60; // dots
constexpr double kMilliseconds = 1e3;
constexpr double kUnitsOfAspect = 1e7;

struct Line
{
    POINT from;
    POINT to;
};

// The same ones in every run.
std::vector<Line> MakeLines()
{
    std::srand(1);
    const auto nearby = [](int value, int most) {
        return std::min(most - 1, std::max(0, value + std::rand() % (2 * kLongest) - kLongest));
    };
    std::vector<Line> lines;
    for (int i = 0; i < kVectors; ++i)
    {
        const POINT from = {std::rand() % kWidth, std::rand() % kHeight};
        lines.push_back({from, {nearby(from.x, kWidth), nearby(from.y, kHeight)}});
    }
    return lines;
}

class SlideFile
{
public:
    explicit SlideFile(const std::vector<Line>& lines)
    {
        const char signature[] = "AutoCAD Slide\r\n\x1a\0\x56\x02";
        m_bytes.assign(signature, sizeof(signature) - 1);
        Word(kWidth - 1);
        Word(kHeight - 1);
        const unsigned aspect = static_cast<unsigned>(kUnitsOfAspect * kWidth / kHeight);
        Word(aspect & 0xffff);
        Word(aspect >> 16);
        Word(2);
        Word(0x1234);
        for (int i = 0; i < kVectors; ++i)
        {
            if (i % kVectorsOfColor == 0)
                Word(0xff00 | (i / kVectorsOfColor + 1));
            for (const LONG value : {lines[i].from.x, lines[i].from.y, lines[i].to.x, lines[i].to.y})
                Word(static_cast<unsigned>(value));
        }
        Word(0xfc00);
        Save();
    }

    ~SlideFile() { ::DeleteFileW(m_path); }

    CString Path() const { return m_path; }

private:
    void Word(unsigned value)
    {
        m_bytes += static_cast<char>(value & 0xff);
        m_bytes += static_cast<char>(value >> 8 & 0xff);
    }

    void Save()
    {
        wchar_t folder[MAX_PATH] = {};
        ::GetTempPathW(MAX_PATH, folder);
        m_path = CString(folder) + L"znkt_bench.sld";
        CFile file(m_path, CFile::modeCreate | CFile::modeWrite);
        file.Write(m_bytes.data(), static_cast<UINT>(m_bytes.size()));
    }

    std::string m_bytes;
    CString m_path;
};

// A picture in memory, as large as the slide.
class Canvas
{
public:
    Canvas()
    {
        BITMAPINFO info = {};
        info.bmiHeader.biSize = sizeof(info.bmiHeader);
        info.bmiHeader.biWidth = kWidth;
        info.bmiHeader.biHeight = -kHeight;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        void* bits = nullptr;
        m_dc.CreateCompatibleDC(NULL);
        m_bitmap.Attach(::CreateDIBSection(NULL, &info, DIB_RGB_COLORS, &bits, NULL, 0));
        m_former = m_dc.SelectObject(&m_bitmap);
    }

    ~Canvas() { m_dc.SelectObject(m_former); }

    CDC& Dc() { return m_dc; }

private:
    CDC m_dc;
    CBitmap m_bitmap;
    CBitmap* m_former;
};

// As one would draw lines that are at hand in pixels: a pen and one call for each colour, the last pixels included.
void DrawBare(CDC& dc, const std::vector<Line>& lines)
{
    dc.FillSolidRect(0, 0, kWidth, kHeight, RGB(0, 0, 0));
    std::vector<POINT> points(3 * kVectorsOfColor);
    const std::vector<DWORD> counts(kVectorsOfColor, 3);
    for (int color = 0; color < kColors; ++color)
    {
        for (int i = 0; i < kVectorsOfColor; ++i)
        {
            const Line& line = lines[static_cast<size_t>(color * kVectorsOfColor + i)];
            POINT* const chain = &points[static_cast<size_t>(3 * i)];
            chain[0] = {line.from.x, kHeight - 1 - line.from.y};
            chain[1] = {line.to.x, kHeight - 1 - line.to.y};
            chain[2] = {chain[1].x + 1, chain[1].y};
        }
        CPen pen(PS_SOLID, 1, Tevrin::GetRGBFromACI(color + 1));
        CPen* const former = dc.SelectObject(&pen);
        ::PolyPolyline(dc, points.data(), counts.data(), kVectorsOfColor);
        dc.SelectObject(former);
    }
}

void DrawSlide(CDC& dc, CSlideCtrl& control)
{
    DRAWITEMSTRUCT item = {};
    item.hDC = dc;
    item.rcItem = CRect(0, 0, kWidth, kHeight);
    control.DrawItem(&item);
}

// Both have to draw the same, or the comparison would be worth nothing.
void ExpectSamePicture(CDC& ours, CDC& bare)
{
    int different = 0;
    for (int y = 0; y < kHeight; y += 7)
    {
        for (int x = 0; x < kWidth; x += 7)
            different += ours.GetPixel(x, y) != bare.GetPixel(x, y);
    }
    if (different > 0)
        throw std::runtime_error("the slide and the bare lines differ in " + std::to_string(different) + " pixels");
}

} // namespace

void MeasureSlide(Report& report)
{
    const std::vector<Line> lines = MakeLines();
    const SlideFile file(lines);
    CSlideCtrl control;
    control.SetFileName(file.Path());
    if (!control.GetError().IsEmpty())
        throw std::runtime_error("the slide could not be read");
    Canvas ourCanvas, bareCanvas;
    const Work ours = {nullptr, [&] { DrawSlide(ourCanvas.Dc(), control); }, nullptr};
    const Work bare = {nullptr, [&] { DrawBare(bareCanvas.Dc(), lines); }, nullptr};
    const Pair pair = MedianSeconds(kRuns, ours, bare);
    ExpectSamePicture(ourCanvas.Dc(), bareCanvas.Dc());
    report.Add({"slide: drawing 100,000 vectors", "ms", pair.ours * kMilliseconds, pair.bare * kMilliseconds, 1.5,
                "bare PolyPolyline of them"});
}

} // namespace bench
