// The published call that changes the view.
#include <cmath>

#include "aced.h"
#include "dbsymtb.h"
#include "devhost/core/host/host.h"

Acad::ErrorStatus acedSetCurrentView(AcDbViewTableRecord* view, AcDbViewport* viewport) {
  devhost::Document* document = devhost::TheHost().documents.Current();
  if (!document) return Acad::eNoDocument;
  if (!view || viewport || !(view->height() > 0) || !std::isfinite(view->height()))
    return Acad::eInvalidInput;
  const AcGePoint2d middle = view->centerPoint();
  if (!std::isfinite(middle.x) || !std::isfinite(middle.y)) return Acad::eInvalidInput;
  document->view.ShowAt(middle.x, middle.y, view->height());
  devhost::TheHost().Ui().ViewChanged(*document);
  return Acad::eOk;
}
