// The pictures of slides beside those of another reader of the format, sldtoppm:
//   slide_pictures write FOLDER     writes sample slides (NAME.sld) and how this project paints them (NAME.ours.ppm)
//   slide_pictures compare FOLDER   compares each with NAME.theirs.ppm, which sldtoppm made meanwhile
//
// Two readers need not agree on every pixel of a slanted line. What has to agree: every pixel that one of them paints
// has a pixel of the same colour in the other at most one pixel away.
#include "suite/ZnQFCBaseU/SlidePainter.h"

#include "DibCanvas.h"
#include "SlideBytes.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

namespace
{

constexpr int kWidth = 320;
constexpr int kHeight = 240;
constexpr int kReach = 1;          // pixels
constexpr int kColorTolerance = 2; // of a channel
constexpr double kPi = 3.14159265358979;
const char kPaletteSample[] = "palette";

struct Sample
{
    std::string name;
    SlideBytes bytes;
};

int Round(double value)
{
    return static_cast<int>(std::lround(value));
}

SlideBytes Fan(SlideBytes::Order order)
{
    SlideBytes slide(kWidth, kHeight, 0, order);
    for (int i = 0; i < 72; ++i)
    {
        const double angle = i * kPi / 36;
        slide.Color(1 + i % 7).Vector(160 + Round(20 * cos(angle)), 120 + Round(20 * sin(angle)),
                                      160 + Round(115 * cos(angle)), 120 + Round(115 * sin(angle)));
    }
    return slide.End();
}

// A circle of short steps, each from the one before.
SlideBytes ShortRecords(SlideBytes::Order order)
{
    SlideBytes slide(kWidth, kHeight, 0, order);
    slide.Color(2).Vector(260, 120, 260, 120);
    int x = 260;
    int y = 120;
    for (int i = 1; i <= 90; ++i)
    {
        const int nextX = 160 + Round(100 * cos(i * kPi / 45));
        const int nextY = 120 + Round(100 * sin(i * kPi / 45));
        slide.CommonEnd(nextX - x, nextY - y);
        x = nextX;
        y = nextY;
    }
    slide.Color(4);
    for (int i = -100; i <= 100; i += 10)
        slide.Offset(-100, i, -100 + i / 2, -i).Offset(100, -i, -60, i / 3);
    return slide.End();
}

SlideBytes Areas(SlideBytes::Order order)
{
    SlideBytes slide(kWidth, kHeight, 0, order);
    slide.Color(1).Area({{10, 10}, {90, 10}, {90, 60}, {10, 60}});
    slide.Color(3).Area({{110, 10}, {190, 20}, {140, 90}});
    slide.Color(5).Area({{200, 20}, {300, 20}, {250, 50}, {300, 100}, {200, 100}}); // not convex
    SlideBytes::Corners round;
    for (int i = 0; i < 10; ++i)
        round.push_back({80 + Round(60 * cos(i * kPi / 5)), 160 + Round(60 * sin(i * kPi / 5))});
    slide.Color(6).Area(round);
    slide.Color(2).Vector(0, 160, 319, 160);
    slide.Color(4).Area({{180, 130}, {310, 130}, {310, 230}, {180, 230}}).Color(1).Vector(180, 130, 310, 230);
    return slide.End();
}

// Every colour of the palette: sixteen by sixteen areas of 20 by 15 dots.
SlideBytes Palette()
{
    SlideBytes slide(kWidth, kHeight);
    for (int index = 1; index <= 255; ++index)
    {
        const int x = index % 16 * 20;
        const int y = index / 16 * 15;
        slide.Color(index).Area({{x, y}, {x + 19, y}, {x + 19, y + 14}, {x, y + 14}});
    }
    return slide.End();
}

std::vector<Sample> Samples()
{
    return {{"fan", Fan(SlideBytes::LowFirst)},
            {"fan-high-first", Fan(SlideBytes::HighFirst)},
            {"short", ShortRecords(SlideBytes::LowFirst)},
            {"short-high-first", ShortRecords(SlideBytes::HighFirst)},
            {"areas", Areas(SlideBytes::LowFirst)},
            {"areas-high-first", Areas(SlideBytes::HighFirst)},
            {kPaletteSample, Palette()}};
}

struct Picture
{
    int width = 0;
    int height = 0;
    std::vector<unsigned char> bytes; // red, green, blue from the upper left corner

    const unsigned char* At(int x, int y) const { return &bytes[static_cast<size_t>(3 * (y * width + x))]; }
    bool IsPainted(int x, int y) const { return At(x, y)[0] != 0 || At(x, y)[1] != 0 || At(x, y)[2] != 0; }
};

bool SaveFile(const std::string& path, const std::string& bytes)
{
    FILE* const file = fopen(path.c_str(), "wb");
    if (file == nullptr)
        return false;
    const bool saved = fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
    return fclose(file) == 0 && saved;
}

bool LoadPicture(const std::string& path, Picture& picture)
{
    FILE* const file = fopen(path.c_str(), "rb");
    if (file == nullptr)
        return false;
    int most = 0;
    bool loaded = fscanf(file, "P6 %d %d %d", &picture.width, &picture.height, &most) == 3 && most == 255 &&
                  picture.width == kWidth && picture.height == kHeight && fgetc(file) != EOF;
    picture.bytes.resize(static_cast<size_t>(3 * kWidth * kHeight));
    loaded = loaded && fread(picture.bytes.data(), 1, picture.bytes.size(), file) == picture.bytes.size();
    fclose(file);
    return loaded;
}

bool Write(const std::string& folder, const Sample& sample)
{
    const std::vector<unsigned char>& bytes = sample.bytes.Bytes();
    Tevrin::Slide slide;
    if (slide.Parse(bytes.data(), bytes.size()) != Tevrin::kSlideGood)
        return false;
    DibCanvas canvas(kWidth, kHeight, 0);
    Tevrin::PaintSlide(canvas.Dc(), RECT{0, 0, kWidth, kHeight}, slide, RGB(0, 0, 0));
    std::string picture = "P6\n" + std::to_string(kWidth) + " " + std::to_string(kHeight) + "\n255\n";
    for (int y = 0; y < kHeight; ++y)
    {
        for (int x = 0; x < kWidth; ++x)
        {
            const COLORREF color = canvas.Pixel(x, y);
            picture += {static_cast<char>(GetRValue(color)), static_cast<char>(GetGValue(color)),
                        static_cast<char>(GetBValue(color))};
        }
    }
    return SaveFile(folder + "/" + sample.name + ".ours.ppm", picture) &&
           SaveFile(folder + "/" + sample.name + ".sld", std::string(bytes.begin(), bytes.end()));
}

bool IsSameColor(const unsigned char* one, const unsigned char* other)
{
    for (int i = 0; i < 3; ++i)
    {
        if (std::abs(one[i] - other[i]) > kColorTolerance)
            return false;
    }
    return true;
}

bool HasNear(const Picture& picture, int x, int y, const unsigned char* color)
{
    for (int nearY = std::max(0, y - kReach); nearY <= std::min(kHeight - 1, y + kReach); ++nearY)
    {
        for (int nearX = std::max(0, x - kReach); nearX <= std::min(kWidth - 1, x + kReach); ++nearX)
        {
            if (IsSameColor(picture.At(nearX, nearY), color))
                return true;
        }
    }
    return false;
}

// Painted pixels of `one` for which the other has no like in reach.
int Strays(const Picture& one, const Picture& other)
{
    int strays = 0;
    for (int y = 0; y < kHeight; ++y)
    {
        for (int x = 0; x < kWidth; ++x)
            strays += one.IsPainted(x, y) && !HasNear(other, x, y, one.At(x, y));
    }
    return strays;
}

// Of the named colours and of the full brightness of each hue: what all tables of the palette have in common. sldtoppm
// knows an older one, whose dimmer shades and greys are others.
bool IsCommonColor(int index)
{
    return index <= 7 || (index >= 10 && index < 250 && index % 10 < 2);
}

bool ComparePalette(const Picture& ours, const Picture& theirs)
{
    int compared = 0;
    int others = 0;
    for (int index = 1; index <= 255; ++index)
    {
        if (!IsCommonColor(index))
            continue;
        const int x = index % 16 * 20 + 10;
        const int y = kHeight - 1 - (index / 16 * 15 + 7);
        ++compared;
        others += !IsSameColor(ours.At(x, y), theirs.At(x, y));
    }
    printf("%-18s %d of %d colours that all palettes share differ (none may)\n", kPaletteSample, others, compared);
    return others == 0;
}

bool Compare(const std::string& folder, const std::string& name)
{
    Picture ours, theirs;
    if (!LoadPicture(folder + "/" + name + ".ours.ppm", ours) ||
        !LoadPicture(folder + "/" + name + ".theirs.ppm", theirs))
    {
        printf("%-18s a picture is missing or has another size\n", name.c_str());
        return false;
    }
    if (name == kPaletteSample)
        return ComparePalette(ours, theirs);
    int painted = 0;
    int same = 0;
    for (int y = 0; y < kHeight; ++y)
    {
        for (int x = 0; x < kWidth; ++x)
        {
            if (!ours.IsPainted(x, y) && !theirs.IsPainted(x, y))
                continue;
            ++painted;
            same += IsSameColor(ours.At(x, y), theirs.At(x, y));
        }
    }
    const int strays = Strays(ours, theirs) + Strays(theirs, ours);
    printf("%-18s %d pixels painted, %d alike, %d without a like within one pixel (none may)\n", name.c_str(), painted,
           same, strays);
    return painted > 0 && strays == 0;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3)
        return 2;
    const std::string task = argv[1];
    bool good = true;
    for (const Sample& sample : Samples())
        good = (task == "write" ? Write(argv[2], sample) : Compare(argv[2], sample.name)) && good;
    return good ? 0 : 1;
}
