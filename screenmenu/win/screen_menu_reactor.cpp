// See screen_menu_reactor.h.
#include "screenmenu/win/screen_menu_reactor.h"

#include <utility>

#include "acstatusbar.h"
#include "editor/editor_door.h"
#include "ground/guard.h"
#include "screenmenu/win/screen_menu.h"
#include "statusbar/status_bar_door.h"

namespace {

TScreenMenuReactor* s_reactor = nullptr;

// The count already includes a drawing being created and still includes one being destroyed, so 1
// means the first or the last. Without a palette nothing is stored: a palette created after the
// last drawing closed is enabled.
void EnableForOnlyDrawing(BOOL enable) {
  if (acDocManagerPtr()->documentCount() != 1) return;
  if (!g_pScreenMenu || !g_pScreenMenu->GetSafeHwnd()) return;
  g_pScreenMenu->EnableWindow(enable);
  if (!enable) g_pScreenMenu->DropHover();  // its mouse capture would take one more click
}

void FollowActiveDrawing() {
  AcApDocManager* documents = acDocManagerPtr();
  if (documents->documentCount() == 0 || !documents->curDocument()) return;
  qvx::WriteHatchScale();
  RefreshDrawingPanes();
  RefreshScaleText();
  if (AcApStatusBar* bar = acedGetApplicationStatusBar()) bar->Update();
  ResetPreviewCounters();
}

}  // namespace

void TScreenMenuReactor::documentCreated(AcApDocument*) {
  qvx::Guarded([] { EnableForOnlyDrawing(TRUE); });
}

void TScreenMenuReactor::documentToBeDestroyed(AcApDocument*) {
  qvx::Guarded([] { EnableForOnlyDrawing(FALSE); });
}

void TScreenMenuReactor::documentActivated(AcApDocument*) { qvx::Guarded(FollowActiveDrawing); }

void InitScreenMenuReactor(bool add) {
  AcApDocManager* documents = acDocManagerPtr();
  if (add && !s_reactor) {
    s_reactor = new TScreenMenuReactor;
    documents->addReactor(s_reactor);
  } else if (!add && s_reactor) {
    documents->removeReactor(s_reactor);
    delete std::exchange(s_reactor, nullptr);
  }
}
