// How each kind of annotation looks, and where its texts are. Lengths are millimetres at the
// default scale; `f` is the factor of the object's scale.
#include "annotation_shapes.h"
#include "kernel/entities/edit_routines.h"
#include "note_entities.h"

namespace {

using Anchor = NoteText::Anchor;

constexpr double kHead = 250, kShelf = 2000, kTriangle = 300, kTick = 200, kNorthRadius = 500;
constexpr double kTextHeight = 250, kTitleHeight = 500;

void Shelf(AcGiWorldDraw* draw, const AcGePoint3d& at, double f) {
  DrawLine(draw, at, {at.x + kShelf * f, at.y, 0});
}

void Arrow(const QvxDbEntity& note, AcGiWorldDraw* draw, double f) {
  DrawLine(draw, note.start, note.end);
  DrawArrowHead(draw, note.start, note.end, kHead * f);
  Shelf(draw, note.end, f);
}

// The first corner is the end of the shelf, the others are what the leaders point at.
void Leaders(const QvxDbEntity& note, AcGiWorldDraw* draw, double f) {
  for (const AcGePoint3d& tip : note.outline) {
    DrawLine(draw, note.outline.front(), tip);
    DrawArrowHead(draw, tip, note.outline.front(), kHead * f);
  }
  Shelf(draw, note.outline.front(), f);
}

void Composing(const QvxDbEntity& note, AcGiWorldDraw* draw, double f) {
  DrawLine(draw, note.start, note.end);
  double y = note.end.y;
  for (std::size_t row = 0; row <= note.cells.size(); ++row, y -= 400 * f)
    Shelf(draw, {note.end.x, y, 0}, f);
  DrawLine(draw, note.end, {note.end.x, y + 400 * f, 0});
}

// A stroke across the line at each end, on the side of the view.
void SectionSymbol(const QvxDbEntity& note, AcGiWorldDraw* draw, double f) {
  const AcGeVector3d along = (note.end - note.start).normal() * (kTick * f),
                     side(-along.y, along.x, 0);
  for (const AcGePoint3d& at : {note.start, note.end}) DrawLine(draw, at, at + side);
  DrawLine(draw, note.start, note.start + along);
  DrawLine(draw, note.end, note.end - along);
}

void DrawingName(const QvxDbEntity& note, AcGiWorldDraw* draw, double f) {
  Shelf(draw, {note.start.x, note.start.y + 80 * f, 0}, 2 * f);
  Shelf(draw, note.start, 2 * f);
}

void Elevation(const QvxDbEntity& note, AcGiWorldDraw* draw, double f) {
  const AcGePoint3d& tip = note.start;
  const double side = kTriangle * f;
  DrawOutline(draw, {tip, {tip.x - side, tip.y + side, 0}, {tip.x + side, tip.y + side, 0}}, true);
  Shelf(draw, {tip.x + side, tip.y + side, 0}, f);
}

// Two legs from the corner: to the right and upwards.
void CornerWindow(const QvxDbEntity& note, AcGiWorldDraw* draw, double) {
  const AcGePoint3d& at = note.start;
  DrawBox(draw, at, {at.x + note.size, at.y + note.width, 0});
  DrawBox(draw, at, {at.x + note.width, at.y + note.size, 0});
}

void Dormer(const QvxDbEntity& note, AcGiWorldDraw* draw, double) {
  const AcGePoint3d& at = note.start;
  const double half = note.width / 2;
  DrawOutline(draw, {{at.x - half, at.y, 0}, {at.x + half, at.y, 0}, {at.x, at.y + note.size, 0}},
              true);
}

void Coordinate(const QvxDbEntity& note, AcGiWorldDraw* draw, double f) {
  const double arm = kTick / 2 * f;
  const AcGePoint3d& at = note.start;
  DrawLine(draw, {at.x - arm, at.y, 0}, {at.x + arm, at.y, 0});
  DrawLine(draw, {at.x, at.y - arm, 0}, {at.x, at.y + arm, 0});
  DrawLine(draw, at, note.end);
  Shelf(draw, note.end, f);
}

// The changed area, and a triangle around the number of the change at its first corner.
void Revision(const QvxDbEntity& note, AcGiWorldDraw* draw, double f) {
  DrawOutline(draw, note.outline, true);
  const AcGePoint3d& at = note.outline.front();
  const double side = kTriangle * f;
  DrawOutline(draw,
              {{at.x - side, at.y - side / 2, 0},
               {at.x + side, at.y - side / 2, 0},
               {at.x, at.y + side, 0}},
              true);
}

void NorthArrow(const QvxDbEntity& note, AcGiWorldDraw* draw, double f) {
  const AcGeVector3d north =
      AcGeVector3d(-std::sin(note.angle), std::cos(note.angle), 0) * (kNorthRadius * f);
  draw->geometry().circle(note.start, kNorthRadius * f, AcGeVector3d::kZAxis);
  DrawLine(draw, note.start - north, note.start + north);
  DrawArrowHead(draw, note.start + north, note.start - north, kNorthRadius * f);
}

void EvacuationPath(const QvxDbEntity& note, AcGiWorldDraw* draw, double f) {
  DrawOutline(draw, note.outline, false);
  if (note.outline.size() > 1)
    DrawArrowHead(draw, note.outline.back(), note.outline[note.outline.size() - 2], kHead * f);
}

void Zone(const QvxDbEntity& note, AcGiWorldDraw* draw, double) {
  DrawOutline(draw, note.outline, true);
}

void RadiusDimension(const QvxDbEntity& note, AcGiWorldDraw* draw, double f) {
  DrawLine(draw, note.start, note.end);
  DrawArrowHead(draw, note.end, note.start, kHead * f);
}

// Above and below a shelf at the end of a leader.
const std::vector<NoteText> kOnShelf = {{Anchor::End, 100, 80, kTextHeight, false, 0},
                                        {Anchor::End, 100, -330, kTextHeight, false, 1}};

// In the order of NoteKind.
const NoteDesign kDesigns[kNoteKinds] = {
    {L"QVX_ARROW", L"QvxDbArrow", Arrow, kAnnotation, EditTexts, kOnShelf},
    {L"QVX_MULTILEADER",
     L"QvxDbMultiLeader",
     Leaders,
     kSteelText,
     EditTexts,
     {{Anchor::Start, 100, 80, kTextHeight, false, 0},
      {Anchor::Start, 100, -330, kTextHeight, false, 1}},
     true},
    {L"QVX_COMPOSING",
     L"QvxDbComposing",
     Composing,
     kAnnotation,
     EditTexts,
     {{Anchor::End, 100, 80, kTextHeight, false, 0, 400}}},
    {L"QVX_SYMB_SECTION",
     L"QvxDbSectionSymbol",
     SectionSymbol,
     kSymbolText,
     EditTexts,
     {{Anchor::Start, -350, 0, kTextHeight, true, 0}, {Anchor::End, 350, 0, kTextHeight, true, 0}}},
    {L"QVX_DRAWINGNAME",
     L"QvxDbDrawingName",
     DrawingName,
     kAnnotation,
     EditTexts,
     {{Anchor::Start, 0, 150, kTitleHeight, false, 0},
      {Anchor::Start, 0, -400, kTextHeight, false, 1}}},
    {L"QVX_ELEVATION",
     L"QvxDbElevation",
     Elevation,
     kSymbolText,
     EditElevation,
     {{Anchor::Start, 350, 350, kTextHeight, false, 0}}},
    {L"QVX_CORNER_WINDOW",
     L"QvxDbCornerWindow",
     CornerWindow,
     kOpeningNumber,
     nullptr,
     {{Anchor::Start, 600, 600, kTextHeight, true, 0}},
     false,
     true},
    {L"QVX_DORMER",
     L"QvxDbDormer",
     Dormer,
     kOpeningNumber,
     nullptr,
     {{Anchor::Start, 0, -300, kTextHeight, true, 0}},
     false,
     true},
    {L"QVX_COORD", L"QvxDbCoordinate", Coordinate, kSymbolText, nullptr, kOnShelf},
    {L"QVX_MODI",
     L"QvxDbRevision",
     Revision,
     kGeneralText,
     nullptr,
     {{Anchor::Start, 0, 0, kTextHeight, true, 0},
      {Anchor::Start, 400, -80, kTextHeight, false, 1}},
     true},
    {L"QVX_NORTHTHUMB",
     L"QvxDbNorthArrow",
     NorthArrow,
     kSymbolText,
     nullptr,
     {{Anchor::Start, 0, 750, kTextHeight, true, 0}}},
    {L"QVX_EVACPATH",
     L"QvxDbEvacuationPath",
     EvacuationPath,
     kGeneralText,
     nullptr,
     {{Anchor::Start, 100, 100, kTextHeight, false, 0}},
     true},
    {L"QVX_FIREZONE",
     L"QvxDbFireZone",
     Zone,
     kGeneralText,
     nullptr,
     {{Anchor::Middle, 0, 250, kTextHeight, true, 0},
      {Anchor::Middle, 0, -250, kTextHeight, true, 1}},
     true},
    {L"QVX_AREAREDLINE",
     L"QvxDbAreaOutline",
     Zone,
     kGeneralText,
     nullptr,
     {{Anchor::Middle, 0, 0, kTextHeight, true, 0}},
     true},
    {L"QVX_RADIUSDIM",
     L"QvxDbRadiusDimension",
     RadiusDimension,
     kMeasuredText,
     nullptr,
     {{Anchor::Middle, 0, 200, kTextHeight, true, 0}},
     false,
     false,
     true},
};

}  // namespace

const NoteDesign& DesignOf(int kind) { return kDesigns[kind]; }
