#include "editor/edit_box.h"

#include <algorithm>
#include <cmath>

namespace qvx {
namespace {

constexpr double kSmallestExtent = 1e-6;  // drawing units
// Beyond it the arithmetic of boxes could overflow; no view shows anything there.
constexpr LONG kFarthestPixel = 1 << 28;
constexpr double kHalfWidthByHeight = 0.8;  // of the first box
constexpr double kPartOfScreen = 0.75;      // that a line may take
constexpr int kDefaultScreen = 1920, kLargestScreen = 4800;
constexpr int kExtraWidth = 18, kExtraHeight = 5;  // for borders, margins and the caret
constexpr int kSmallestWidth = 24;
constexpr int kMargin = 5;  // between the box and the edges of its parent

LONG NearPixel(LONG pixel) { return std::clamp(pixel, -kFarthestPixel, kFarthestPixel); }
LONG Width(const RECT& r) { return r.right - r.left; }
LONG Height(const RECT& r) { return r.bottom - r.top; }
void MoveBy(RECT& box, LONG dx, LONG dy) {
  box.left += dx;
  box.right += dx;
  box.top += dy;
  box.bottom += dy;
}

// Split at line feeds. A line feed at the end begins another line, which has the height of a
// letter.
SIZE SizeOfLines(std::wstring_view text, TextMeasure& measure) {
  std::vector<std::wstring_view> lines{L"a"};
  for (size_t start = 0; start < text.size();) {
    const size_t end = std::min(text.find(L'\n', start), text.size());
    lines.push_back(text.substr(start, end - start));
    start = end + 1;
  }
  const std::vector<SIZE> sizes = measure.MeasureAll(lines, MeasureFont::kBox);
  const LONG letter = sizes[0].cy;
  LONG width = 0;
  long long height = text.back() == L'\n' ? letter : 0;
  for (size_t i = 1; i < sizes.size(); ++i) {
    width = std::max(width, sizes[i].cx);
    height += sizes[i].cy < 1 ? letter : sizes[i].cy;
  }
  return {width, static_cast<LONG>(std::min<long long>(height, kFarthestPixel))};
}

}  // namespace

BoxParent ParentOfBox(double hostVersion) {
  return hostVersion > kLastHostWithMovingBox && hostVersion < kFirstHostWithBoxInView
             ? BoxParent::kFrame
             : BoxParent::kView;
}

bool HasUsableExtent(const AcGePoint3d& lower, const AcGePoint3d& upper) {
  return lower.distanceTo(upper) >= kSmallestExtent && lower.x <= upper.x;
}

TextPlace PlaceOfText(POINT lower, POINT upper) {
  const POINT a{NearPixel(lower.x), NearPixel(lower.y)}, b{NearPixel(upper.x), NearPixel(upper.y)};
  const RECT box{std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x), std::max(a.y, b.y)};
  return {box, CentreOf(box)};
}

RECT FirstBox(POINT centre, int letterHeight) {
  const double half = kHalfWidthByHeight * letterHeight;
  return {static_cast<LONG>(std::trunc(centre.x - half)), centre.y - letterHeight / 2,
          static_cast<LONG>(std::trunc(centre.x + half)), centre.y + letterHeight / 2};
}

RECT WithLeftEdgeAt(const RECT& box, LONG left) {
  return {left, box.top, left + Width(box), box.bottom};
}

int WidthLimit(double screenWidth) {
  // The bounds of the integer part, so that any number can be compared.
  const bool isUsable = screenWidth >= 1 && screenWidth < kLargestScreen + 1;
  return static_cast<int>(kPartOfScreen *
                          (isUsable ? static_cast<int>(screenWidth) : kDefaultScreen));
}

bool Contains(const RECT& area, POINT point) {
  return point.x >= area.left && point.x < area.right && point.y >= area.top &&
         point.y < area.bottom;
}

POINT CentreOf(const RECT& box) { return {(box.left + box.right) / 2, (box.top + box.bottom) / 2}; }

SIZE NeededSize(const std::wstring& text, bool byLines, SIZE parent, TextMeasure& measure) {
  SIZE size;
  if (text.empty())
    size = measure.Measure(L"a", MeasureFont::kBox);
  else if (byLines)
    size = SizeOfLines(text, measure);
  else
    size = measure.Measure(text, MeasureFont::kBox);
  return {std::min<LONG>(std::max<LONG>(size.cx + kExtraWidth, kSmallestWidth),
                         parent.cx - 2 * kMargin),
          std::min<LONG>(size.cy + kExtraHeight, parent.cy - 2 * kMargin)};
}

RECT GrownBox(const RECT& box, SIZE needed, bool centre) {
  const LONG wider = std::max<LONG>(needed.cx - Width(box), 0);
  const LONG higher = std::max<LONG>(needed.cy - Height(box), 0);
  const LONG before = centre ? wider / 2 : 0, above = centre ? higher / 2 : 0;
  return {box.left - before, box.top - above, box.right + wider - before,
          box.bottom + higher - above};
}

RECT ShiftedInside(const RECT& box, const RECT& parent) {
  RECT inside = box;
  MoveBy(inside, std::max<LONG>(parent.left + kMargin - inside.left, 0), 0);
  MoveBy(inside, -std::max<LONG>(inside.right - (parent.right - kMargin), 0), 0);
  MoveBy(inside, 0, std::max<LONG>(parent.top + kMargin - inside.top, 0));
  MoveBy(inside, 0, -std::max<LONG>(inside.bottom - (parent.bottom - kMargin), 0));
  return inside;
}

std::optional<RECT> BoxWithLineMore(const RECT& box, int letterHeight, const RECT& parent) {
  if (Height(box) + letterHeight > Height(parent) - 2 * kMargin) return std::nullopt;
  return RECT{box.left, box.top, box.right, box.bottom + letterHeight};
}

RECT CentredBox(const RECT& box, POINT centre) {
  const LONG left = centre.x - Width(box) / 2, top = centre.y - Height(box) / 2;
  return {left, top, left + Width(box), top + Height(box)};
}

bool IsSameBox(const RECT& a, const RECT& b) {
  return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
}

}  // namespace qvx
