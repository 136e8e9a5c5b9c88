#include "kernel/entities/tdbinsight.h"

#include <cmath>
#include <numbers>

#include "kernel/entities/edit_routines.h"

ACRX_DXF_DEFINE_MEMBERS(TDbInSight, QvxDbEntity, 0, 0, 0, QVX_TDBINSIGHT, qvx_kernal)

namespace {

constexpr int kSides = 4;
constexpr double kTextRadius = 1.6;  // of the numbers, in radii of the circle
constexpr double kRowRadius = 2.6;   // of the row of further numbers

AcGePoint3d PlaceOf(int index, const AcGePoint3d& middle, double radius) {
  if (index >= kSides)
    return {middle.x + (index - kSides) * radius, middle.y - kRowRadius * radius, 0};
  const double angle = index * std::numbers::pi / 2;
  return {middle.x + kTextRadius * radius * std::cos(angle),
          middle.y + kTextRadius * radius * std::sin(angle), 0};
}

}  // namespace

std::vector<QvxTextPlace> TDbInSight::TextPlaces() const {
  const double radius = width * ScaleFactor();
  std::vector<QvxTextPlace> places;
  for (std::size_t i = 0; i < cells.size(); ++i) {
    const int index = static_cast<int>(i);
    places.push_back(QvxTextPlace::Around(PlaceOf(index, start, radius), radius * 0.8, cells[i]));
    places.back().slot = index + 1;
    places.back().menu = kSymbolText;
  }
  return places;
}

void TDbInSight::ChangeText(int index, const std::wstring& text) {
  if (index < 0 || index >= static_cast<int>(cells.size())) return;
  if (text.empty())
    cells.erase(cells.begin() + index);
  else
    cells[index] = text;
}

TDbInSight::EditFunction TDbInSight::GetEditFunction() const { return EditTexts; }

bool TDbInSight::subWorldDraw(AcGiWorldDraw* draw) const {
  draw->geometry().circle(start, width * ScaleFactor(), AcGeVector3d::kZAxis);
  DrawTexts(draw, TextPlaces());
  return true;
}
