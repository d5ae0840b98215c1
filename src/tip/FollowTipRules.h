// What the mouse-following tip shows, how large it is, where it stands and how long it stays. No window is needed.
// Sizes and places are pixels, times are milliseconds of GetTickCount.
#pragma once

#include <afxwin.h>

// Whether the text asks for trace lines: it begins with "Debug:". Null does not.
bool IsDebugTip(const wchar_t* text);

// What is meant by a number of seconds: 0 is 20.
unsigned long TipSeconds(unsigned long seconds);

// The longest time that can be told stands for all that are longer.
unsigned int TipDuration(unsigned long seconds);

// Whether more than the duration has passed; the clock may have started again at 0 meanwhile.
bool IsTipOver(DWORD now, DWORD shownAt, unsigned int duration);

// A part of the text that it was taken from; not terminated.
struct TipLine
{
    const wchar_t* text;
    int length;
};

// Takes a text apart at its line ends. A text has one line more than it has line ends.
class CTipLines
{
public:
    explicit CTipLines(const wchar_t* text);

    // Whether there was one more line.
    bool Next(TipLine& line);

private:
    const wchar_t* m_rest; // null at the end
};

// Adds the measures of the lines up to the size of the tip.
class CTipMeasure
{
public:
    CTipMeasure();

    void Add(CSize line);

    // Of the line that was added last.
    int LineHeight() const { return m_lineHeight; }
    CSize Size() const;

private:
    int m_lines;
    int m_lineHeight;
    int m_width;
};

// Whether a tip keeps its size because the wanted one is nearly the same.
bool KeepsTipSize(CSize current, CSize wanted);

// The left upper corner beside the pointer.
CPoint TipPlace(CPoint pointer, int tipHeight);

// The place of a line, the first being 0, in a tip with that right edge.
CRect TipLineRect(int index, int lineHeight, int right);
