// Annotations that differ only in how they look and where their texts are: arrows, leaders,
// elevations, coordinates, outlines with a name and the like. Each kind is a row of data
// (note_designs.cpp); the class of a kind only gives it a name in drawing files.
#pragma once

#include "kernel/entities/qvx_entity.h"

enum NoteKind {
  kArrow,
  kMultiLeader,
  kComposing,
  kSectionSymbol,
  kDrawingName,
  kElevation,
  kCornerWindow,
  kDormer,
  kCoordinate,
  kRevision,
  kNorthArrow,
  kEvacuationPath,
  kFireZone,
  kAreaOutline,
  kRadiusDimension,
  kNoteKinds
};

// One text. Lengths are millimetres at the default scale.
struct NoteText {
  enum class Anchor { Start, Middle, End } anchor;
  double x, y;  // from the anchor to the lower left corner, or to the middle of a centred text
  double height;
  bool centred;
  int slot;
  double step = 0;  // not 0: each further cell is a text, so much lower than the one before
};

struct NoteDesign {
  const wchar_t* dxfName;
  const wchar_t* className;
  void (*draw)(const QvxDbEntity& note, AcGiWorldDraw* draw, double factor);
  int menu;
  TTextOwner::EditFunction edit;
  std::vector<NoteText> texts;
  bool hasOutline = false;  // corners instead of start and end
  bool isNumber = false;    // its text is shown with the numbers of openings
  bool isMeasured = false;  // its text is a length, unless it has one of its own
};

const NoteDesign& DesignOf(int kind);

// The parts of the classes that do not depend on the kind.
AcGePoint3d AnchorOf(const QvxDbEntity& note, const NoteDesign& design, NoteText::Anchor anchor);
std::vector<QvxTextPlace> NoteTexts(const QvxDbEntity& note, const NoteDesign& design,
                                    double factor);
std::wstring MeasuredLength(const QvxDbEntity& note);

template <class Interface>
class QvxDbNote : public QvxEditable<Interface> {
 public:
  virtual const NoteDesign& Design() const = 0;

  std::vector<QvxTextPlace> TextPlaces() const override {
    if (Design().isNumber && !this->ShowsModelNumbers()) return {};
    return NoteTexts(*this, Design(), this->ScaleFactor());
  }
  void ChangeText(int index, const std::wstring& text) override;
  TTextOwner::EditFunction GetEditFunction() const override { return Design().edit; }
  bool subWorldDraw(AcGiWorldDraw* draw) const override {
    if (Design().hasOutline && this->outline.empty()) return false;
    Design().draw(*this, draw, this->ScaleFactor());
    DrawTexts(draw, TextPlaces());
    return true;
  }

 protected:
  bool HasOutline() const override { return Design().hasOutline; }
};

constexpr bool IsCurve(int kind) {
  return kind == kEvacuationPath || kind == kFireZone || kind == kAreaOutline;
}

template <int Kind>
class QvxDbNoteOf : public QvxDbNote<std::conditional_t<IsCurve(Kind), TDbCurveEntity, TDbEntity>> {
 public:
  ACRX_DECLARE_MEMBERS(QvxDbNoteOf);
  const NoteDesign& Design() const override { return DesignOf(Kind); }
};

template <int Kind>
AcRxClass* QvxDbNoteOf<Kind>::gpDesc = nullptr;
template <int Kind>
AcRxClass* QvxDbNoteOf<Kind>::desc() {
  if (!gpDesc) rxInit();
  return gpDesc;
}
template <int Kind>
AcRxClass* QvxDbNoteOf<Kind>::isA() const {
  return desc();
}
template <int Kind>
void QvxDbNoteOf<Kind>::rxInit() {
  if (!gpDesc)
    gpDesc = new AcRxClass(
        DesignOf(Kind).className, QvxDbEntity::desc(),
        []() -> AcRxObject* { return new QvxDbNoteOf<Kind>; }, DesignOf(Kind).dxfName);
}

void BeginNoteEntities();
void EndNoteEntities();
