#include "kernel/current_drawing.h"

#include "acdocman.h"
#include "kernel/globals.h"

namespace {

class CurrentDrawingReactor : public AcApDocManagerReactor {
 public:
  void documentBecameCurrent(AcApDocument*) override { DocStatus(); }
  void documentToBeDestroyed(AcApDocument* document) override {
    if (document->database() == QvxGeLib::g_pCurrentDb) QvxGeLib::g_pCurrentDb = nullptr;
  }
};

CurrentDrawingReactor& CurrentDrawing() {
  static CurrentDrawingReactor reactor;
  return reactor;
}

}  // namespace

void BeginCurrentDrawing() {
  acDocManagerPtr()->addReactor(&CurrentDrawing());
  DocStatus();
}

void EndCurrentDrawing() {
  acDocManagerPtr()->removeReactor(&CurrentDrawing());
  QvxGeLib::g_pCurrentDb = nullptr;
}
