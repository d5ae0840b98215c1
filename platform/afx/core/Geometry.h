// CPoint, CSize, CRect: the Win32 structures with arithmetic. Everything is inline, so the types cross DLLs freely.
// A rectangle holds its left and top edge, and ends before its right and bottom edge.
#pragma once

#include "afx/core/Api.h"

class CPoint;
class CRect;

class CSize : public tagSIZE
{
public:
    CSize() { cx = cy = 0; }
    CSize(int initCX, int initCY)
    {
        cx = initCX;
        cy = initCY;
    }
    CSize(SIZE size) : tagSIZE(size) {}
    CSize(POINT point)
    {
        cx = point.x;
        cy = point.y;
    }
    // Low word: width, high word: height, both signed.
    CSize(DWORD packed)
    {
        cx = static_cast<short>(LOWORD(packed));
        cy = static_cast<short>(HIWORD(packed));
    }

    void SetSize(int newCX, int newCY)
    {
        cx = newCX;
        cy = newCY;
    }
    BOOL operator==(SIZE size) const { return cx == size.cx && cy == size.cy; }
    BOOL operator!=(SIZE size) const { return !(*this == size); }
    void operator+=(SIZE size)
    {
        cx += size.cx;
        cy += size.cy;
    }
    void operator-=(SIZE size)
    {
        cx -= size.cx;
        cy -= size.cy;
    }

    CSize operator+(SIZE size) const { return CSize(cx + size.cx, cy + size.cy); }
    CSize operator-(SIZE size) const { return CSize(cx - size.cx, cy - size.cy); }
    CSize operator-() const { return CSize(-cx, -cy); }

    inline CPoint operator+(POINT point) const;
    inline CPoint operator-(POINT point) const;
    inline CRect operator+(const RECT* rect) const;
    inline CRect operator-(const RECT* rect) const;
};

class CPoint : public tagPOINT
{
public:
    CPoint() { x = y = 0; }
    CPoint(int initX, int initY)
    {
        x = initX;
        y = initY;
    }
    CPoint(POINT point) : tagPOINT(point) {}
    CPoint(SIZE size)
    {
        x = size.cx;
        y = size.cy;
    }
    // Low word: x, high word: y, both signed, as mouse messages pack them.
    CPoint(LPARAM packed)
    {
        x = static_cast<short>(LOWORD(packed));
        y = static_cast<short>(HIWORD(packed));
    }

    void SetPoint(int newX, int newY)
    {
        x = newX;
        y = newY;
    }
    void Offset(int xOffset, int yOffset)
    {
        x += xOffset;
        y += yOffset;
    }
    void Offset(POINT point) { Offset(point.x, point.y); }
    void Offset(SIZE size) { Offset(size.cx, size.cy); }
    BOOL operator==(POINT point) const { return x == point.x && y == point.y; }
    BOOL operator!=(POINT point) const { return !(*this == point); }
    void operator+=(SIZE size) { Offset(size); }
    void operator-=(SIZE size) { Offset(-size.cx, -size.cy); }
    void operator+=(POINT point) { Offset(point); }
    void operator-=(POINT point) { Offset(-point.x, -point.y); }

    CPoint operator+(SIZE size) const { return CPoint(x + size.cx, y + size.cy); }
    CPoint operator-(SIZE size) const { return CPoint(x - size.cx, y - size.cy); }
    CPoint operator-() const { return CPoint(-x, -y); }
    CPoint operator+(POINT point) const { return CPoint(x + point.x, y + point.y); }

    CSize operator-(POINT point) const { return CSize(x - point.x, y - point.y); }

    inline CRect operator+(const RECT* rect) const;
    inline CRect operator-(const RECT* rect) const;
};

class CRect : public tagRECT
{
public:
    CRect() { left = top = right = bottom = 0; }
    CRect(int l, int t, int r, int b) { SetRect(l, t, r, b); }
    CRect(const RECT& source) : tagRECT(source) {}
    CRect(LPCRECT source) : tagRECT(*source) {}
    CRect(POINT point, SIZE size) { SetRect(point.x, point.y, point.x + size.cx, point.y + size.cy); }
    CRect(POINT topLeft, POINT bottomRight) { SetRect(topLeft, bottomRight); }

    int Width() const { return right - left; }
    int Height() const { return bottom - top; }
    CSize Size() const { return CSize(Width(), Height()); }
    CPoint& TopLeft() { return *reinterpret_cast<CPoint*>(&left); }
    CPoint& BottomRight() { return *reinterpret_cast<CPoint*>(&right); }
    const CPoint& TopLeft() const { return *reinterpret_cast<const CPoint*>(&left); }
    const CPoint& BottomRight() const { return *reinterpret_cast<const CPoint*>(&right); }
    CPoint CenterPoint() const { return CPoint((left + right) / 2, (top + bottom) / 2); }
    void SwapLeftRight() { SwapLeftRight(this); }
    static void SwapLeftRight(LPRECT rect)
    {
        const LONG keep = rect->left;
        rect->left = rect->right;
        rect->right = keep;
    }

    operator LPRECT() { return this; }
    operator LPCRECT() const { return this; }

    BOOL IsRectEmpty() const { return ::IsRectEmpty(this); }
    BOOL IsRectNull() const { return left == 0 && right == 0 && top == 0 && bottom == 0; }
    BOOL PtInRect(POINT point) const { return ::PtInRect(this, point); }

    void SetRect(int x1, int y1, int x2, int y2)
    {
        left = x1;
        top = y1;
        right = x2;
        bottom = y2;
    }
    void SetRect(POINT topLeft, POINT bottomRight) { SetRect(topLeft.x, topLeft.y, bottomRight.x, bottomRight.y); }
    void SetRectEmpty() { SetRect(0, 0, 0, 0); }
    void CopyRect(LPCRECT source) { *static_cast<tagRECT*>(this) = *source; }
    BOOL EqualRect(LPCRECT rect) const { return ::EqualRect(this, rect); }

    void InflateRect(int x, int y) { InflateRect(x, y, x, y); }
    void InflateRect(SIZE size) { InflateRect(size.cx, size.cy); }
    void InflateRect(LPCRECT rect) { InflateRect(rect->left, rect->top, rect->right, rect->bottom); }
    void InflateRect(int l, int t, int r, int b) { SetRect(left - l, top - t, right + r, bottom + b); }
    void DeflateRect(int x, int y) { InflateRect(-x, -y); }
    void DeflateRect(SIZE size) { InflateRect(-size.cx, -size.cy); }
    void DeflateRect(LPCRECT rect) { DeflateRect(rect->left, rect->top, rect->right, rect->bottom); }
    void DeflateRect(int l, int t, int r, int b) { InflateRect(-l, -t, -r, -b); }

    void OffsetRect(int x, int y) { SetRect(left + x, top + y, right + x, bottom + y); }
    void OffsetRect(SIZE size) { OffsetRect(size.cx, size.cy); }
    void OffsetRect(POINT point) { OffsetRect(point.x, point.y); }
    void NormalizeRect()
    {
        if (left > right)
            SwapLeftRight();
        if (top > bottom)
            SetRect(left, bottom, right, top);
    }

    void MoveToY(int y) { OffsetRect(0, y - top); }
    void MoveToX(int x) { OffsetRect(x - left, 0); }
    void MoveToXY(int x, int y) { OffsetRect(x - left, y - top); }
    void MoveToXY(POINT point) { MoveToXY(point.x, point.y); }

    // Nonzero when the result is not empty; otherwise this rectangle becomes empty.
    BOOL IntersectRect(LPCRECT first, LPCRECT second) { return ::IntersectRect(this, first, second); }
    BOOL UnionRect(LPCRECT first, LPCRECT second) { return ::UnionRect(this, first, second); }
    // What is left of the first without the second, when that is a rectangle.
    BOOL SubtractRect(LPCRECT first, LPCRECT second) { return ::SubtractRect(this, first, second); }

    void operator=(const RECT& source) { CopyRect(&source); }
    BOOL operator==(const RECT& rect) const { return EqualRect(&rect); }
    BOOL operator!=(const RECT& rect) const { return !EqualRect(&rect); }
    void operator+=(POINT point) { OffsetRect(point); }
    void operator+=(SIZE size) { OffsetRect(size); }
    void operator+=(LPCRECT rect) { InflateRect(rect); }
    void operator-=(POINT point) { OffsetRect(-point.x, -point.y); }
    void operator-=(SIZE size) { OffsetRect(-size.cx, -size.cy); }
    void operator-=(LPCRECT rect) { DeflateRect(rect); }
    void operator&=(const RECT& rect) { ::IntersectRect(this, this, &rect); }
    void operator|=(const RECT& rect) { ::UnionRect(this, this, &rect); }

    CRect operator+(POINT point) const { return Changed(&CRect::operator+=, point); }
    CRect operator-(POINT point) const { return Changed(&CRect::operator-=, point); }
    CRect operator+(LPCRECT rect) const { return Changed(&CRect::operator+=, rect); }
    CRect operator+(SIZE size) const { return Changed(&CRect::operator+=, size); }
    CRect operator-(SIZE size) const { return Changed(&CRect::operator-=, size); }
    CRect operator-(LPCRECT rect) const { return Changed(&CRect::operator-=, rect); }
    CRect operator&(const RECT& rect) const
    {
        CRect result(*this);
        result &= rect;
        return result;
    }
    CRect operator|(const RECT& rect) const
    {
        CRect result(*this);
        result |= rect;
        return result;
    }
    CRect MulDiv(int multiplier, int divisor) const
    {
        return CRect(::MulDiv(left, multiplier, divisor), ::MulDiv(top, multiplier, divisor),
                     ::MulDiv(right, multiplier, divisor), ::MulDiv(bottom, multiplier, divisor));
    }

private:
    template<class By>
    CRect Changed(void (CRect::*change)(By), By by) const
    {
        CRect result(*this);
        (result.*change)(by);
        return result;
    }
};

inline CPoint CSize::operator+(POINT point) const
{
    return CPoint(cx + point.x, cy + point.y);
}

inline CPoint CSize::operator-(POINT point) const
{
    return CPoint(cx - point.x, cy - point.y);
}

inline CRect CSize::operator+(const RECT* rect) const
{
    return CRect(rect) + *this;
}

inline CRect CSize::operator-(const RECT* rect) const
{
    return CRect(rect) - *this;
}

inline CRect CPoint::operator+(const RECT* rect) const
{
    return CRect(rect) + *this;
}

inline CRect CPoint::operator-(const RECT* rect) const
{
    return CRect(rect) - *this;
}
