// Places of texts; see the header.
#include "kernel/text_place.h"

#include <algorithm>
#include <cmath>

#include "acgi.h"
#include "kernel/drawn_text.h"
#include "kernel/tdbentity.h"
#include "kernel/text_lines.h"
#include "kernel/text_sequences.h"

namespace {

constexpr double kLineStep = 5.0 / 3;  // from line to line, in text heights
constexpr double kTurn = 6.283185307179586;

// Coordinates along a turned text.
struct TextAxes {
  explicit TextAxes(const QvxTextPlace& place)
      : at(place.at), along(std::cos(place.angle), std::sin(place.angle), 0) {}
  AcGePoint3d Point(double x, double y) const {
    return at + along * x + AcGeVector3d(-along.y, along.x, 0) * y;
  }

  AcGePoint3d at;
  AcGeVector3d along;
};

void DrawPiece(AcGiWorldGeometry& geometry, const TextAxes& axes, const TextPiece& piece,
               double lineY) {
  const AcGePoint3d at = axes.Point(piece.x, lineY + piece.y);
  const AcGePoint3d ends[2] = {at, axes.Point(piece.endX, lineY + piece.endY)};
  switch (piece.kind) {
    case TextPiece::Kind::Text:
      geometry.text(at, AcGeVector3d::kZAxis, axes.along, piece.size, 1, 0, piece.text.c_str());
      break;
    case TextPiece::Kind::Ring:
      geometry.circularArc(at, piece.size, AcGeVector3d::kZAxis, axes.along, kTurn);
      break;
    case TextPiece::Kind::Stroke:
      geometry.polyline(2, ends);
      break;
  }
}

}  // namespace

std::vector<std::wstring> QvxTextPlace::Lines() const {
  if (!multiLine) return {text};
  std::vector<std::wstring> lines;
  for (const std::wstring& line : LinesOf(text))
    for (std::wstring& part : WrapTextLine(line, height > 0 ? wrap / height : 0))
      lines.push_back(std::move(part));
  return lines;
}

double QvxTextPlace::TextWidth() const {
  double widest = 0;
  for (const std::wstring& line : Lines())
    widest = std::max(widest, LayOutText(line, height).width);
  return widest;
}

AcDbExtents QvxTextPlace::Extents() const {
  AcDbExtents box;
  const double wide = TextWidth();
  if (!(wide > 0)) return box;
  const TextAxes axes(*this);
  const double below = kLineStep * height * static_cast<double>(Lines().size() - 1);
  for (const double x : {0.0, wide})
    for (const double y : {-below, height}) box.addPoint(axes.Point(x, y));
  return box;
}

bool QvxTextPlace::Contains(const AcGePoint3d& p) const {
  QvxTextPlace whole = *this;
  whole.width = std::max(width, TextWidth());
  return whole.IsInside(p);
}

bool QvxTextPlace::IsInside(const AcGePoint3d& p) const {
  const AcGeVector3d way = p - at;
  const double x = way.x * std::cos(angle) + way.y * std::sin(angle),
               y = way.y * std::cos(angle) - way.x * std::sin(angle);
  const double below = kLineStep * height * static_cast<double>(Lines().size() - 1);
  return x >= 0 && y >= -below && x <= width && y <= height;
}

void QvxTextPlace::Draw(AcGiWorldDraw* draw) const {
  const TextAxes axes(*this);
  double y = 0;
  for (const std::wstring& line : Lines()) {
    for (const TextPiece& piece : LayOutText(line, height).pieces)
      DrawPiece(draw->geometry(), axes, piece, y);
    y -= kLineStep * height;
  }
}

QvxTextPlace QvxTextPlace::Around(const AcGePoint3d& middle, double height,
                                  const std::wstring& text) {
  QvxTextPlace place;
  place.text = text;
  place.height = height;
  place.at = {middle.x - place.TextWidth() / 2, middle.y - height / 2, 0};
  return place;
}

void DrawTexts(AcGiWorldDraw* draw, const std::vector<QvxTextPlace>& places) {
  for (const QvxTextPlace& place : places) place.Draw(draw);
}

TTextOwner* TextOwnerOf(const AcRxObject* object) {
  if (TDbEntity* entity = TDbEntity::cast(object)) return entity;
  return TDbCurveEntity::cast(object);
}

bool TextPlaceOf(const AcDbEntity& entity, long index, QvxTextPlace& place) {
  const TTextOwner* owner = TextOwnerOf(&entity);
  if (!owner) return index == 0 && DrawnTextOf(entity, place);
  const std::vector<QvxTextPlace> places = owner->SubTexts();
  if (index < 0 || index >= static_cast<long>(places.size())) return false;
  place = places[index];
  return true;
}

void ChangeTextOf(AcDbEntity& entity, long index, const std::wstring& typed) {
  TTextOwner* owner = TextOwnerOf(&entity);
  QvxTextPlace place;
  if (!TextPlaceOf(entity, index, place)) return;
  const std::wstring text = TextToStore(typed, place.multiLine);
  if (owner)
    owner->ChangeSubText(static_cast<int>(index), text);
  else
    ChangeDrawnText(entity, text);
}
