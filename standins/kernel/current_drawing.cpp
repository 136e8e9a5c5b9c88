#include "kernel/current_drawing.h"

#include "acdocman.h"
#include "kernel/drawing_data.h"
#include "kernel/globals.h"
#include "kernel/kernel_start.h"
#include "kernel/recent_drawings.h"

namespace {

class CurrentDrawingReactor : public AcApDocManagerReactor {
 public:
  void documentBecameCurrent(AcApDocument* document) override {
    NoteActiveDrawing();
    if (document && g_bAutoOpenRecent) NoteRecentDrawing(g_sRecentFiles, document->fileName());
  }
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
  BeginDrawingData();
  NoteActiveDrawing();
}

void EndCurrentDrawing() {
  acDocManagerPtr()->removeReactor(&CurrentDrawing());
  EndDrawingData();
  QvxGeLib::g_pCurrentDb = nullptr;
}
