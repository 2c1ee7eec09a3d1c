#pragma once
// Points, sizes and rectangles in pixels, as values.

#include "windef.h"

class CSize : public tagSIZE
{
public:
    CSize() : tagSIZE{0, 0} {}
    CSize(int width, int height) : tagSIZE{width, height} {}
    CSize(SIZE size) : tagSIZE(size) {}
    bool operator==(const SIZE& other) const { return cx == other.cx && cy == other.cy; }
};

class CPoint : public tagPOINT
{
public:
    CPoint() : tagPOINT{0, 0} {}
    CPoint(int left, int top) : tagPOINT{left, top} {}
    CPoint(POINT point) : tagPOINT(point) {}
    bool operator==(const POINT& other) const { return x == other.x && y == other.y; }
};

class CRect : public tagRECT
{
public:
    CRect() : tagRECT{0, 0, 0, 0} {}
    CRect(int l, int t, int r, int b) : tagRECT{l, t, r, b} {}
    CRect(const RECT& rect) : tagRECT(rect) {}
    CRect(POINT origin, SIZE size) : tagRECT{origin.x, origin.y, origin.x + size.cx, origin.y + size.cy} {}

    int Width() const { return right - left; }
    int Height() const { return bottom - top; }
    CSize Size() const { return {Width(), Height()}; }
    CPoint TopLeft() const { return {left, top}; }
    CPoint CenterPoint() const { return {(left + right) / 2, (top + bottom) / 2}; }
    BOOL IsRectEmpty() const { return left >= right || top >= bottom; }
    BOOL PtInRect(POINT point) const
    {
        return point.x >= left && point.x < right && point.y >= top && point.y < bottom;
    }
    void SetRect(int l, int t, int r, int b) { *static_cast<RECT*>(this) = RECT{l, t, r, b}; }
    void SetRectEmpty() { SetRect(0, 0, 0, 0); }
    void OffsetRect(int x, int y) { SetRect(left + x, top + y, right + x, bottom + y); }
    void InflateRect(int x, int y) { SetRect(left - x, top - y, right + x, bottom + y); }
    void DeflateRect(int x, int y) { InflateRect(-x, -y); }
    bool operator==(const RECT& other) const
    {
        return left == other.left && top == other.top && right == other.right && bottom == other.bottom;
    }
    operator LPRECT() { return this; }
    operator LPCRECT() const { return this; }
};
