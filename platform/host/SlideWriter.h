// Puts a slide file together: level 2, low byte first. No window.
//
//     SlideWriter slide(800, 600);
//     slide.SetColor(1);
//     slide.AddLine({0, 0}, {799, 599});
//     const std::string bytes = slide.Finish();
#pragma once

#include <string>
#include <vector>

namespace arxhost
{

// From the lower left corner, inside of the slide.
struct SlideDot
{
    int x;
    int y;
};

class SlideWriter
{
public:
    static constexpr size_t kFewestCorners = 3;
    static constexpr size_t kMostCorners = 10;

    // In dots, 1 to 32767 each; dots are square.
    SlideWriter(int width, int height);

    // For what follows: an index of the palette, 1 to 255.
    void SetColor(int index);
    void AddLine(const SlideDot& from, const SlideDot& to);
    // A filled polygon of kFewestCorners to kMostCorners corners; others are left out.
    void AddArea(const std::vector<SlideDot>& corners);

    // The whole file. Nothing can be added afterwards.
    const std::string& Finish();

private:
    void AddRecord(int type, int low);
    void AddCorner(int x, int y);
    void AddWord(int value);

    std::string m_bytes;
    int m_color = 0;
};

} // namespace arxhost
