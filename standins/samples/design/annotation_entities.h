// Drawing objects of the sample module: annotations with texts beside their geometry, which a pick
// at the text does not hit; and one object with a slow hit test.
#pragma once

#include "kernel/entities/qvx_entity.h"

#define QVX_ANNOTATION(CLASS)                              \
  class CLASS : public QvxEditable<TDbEntity> {            \
   public:                                                 \
    ACRX_DECLARE_MEMBERS(CLASS);                           \
    std::vector<QvxTextPlace> TextPlaces() const override; \
    bool subWorldDraw(AcGiWorldDraw* draw) const override; \
  }

QVX_ANNOTATION(QvxDbSheet);         // QVX_SHEET: start, end the corners; label the title, cells the
                                    // rows of the title block above it, in the lower right corner
QVX_ANNOTATION(QvxDbDrawingIndex);  // QVX_DRAWINGINDEX: start the upper left; width by size of one
                                    // row; label the heading, a cell a row
QVX_ANNOTATION(QvxDbIndexPointer);  // QVX_INDEXPOINTER: start the point meant, end the circle of
                                    // radius width; label in it, the first cell above its line
QVX_ANNOTATION(QvxDbAxisLabel);     // QVX_AXIS_LABEL: start, end of the axis; size the distance of
                                    // the texts from its ends; label for both
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
