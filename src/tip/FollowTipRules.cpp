#include "tip/FollowTipRules.h"

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <cwchar>

namespace
{

const wchar_t kDebugPrefix[] = L"Debug:";
const unsigned long kUsualSeconds = 20;
const unsigned int kMillisecondsPerSecond = 1000;

const int kLeastWidth = 20;
const int kAddedWidth = 20;
const int kAddedHeight = 10;
const double kLineGap = 0.5; // of a line's height
const int kWidthTolerance = 10;
const int kHeightTolerance = 3;

const int kRightOfPointer = 15;
const int kAbovePointer = 10;

const int kTextLeft = 3;
const int kTextTop = 5;

int ToPixels(double pixels)
{
    return static_cast<int>(std::min(pixels, static_cast<double>(INT_MAX)));
}

} // namespace

bool IsDebugTip(const wchar_t* text)
{
    const size_t length = sizeof(kDebugPrefix) / sizeof(kDebugPrefix[0]) - 1;
    return text != NULL && wcsncmp(text, kDebugPrefix, length) == 0;
}

unsigned long TipSeconds(unsigned long seconds)
{
    return seconds == 0 ? kUsualSeconds : seconds;
}

unsigned int TipDuration(unsigned long seconds)
{
    return seconds > UINT_MAX / kMillisecondsPerSecond ? UINT_MAX : seconds * kMillisecondsPerSecond;
}

bool IsTipOver(DWORD now, DWORD shownAt, unsigned int duration)
{
    return now - shownAt > duration;
}

CTipLines::CTipLines(const wchar_t* text) : m_rest(text == NULL ? L"" : text) {}

bool CTipLines::Next(TipLine& line)
{
    if (m_rest == NULL)
        return false;
    const wchar_t* const end = wcschr(m_rest, L'\n');
    line.text = m_rest;
    line.length = static_cast<int>(end == NULL ? wcslen(m_rest) : end - m_rest);
    m_rest = end == NULL ? NULL : end + 1;
    return true;
}

CTipMeasure::CTipMeasure() : m_lines(0), m_lineHeight(0), m_width(kLeastWidth) {}

void CTipMeasure::Add(CSize line)
{
    ++m_lines;
    m_lineHeight = line.cy;
    m_width = std::max<int>(m_width, line.cx + kAddedWidth);
}

CSize CTipMeasure::Size() const
{
    const double gaps = (m_lines - 1) * (m_lineHeight * kLineGap);
    return CSize(m_width, ToPixels(gaps + static_cast<double>(m_lineHeight) * m_lines + kAddedHeight));
}

bool KeepsTipSize(CSize current, CSize wanted)
{
    return abs(wanted.cy - current.cy) <= kHeightTolerance && abs(wanted.cx - current.cx) <= kWidthTolerance;
}

CPoint TipPlace(CPoint pointer, int tipHeight)
{
    return CPoint(pointer.x + kRightOfPointer, pointer.y - tipHeight - kAbovePointer);
}

CRect TipLineRect(int index, int lineHeight, int right)
{
    const int top = ToPixels(lineHeight * (1 + kLineGap) * index + kTextTop);
    return CRect(kTextLeft, top, right, top + lineHeight);
}
