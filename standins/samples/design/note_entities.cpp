#include "note_entities.h"

#include <algorithm>
#include <cmath>
#include <cwchar>
#include <utility>

#include "kernel/entities/class_registration.h"
#include "kernel/entities/measured_text.h"

AcGePoint3d AnchorOf(const QvxDbEntity& note, const NoteDesign& design, NoteText::Anchor anchor) {
  std::vector<AcGePoint3d> points = {note.start, note.end};
  if (design.hasOutline) points = note.outline;
  if (points.empty()) return {};
  if (anchor == NoteText::Anchor::Start) return points.front();
  if (anchor == NoteText::Anchor::End) return points.back();
  AcDbExtents box;
  for (const AcGePoint3d& point : points) box.addPoint(point);
  return box.minPoint() + (box.maxPoint() - box.minPoint()) * 0.5;
}

namespace {

QvxTextPlace PlaceOf(const QvxDbEntity& note, const NoteDesign& design, const NoteText& text,
                     int slot, double factor) {
  const AcGeVector3d along(std::cos(note.angle), std::sin(note.angle), 0), up(-along.y, along.x, 0);
  QvxTextPlace place;
  place.text = note.Stored(slot);
  if (design.isMeasured && place.text.empty()) place.text = MeasuredLength(note);
  place.height = text.height * factor;
  place.angle = note.angle;
  const double drop = text.step * (slot - text.slot),
               left = text.centred ? place.TextWidth() / 2 : 0,
               below = text.centred ? place.height / 2 : 0;
  place.at = AnchorOf(note, design, text.anchor) + along * (text.x * factor - left) +
             up * ((text.y - drop) * factor - below);
  place.slot = slot;
  place.menu = design.menu;
  return place;
}

}  // namespace

std::vector<QvxTextPlace> NoteTexts(const QvxDbEntity& note, const NoteDesign& design,
                                    double factor) {
  std::vector<QvxTextPlace> places;
  if (design.hasOutline && note.outline.empty()) return places;
  for (const NoteText& text : design.texts) {
    const int last =
        text.step != 0 ? std::max(text.slot, static_cast<int>(note.cells.size())) : text.slot;
    for (int slot = text.slot; slot <= last; ++slot)
      places.push_back(PlaceOf(note, design, text, slot, factor));
  }
  return places;
}

std::wstring MeasuredLength(const QvxDbEntity& note) {
  wchar_t text[400];
  std::swprintf(text, 400, L"R%.0f", note.start.distanceTo(note.end));
  return text;
}

template <class Interface>
void QvxDbNote<Interface>::ChangeText(int index, const std::wstring& text) {
  QvxDbEntity::ChangeText(index,
                          Design().isMeasured ? OwnTextOf(text, MeasuredLength(*this)) : text);
}

template class QvxDbNote<TDbEntity>;
template class QvxDbNote<TDbCurveEntity>;

namespace {

template <int... Kind>
void Register(std::integer_sequence<int, Kind...>) {
  RegisterClasses<QvxDbNoteOf<Kind>...>();
}
template <int... Kind>
void Remove(std::integer_sequence<int, Kind...>) {
  RemoveClasses<QvxDbNoteOf<Kind>...>();
}
using AllKinds = std::make_integer_sequence<int, kNoteKinds>;

}  // namespace

void BeginNoteEntities() { Register(AllKinds()); }
void EndNoteEntities() { Remove(AllKinds()); }
