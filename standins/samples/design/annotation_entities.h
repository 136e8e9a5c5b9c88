// Drawing objects of the sample module: tables and annotations with texts beside their geometry,
// which a pick at the text does not hit; and one object with a slow hit test. Further annotations
// are in note_entities.h.
#pragma once

#include "kernel/entities/qvx_entity.h"

// A table: start the upper left; width by size of a cell; kind columns and flags rows; cells row by
// row. Texts are walked along the rows, from the end of one to the start of the next, and up and
// down within a column.
class QvxDbSheet : public QvxEditable<TDbEntity> {
 public:
  ACRX_DECLARE_MEMBERS(QvxDbSheet);
  int Columns() const;
  int Rows() const;
  std::vector<QvxTextPlace> TextPlaces() const override;
  int NextSubText(int index, bool vertical, bool backward) const override;
  bool subWorldDraw(AcGiWorldDraw* draw) const override;
};

#define QVX_ANNOTATION(CLASS, ...)                         \
  class CLASS : public QvxEditable<TDbEntity> {            \
   public:                                                 \
    ACRX_DECLARE_MEMBERS(CLASS);                           \
    std::vector<QvxTextPlace> TextPlaces() const override; \
    bool subWorldDraw(AcGiWorldDraw* draw) const override; \
    __VA_ARGS__                                            \
  }
#define QVX_EDITS EditFunction GetEditFunction() const override;

// QVX_DRAWINGINDEX: start the upper left; width by size of one row; label the heading, a cell a
// row.
QVX_ANNOTATION(QvxDbDrawingIndex, QVX_EDITS);
// QVX_INDEXPOINTER: start the point meant, end the circle of radius width; label in it, the first
// cell above its line.
QVX_ANNOTATION(QvxDbIndexPointer, QVX_EDITS);
// QVX_AXIS_LABEL: start, end of the axis; size the distance of the texts from its ends; label for
// both.
QVX_ANNOTATION(QvxDbAxisLabel);
#undef QVX_EDITS
#undef QVX_ANNOTATION

// QVX_SLOW: a box from start to end. The test for the pointer takes kind milliseconds.
class QvxDbSlow : public QvxEditable<TDbEntity> {
 public:
  ACRX_DECLARE_MEMBERS(QvxDbSlow);
  bool AcceptsPointer(const AcGePoint3d& at) const override;
  Adesk::Boolean IsEditable() const override { return false; }
  bool subWorldDraw(AcGiWorldDraw* draw) const override;
};

void BeginAnnotationEntities();
void EndAnnotationEntities();
