// Annotations with texts beside their geometry; see the header.
#include "annotation_entities.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <thread>

#include "annotation_shapes.h"
#include "kernel/entities/class_registration.h"
#include "kernel/entities/edit_routines.h"
#include "note_entities.h"

ACRX_DXF_DEFINE_MEMBERS(QvxDbSheet, QvxDbEntity, 0, 0, 0, QVX_SHEET, qvx_design)
ACRX_DXF_DEFINE_MEMBERS(QvxDbDrawingIndex, QvxDbEntity, 0, 0, 0, QVX_DRAWINGINDEX, qvx_design)
ACRX_DXF_DEFINE_MEMBERS(QvxDbIndexPointer, QvxDbEntity, 0, 0, 0, QVX_INDEXPOINTER, qvx_design)
ACRX_DXF_DEFINE_MEMBERS(QvxDbAxisLabel, QvxDbEntity, 0, 0, 0, QVX_AXIS_LABEL, qvx_design)
ACRX_DXF_DEFINE_MEMBERS(QvxDbSlow, QvxDbEntity, 0, 0, 0, QVX_SLOW, qvx_design)

namespace {

// mm at the default scale
constexpr double kRowHeight = 1000, kTextHeight = 500;
constexpr double kLabelWidth = 1500;
constexpr int kMostDelay = 10000;  // ms
constexpr int kMostCells = 10000;  // of a table; a damaged file may have billions

// A cell of a table: its place is the whole cell but for the frame.
QvxTextPlace Cell(const AcGePoint3d& lowerLeft, double width, double height, double indent,
                  const QvxDbEntity& table, int slot, int menu) {
  const double letters = std::min(kTextHeight * height / kRowHeight, height);
  QvxTextPlace place;
  place.text = table.Stored(slot);
  place.at = {lowerLeft.x + indent, lowerLeft.y + (height - letters) / 2, 0};
  place.height = letters;
  place.width = width - 2 * indent;
  place.slot = slot;
  place.menu = menu;
  return place;
}

}  // namespace

int QvxDbSheet::Columns() const { return std::clamp(kind, 1, kMostCells); }
int QvxDbSheet::Rows() const { return std::clamp(flags, 1, kMostCells / Columns()); }

// Rows from the top, each from the left.
std::vector<QvxTextPlace> QvxDbSheet::TextPlaces() const {
  const double f = ScaleFactor(), wide = width * f, high = size * f;
  std::vector<QvxTextPlace> places;
  for (int i = 0; i < Columns() * Rows(); ++i) {
    const AcGePoint3d corner(start.x + wide * (i % Columns()), start.y - high * (i / Columns() + 1),
                             0);
    places.push_back(Cell(corner, wide, high, high / 4, *this, i + 1, kTableCell));
  }
  return places;
}

int QvxDbSheet::NextSubText(int index, bool vertical, bool backward) const {
  const int next = index + (vertical ? Columns() : 1) * (backward ? -1 : 1);
  return next >= 0 && next < Columns() * Rows() ? next : -1;
}

bool QvxDbSheet::subWorldDraw(AcGiWorldDraw* draw) const {
  const double f = ScaleFactor(), wide = width * f, high = size * f;
  const AcGePoint3d far(start.x + wide * Columns(), start.y - high * Rows(), 0);
  for (int row = 0; row <= Rows(); ++row)
    DrawLine(draw, {start.x, start.y - high * row, 0}, {far.x, start.y - high * row, 0});
  for (int column = 0; column <= Columns(); ++column)
    DrawLine(draw, {start.x + wide * column, start.y, 0}, {start.x + wide * column, far.y, 0});
  DrawTexts(draw, TextPlaces());
  return true;
}

// The heading, then a row for each cell.
std::vector<QvxTextPlace> QvxDbDrawingIndex::TextPlaces() const {
  std::vector<QvxTextPlace> places;
  for (int row = 0; row <= static_cast<int>(cells.size()); ++row)
    places.push_back(Cell({start.x, start.y - size * (row + 1), 0}, width, size, size / 4, *this,
                          row, kSymbolText));
  return places;
}

bool QvxDbDrawingIndex::subWorldDraw(AcGiWorldDraw* draw) const {
  for (std::size_t i = 0; i <= cells.size(); ++i) {
    const double top = start.y - size * static_cast<double>(i);
    DrawBox(draw, {start.x, top - size, 0}, {start.x + width, top, 0});
  }
  DrawTexts(draw, TextPlaces());
  return true;
}

std::vector<QvxTextPlace> QvxDbIndexPointer::TextPlaces() const {
  const double radius = width * ScaleFactor();
  QvxTextPlace inside = QvxTextPlace::Around(end, radius, label), above;
  above.text = Stored(1);
  above.height = radius;
  above.width = kLabelWidth * ScaleFactor();
  above.at = {end.x + radius, end.y + radius * 2, 0};
  above.slot = 1;
  inside.menu = above.menu = kSymbolText;
  return {inside, above};
}

bool QvxDbIndexPointer::subWorldDraw(AcGiWorldDraw* draw) const {
  const double radius = width * ScaleFactor();
  DrawLine(draw, start, end);
  draw->geometry().circle(end, radius, AcGeVector3d::kZAxis);
  DrawLine(draw, {end.x + radius, end.y, 0},
           {end.x + radius + kLabelWidth * ScaleFactor(), end.y, 0});
  DrawTexts(draw, TextPlaces());
  return true;
}

// One place beyond each end, wider than its text. The text is the same; an empty one can be clicked
// too.
std::vector<QvxTextPlace> QvxDbAxisLabel::TextPlaces() const {
  const double f = ScaleFactor(), wide = kLabelWidth * f;
  const AcGeVector3d along = (end - start).normal();
  std::vector<QvxTextPlace> places;
  for (const AcGePoint3d& middle : {start + along * -size, end + along * size}) {
    QvxTextPlace place = {
        label, {middle.x - wide / 2, middle.y - kTextHeight * f / 2, 0}, kTextHeight * f, 0, wide};
    place.menu = kAxisName;
    places.push_back(place);
  }
  return places;
}

bool QvxDbAxisLabel::subWorldDraw(AcGiWorldDraw* draw) const {
  DrawLine(draw, start, end);
  DrawTexts(draw, TextPlaces());
  return true;
}

TTextOwner::EditFunction QvxDbDrawingIndex::GetEditFunction() const { return EditTexts; }
TTextOwner::EditFunction QvxDbIndexPointer::GetEditFunction() const { return EditTexts; }

bool QvxDbSlow::AcceptsPointer(const AcGePoint3d&) const {
  std::this_thread::sleep_for(std::chrono::milliseconds(std::clamp(kind, 0, kMostDelay)));
  return true;
}

bool QvxDbSlow::subWorldDraw(AcGiWorldDraw* draw) const {
  DrawBox(draw, start, end);
  return true;
}

void BeginAnnotationEntities() {
  RegisterClasses<QvxDbSheet, QvxDbDrawingIndex, QvxDbIndexPointer, QvxDbAxisLabel, QvxDbSlow>();
  BeginNoteEntities();
  acrxBuildClassHierarchy();
}

void EndAnnotationEntities() {
  EndNoteEntities();
  RemoveClasses<QvxDbSlow, QvxDbAxisLabel, QvxDbIndexPointer, QvxDbDrawingIndex, QvxDbSheet>();
}
