// The index palette by rule: nine named colours, 24 hues of ten shades, six greys.
#include "ZnQFCBaseU.h"

namespace
{
const int kFirstHueIndex = 10;
const int kFirstGreyIndex = 250;
const int kLastIndex = 255;

const COLORREF kWhite = RGB(255, 255, 255);
const COLORREF kNamedColors[] = {RGB(255, 0, 0),   RGB(255, 255, 0),   RGB(0, 255, 0),
                                 RGB(0, 255, 255), RGB(0, 0, 255),     RGB(255, 0, 255),
                                 kWhite,           RGB(128, 128, 128), RGB(192, 192, 192)};
const int kGreys[] = {51, 91, 132, 173, 214, 255};

// Brightest channel of each pair of shades; the odd one of a pair is half as saturated.
const int kShades[] = {255, 204, 153, 127, 76};
const int kShadesOfHue = 10;

// Hues are 15 degrees apart, so a channel climbs or falls in quarters over each sixth of the circle.
const int kStepsOfSector = 4;

COLORREF HueColor(int hue, int brightest, int darkest)
{
    const int sector = hue / kStepsOfSector;
    const int step = hue % kStepsOfSector;
    const int span = brightest - darkest;
    const int rising = darkest + span * step / kStepsOfSector;
    const int falling = darkest + span * (kStepsOfSector - step) / kStepsOfSector;
    switch (sector)
    {
    case 0:
        return RGB(brightest, rising, darkest);
    case 1:
        return RGB(falling, brightest, darkest);
    case 2:
        return RGB(darkest, brightest, rising);
    case 3:
        return RGB(darkest, falling, brightest);
    case 4:
        return RGB(rising, darkest, brightest);
    default:
        return RGB(brightest, darkest, falling);
    }
}
} // namespace

namespace Tevrin
{
COLORREF GetRGBFromACI(int index)
{
    if (index < 1 || index > kLastIndex)
        return kWhite;
    if (index < kFirstHueIndex)
        return kNamedColors[index - 1];
    if (index >= kFirstGreyIndex)
    {
        const int grey = kGreys[index - kFirstGreyIndex];
        return RGB(grey, grey, grey);
    }
    const int hue = index / kShadesOfHue - 1;
    const int shade = index % kShadesOfHue;
    const int brightest = kShades[shade / 2];
    return HueColor(hue, brightest, shade % 2 == 0 ? 0 : brightest / 2);
}
} // namespace Tevrin
