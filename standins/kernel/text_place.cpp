// Places of texts; see the header.
#include "kernel/text_place.h"

#include <algorithm>
#include <cmath>

#include "kernel/entities/qvx_entity.h"

// The widths that hosts draw their text with: a square for ideographs, less for letters.
double QvxTextPlace::TextWidth() const {
  double units = 0;
  for (wchar_t c : text) units += c >= 0x2E80 ? 1.0 : 0.6;
  return units * height;
}

AcDbExtents QvxTextPlace::Extents() const {
  AcDbExtents box;
  const double wide = TextWidth();
  if (!(wide > 0)) return box;
  const AcGeVector3d along(std::cos(angle), std::sin(angle), 0), up(-along.y, along.x, 0);
  for (double x : {0.0, wide})
    for (double y : {0.0, height}) box.addPoint(at + along * x + up * y);
  return box;
}

bool QvxTextPlace::Contains(const AcGePoint3d& p) const {
  const AcGeVector3d way = p - at;
  const double x = way.x * std::cos(angle) + way.y * std::sin(angle),
               y = way.y * std::cos(angle) - way.x * std::sin(angle);
  return x >= 0 && y >= 0 && x <= std::max(width, TextWidth()) && y <= height;
}

QvxTextPlace QvxTextPlace::Around(const AcGePoint3d& middle, double height,
                                  const std::wstring& text) {
  QvxTextPlace place;
  place.text = text;
  place.height = height;
  place.at = {middle.x - place.TextWidth() / 2, middle.y - height / 2, 0};
  return place;
}

bool TextPlaceOf(const AcDbEntity& entity, long index, QvxTextPlace& place) {
  if (const QvxDbEntity* object = QvxDbEntity::cast(&entity)) {
    const std::vector<QvxTextPlace> places = object->TextPlaces();
    if (index < 0 || index >= static_cast<long>(places.size())) return false;
    place = places[index];
    return true;
  }
  const AcDbText* text = AcDbText::cast(&entity);
  if (!text || index != 0) return false;
  place = {text->textStringConst(), text->position(), text->height(), text->rotation(), 0};
  return true;
}
