// Annotations with texts beside their geometry; see the header.
#include "annotation_entities.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <thread>

#include "kernel/entities/class_registration.h"

ACRX_DXF_DEFINE_MEMBERS(QvxDbSheet, QvxDbEntity, 0, 0, 0, QVX_SHEET, qvx_design)
ACRX_DXF_DEFINE_MEMBERS(QvxDbDrawingIndex, QvxDbEntity, 0, 0, 0, QVX_DRAWINGINDEX, qvx_design)
ACRX_DXF_DEFINE_MEMBERS(QvxDbIndexPointer, QvxDbEntity, 0, 0, 0, QVX_INDEXPOINTER, qvx_design)
ACRX_DXF_DEFINE_MEMBERS(QvxDbAxisLabel, QvxDbEntity, 0, 0, 0, QVX_AXIS_LABEL, qvx_design)
ACRX_DXF_DEFINE_MEMBERS(QvxDbSlow, QvxDbEntity, 0, 0, 0, QVX_SLOW, qvx_design)

namespace {

// mm at the default scale
constexpr double kBlockWidth = 18000, kRowHeight = 1000, kTextHeight = 500, kIndent = 250;
constexpr double kLabelWidth = 1500;
constexpr int kMostDelay = 10000;  // ms

void Line(AcGiWorldDraw* draw, const AcGePoint3d& a, const AcGePoint3d& b) {
  const AcGePoint3d ends[2] = {a, b};
  draw->geometry().polyline(2, ends);
}

void Box(AcGiWorldDraw* draw, const AcGePoint3d& a, const AcGePoint3d& b) {
  const AcGePoint3d corners[5] = {a, {b.x, a.y, 0}, b, {a.x, b.y, 0}, a};
  draw->geometry().polyline(5, corners);
}

void WriteAll(AcGiWorldDraw* draw, const std::vector<QvxTextPlace>& places) {
  for (const QvxTextPlace& place : places) {
    if (place.text.empty()) continue;
    draw->geometry().text(place.at, AcGeVector3d::kZAxis, AcGeVector3d::kXAxis, place.height, 1, 0,
                          place.text.c_str());
  }
}

// A cell of a table: its place is the whole cell but for the frame.
QvxTextPlace Cell(const AcGePoint3d& lowerLeft, double width, double height, double indent,
                  const std::wstring& text) {
  const double letters = std::min(kTextHeight * height / kRowHeight, height);
  return {text,
          {lowerLeft.x + indent, lowerLeft.y + (height - letters) / 2, 0},
          letters,
          0,
          width - 2 * indent};
}

}  // namespace

std::vector<QvxTextPlace> QvxDbSheet::TextPlaces() const {
  const double f = ScaleFactor(), right = std::max(start.x, end.x),
               bottom = std::min(start.y, end.y), left = right - kBlockWidth * f;
  std::vector<QvxTextPlace> places = {
      Cell({left, bottom, 0}, kBlockWidth * f, kRowHeight * f, kIndent * f, label)};
  for (std::size_t i = 0; i < cells.size(); ++i)
    places.push_back(Cell({left, bottom + kRowHeight * f * static_cast<double>(i + 1), 0},
                          kBlockWidth * f, kRowHeight * f, kIndent * f, cells[i]));
  return places;
}

bool QvxDbSheet::subWorldDraw(AcGiWorldDraw* draw) const {
  const double f = ScaleFactor(), right = std::max(start.x, end.x),
               bottom = std::min(start.y, end.y), left = right - kBlockWidth * f;
  Box(draw, start, end);
  for (std::size_t i = 0; i <= cells.size(); ++i) {
    const double row = bottom + kRowHeight * f * static_cast<double>(i);
    Box(draw, {left, row, 0}, {right, row + kRowHeight * f, 0});
  }
  WriteAll(draw, TextPlaces());
  return true;
}

std::vector<QvxTextPlace> QvxDbDrawingIndex::TextPlaces() const {
  std::vector<QvxTextPlace> places = {
      Cell({start.x, start.y - size, 0}, width, size, size / 4, label)};
  for (std::size_t i = 0; i < cells.size(); ++i)
    places.push_back(Cell({start.x, start.y - size * static_cast<double>(i + 2), 0}, width, size,
                          size / 4, cells[i]));
  return places;
}

bool QvxDbDrawingIndex::subWorldDraw(AcGiWorldDraw* draw) const {
  for (std::size_t i = 0; i <= cells.size(); ++i) {
    const double top = start.y - size * static_cast<double>(i);
    Box(draw, {start.x, top - size, 0}, {start.x + width, top, 0});
  }
  WriteAll(draw, TextPlaces());
  return true;
}

std::vector<QvxTextPlace> QvxDbIndexPointer::TextPlaces() const {
  const double radius = width * ScaleFactor();
  QvxTextPlace above;
  above.text = cells.empty() ? L"" : cells[0];
  above.height = radius;
  above.width = kLabelWidth * ScaleFactor();
  above.at = {end.x + radius, end.y + radius * 2, 0};
  return {QvxTextPlace::Around(end, radius, label), above};
}

bool QvxDbIndexPointer::subWorldDraw(AcGiWorldDraw* draw) const {
  const double radius = width * ScaleFactor();
  Line(draw, start, end);
  draw->geometry().circle(end, radius, AcGeVector3d::kZAxis);
  Line(draw, {end.x + radius, end.y, 0}, {end.x + radius + kLabelWidth * ScaleFactor(), end.y, 0});
  WriteAll(draw, TextPlaces());
  return true;
}

// One place beyond each end, wider than its text. The text is the same; an empty one can be clicked
// too.
std::vector<QvxTextPlace> QvxDbAxisLabel::TextPlaces() const {
  const double f = ScaleFactor(), wide = kLabelWidth * f;
  const AcGeVector3d along = (end - start).normal();
  std::vector<QvxTextPlace> places;
  for (const AcGePoint3d& middle : {start + along * -size, end + along * size})
    places.push_back({label,
                      {middle.x - wide / 2, middle.y - kTextHeight * f / 2, 0},
                      kTextHeight * f,
                      0,
                      wide});
  return places;
}

bool QvxDbAxisLabel::subWorldDraw(AcGiWorldDraw* draw) const {
  Line(draw, start, end);
  WriteAll(draw, TextPlaces());
  return true;
}

bool QvxDbSlow::AcceptsPointer(const AcGePoint3d&) const {
  std::this_thread::sleep_for(std::chrono::milliseconds(std::clamp(kind, 0, kMostDelay)));
  return true;
}

bool QvxDbSlow::subWorldDraw(AcGiWorldDraw* draw) const {
  Box(draw, start, end);
  return true;
}

void BeginAnnotationEntities() {
  RegisterClasses<QvxDbSheet, QvxDbDrawingIndex, QvxDbIndexPointer, QvxDbAxisLabel, QvxDbSlow>();
  acrxBuildClassHierarchy();
}

void EndAnnotationEntities() {
  RemoveClasses<QvxDbSlow, QvxDbAxisLabel, QvxDbIndexPointer, QvxDbDrawingIndex, QvxDbSheet>();
}
