// CSize, CPoint and CRect: the structures of Windows with arithmetic. Header-only and without
// window calls, so both builds use it. Only the operators and members in use are offered; none
// normalizes a rectangle implicitly.
#pragma once

#include "afxv_w32.h"

#include <algorithm>

class CRect;

class CSize : public SIZE {
 public:
  CSize() { cx = cy = 0; }
  CSize(int x, int y) { cx = x, cy = y; }
  CSize(SIZE size) : SIZE(size) {}
  // Low word width, high word height, both signed: sizes as packed in messages.
  explicit CSize(DWORD packed) {
    cx = static_cast<short>(packed & 0xFFFF), cy = static_cast<short>(packed >> 16);
  }

  BOOL operator==(SIZE o) const { return cx == o.cx && cy == o.cy; }
  BOOL operator!=(SIZE o) const { return cx != o.cx || cy != o.cy; }
  void operator+=(SIZE o) { cx += o.cx, cy += o.cy; }
  void operator-=(SIZE o) { cx -= o.cx, cy -= o.cy; }
  CSize operator+(SIZE o) const { return CSize(cx + o.cx, cy + o.cy); }
  CSize operator-(SIZE o) const { return CSize(cx - o.cx, cy - o.cy); }
  CSize operator-() const { return CSize(-cx, -cy); }
};

class CPoint : public POINT {
 public:
  CPoint() { x = y = 0; }
  CPoint(int px, int py) { x = px, y = py; }
  CPoint(POINT point) : POINT(point) {}
  // Low word x, high word y, both signed: coordinates left of the primary screen are negative.
  explicit CPoint(LPARAM packed) {
    x = static_cast<short>(packed & 0xFFFF), y = static_cast<short>((packed >> 16) & 0xFFFF);
  }

  void Offset(int dx, int dy) { x += dx, y += dy; }
  void Offset(POINT o) { x += o.x, y += o.y; }
  void Offset(SIZE o) { x += o.cx, y += o.cy; }
  void SetPoint(int px, int py) { x = px, y = py; }

  BOOL operator==(POINT o) const { return x == o.x && y == o.y; }
  BOOL operator!=(POINT o) const { return x != o.x || y != o.y; }
  void operator+=(SIZE o) { x += o.cx, y += o.cy; }
  void operator-=(SIZE o) { x -= o.cx, y -= o.cy; }
  void operator+=(POINT o) { x += o.x, y += o.y; }
  void operator-=(POINT o) { x -= o.x, y -= o.y; }
  CPoint operator+(SIZE o) const { return CPoint(x + o.cx, y + o.cy); }
  CPoint operator-(SIZE o) const { return CPoint(x - o.cx, y - o.cy); }
  CPoint operator+(POINT o) const { return CPoint(x + o.x, y + o.y); }
  CPoint operator-() const { return CPoint(-x, -y); }
  // The difference of two points is a size.
  CSize operator-(POINT o) const { return CSize(x - o.x, y - o.y); }
};

class CRect : public RECT {
 public:
  CRect() { left = top = right = bottom = 0; }
  CRect(int l, int t, int r, int b) { left = l, top = t, right = r, bottom = b; }
  CRect(const RECT& r) : RECT(r) {}
  CRect(const RECT* r) : RECT(*r) {}
  CRect(POINT corner, SIZE size) {
    left = corner.x, top = corner.y, right = corner.x + size.cx, bottom = corner.y + size.cy;
  }
  CRect(POINT topLeft, POINT bottomRight) {
    left = topLeft.x, top = topLeft.y, right = bottomRight.x, bottom = bottomRight.y;
  }

  int Width() const { return right - left; }
  int Height() const { return bottom - top; }
  CSize Size() const { return CSize(Width(), Height()); }
  CPoint& TopLeft() { return *reinterpret_cast<CPoint*>(&left); }
  CPoint& BottomRight() { return *reinterpret_cast<CPoint*>(&right); }
  CPoint TopLeft() const { return CPoint(left, top); }
  CPoint BottomRight() const { return CPoint(right, bottom); }
  CPoint CenterPoint() const { return CPoint((left + right) / 2, (top + bottom) / 2); }

  operator RECT*() { return this; }
  operator const RECT*() const { return this; }

  bool IsRectEmpty() const { return left >= right || top >= bottom; }
  bool IsRectNull() const { return left == 0 && right == 0 && top == 0 && bottom == 0; }
  // Right and bottom edge are outside.
  bool PtInRect(POINT p) const { return p.x >= left && p.x < right && p.y >= top && p.y < bottom; }

  void SetRect(int l, int t, int r, int b) { left = l, top = t, right = r, bottom = b; }
  void SetRectEmpty() { left = top = right = bottom = 0; }
  void CopyRect(const RECT* r) { *static_cast<RECT*>(this) = *r; }
  bool EqualRect(const RECT* r) const {
    return left == r->left && top == r->top && right == r->right && bottom == r->bottom;
  }

  void InflateRect(int dx, int dy) { left -= dx, right += dx, top -= dy, bottom += dy; }
  void InflateRect(SIZE s) { InflateRect(s.cx, s.cy); }
  void InflateRect(const RECT* r) { InflateRect(r->left, r->top, r->right, r->bottom); }
  void InflateRect(int l, int t, int r, int b) { left -= l, top -= t, right += r, bottom += b; }
  void DeflateRect(int dx, int dy) { InflateRect(-dx, -dy); }
  void DeflateRect(SIZE s) { InflateRect(-s.cx, -s.cy); }
  void DeflateRect(const RECT* r) { InflateRect(-r->left, -r->top, -r->right, -r->bottom); }
  void DeflateRect(int l, int t, int r, int b) { InflateRect(-l, -t, -r, -b); }
  void OffsetRect(int dx, int dy) { left += dx, right += dx, top += dy, bottom += dy; }
  void OffsetRect(SIZE s) { OffsetRect(s.cx, s.cy); }
  void OffsetRect(POINT p) { OffsetRect(p.x, p.y); }
  void MoveToXY(int x, int y) { OffsetRect(x - left, y - top); }
  void MoveToXY(POINT p) { MoveToXY(p.x, p.y); }
  void NormalizeRect() {
    if (left > right) std::swap(left, right);
    if (top > bottom) std::swap(top, bottom);
  }

  // An empty intersection sets the null rectangle and returns false.
  bool IntersectRect(const RECT* a, const RECT* b) {
    CRect r(std::max(a->left, b->left), std::max(a->top, b->top), std::min(a->right, b->right),
            std::min(a->bottom, b->bottom));
    if (r.IsRectEmpty()) r.SetRectEmpty();
    *this = r;
    return !IsRectEmpty();
  }
  // Empty rectangles are ignored.
  bool UnionRect(const RECT* a, const RECT* b) {
    CRect first(a), second(b);
    if (first.IsRectEmpty())
      *this = second.IsRectEmpty() ? CRect() : second;
    else if (second.IsRectEmpty())
      *this = first;
    else
      SetRect(std::min(first.left, second.left), std::min(first.top, second.top),
              std::max(first.right, second.right), std::max(first.bottom, second.bottom));
    return !IsRectEmpty();
  }

  BOOL operator==(const RECT& r) const { return EqualRect(&r); }
  BOOL operator!=(const RECT& r) const { return !EqualRect(&r); }
  void operator+=(POINT p) { OffsetRect(p); }
  void operator+=(SIZE s) { OffsetRect(s); }
  void operator-=(POINT p) { OffsetRect(-p.x, -p.y); }
  void operator-=(SIZE s) { OffsetRect(-s.cx, -s.cy); }
  CRect operator+(POINT p) const {
    CRect r(*this);
    r.OffsetRect(p);
    return r;
  }
  CRect operator-(POINT p) const {
    CRect r(*this);
    r.OffsetRect(-p.x, -p.y);
    return r;
  }
  CRect operator&(const RECT& o) const {
    CRect r;
    r.IntersectRect(this, &o);
    return r;
  }
  CRect operator|(const RECT& o) const {
    CRect r;
    r.UnionRect(this, &o);
    return r;
  }
  void operator&=(const RECT& o) { *this = *this & o; }
  void operator|=(const RECT& o) { *this = *this | o; }
};
