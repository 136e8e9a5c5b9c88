#include "editor/win/live_preview_host.h"

#include <utility>

#include "afxwin.h"

#include "acdocman.h"
#include "editor/editor_door.h"
#include "editor/preview_allowed.h"
#include "editor/selected_set.h"
#include "editor/selection_preview.h"
#include "editor/win/drain_timers.h"
#include "ground/command_line.h"
#include "ground/host_variables.h"
#include "kernel/globals.h"
#include "kernel/qvxexport.h"
#include "kernel/tadsprintf.h"
#include "kernel/tpickentset.h"
#include "rxmfcapi.h"

bool LivePreviewHost::HasCurrentView() { return QvxExport::GetCurDwgView() != nullptr; }
int LivePreviewHost::CommandActive() { return qvx::CommandActive(); }
std::optional<int> LivePreviewHost::CurrentViewport() { return qvx::ShortVariable(L"CVPORT"); }
bool LivePreviewHost::RunsAnyCommand() { return qvx::RunsAnyCommand(); }
std::unique_ptr<qvx::SelectedObjects> LivePreviewHost::Selected() {
  return qvx::ReadSelectedObjects();
}
int LivePreviewHost::ViewportAt(POINT screen) {
  if (const CWnd* view = QvxExport::GetCurDwgView()) view->ScreenToClient(&screen);
  return acedGetWinNum(screen.x, screen.y);
}
bool LivePreviewHost::IsOffInDrawing() { return qvx::IsPreviewOffInDrawing(); }

unsigned LivePreviewHost::Ticks() { return ::GetTickCount(); }
TEntitySet LivePreviewHost::HitTest() {
  TPickEntSet under;
  under.GetPreSel();
  return under[0];
}
TEntitySet LivePreviewHost::MouseOn() { return DocGetEntMouseOn(); }
void LivePreviewHost::SetMouseOn(const TEntitySet& entity) { DocGetEntMouseOn() = entity; }
void LivePreviewHost::Highlight(const TEntitySet& entity, bool on) {
  constexpr int kHighlight = 3, kUnhighlight = 4;
  entity.Redraw(on ? kHighlight : kUnhighlight);
}

void LivePreviewHost::LockForWrite() {
  AcApDocument* document = acDocManager->curDocument();
  if (document && acDocManager->lockDocument(document, AcAp::kWrite) == Acad::eOk)
    m_locked = document;
}
void LivePreviewHost::Unlock() {
  if (AcApDocument* document = std::exchange(m_locked, nullptr))
    acDocManager->unlockDocument(document);
}
void LivePreviewHost::TurnOffInDrawing() { qvx::TurnPreviewOffInDrawing(); }
void LivePreviewHost::PrintWithPrompt(const wchar_t* text) {
  adsout << text;
  qvx::PostPrompt();
}

// Waiting timer messages are removed: the step is for the position that the pointer has now.
void StepSelectionPreview() {
  if (g_pContextMenu && g_pContextMenu->GetSafeHwnd()) DrainTimers(g_pContextMenu->m_hWnd);
  POINT pointer{};
  ::GetCursorPos(&pointer);
  LivePreviewHost host;
  qvx::ThePreview().Step(host, pointer);
}
