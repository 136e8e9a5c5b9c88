#include "editor/preview_allowed.h"

#include "acdocman.h"
#include "editor/editor_door.h"
#include "ground/host_variables.h"
#include "kernel/globals.h"
#include "kernel/tdbconfig.h"

namespace qvx {
namespace {

TDbConfig* OpenConfig(AcDb::OpenMode mode) {
  AcApDocument* current = acDocManagerPtr() ? acDocManagerPtr()->curDocument() : nullptr;
  return current ? GetDwgGlobal(mode, current->database()) : nullptr;
}

}  // namespace

bool IsPreviewAllowed(const PreviewState& state) {
  if (!state.isEnabled) return false;
  if (state.hostVersion < kFirstHostWithPreview) return !state.isOffInDrawing;
  return (state.hostVariable & 1) != 0;
}

bool IsPreviewOffInDrawing() {
  TDbConfig* config = OpenConfig(AcDb::kForRead);
  if (!config) return false;
  const bool off = (config->Flags() & TDbConfig::kPreviewOff) != 0;
  config->close();
  return off;
}

void TurnPreviewOffInDrawing() {
  TDbConfig* config = OpenConfig(AcDb::kForWrite);
  if (!config) return;
  config->SetFlags(config->Flags() | TDbConfig::kPreviewOff);
  config->close();
}

}  // namespace qvx

bool IsPreviewAllowed() {
  qvx::PreviewState state{g_dHostVersion, g_bEnableSelectPreview != 0, 0, false};
  if (!state.isEnabled) return false;
  if (state.hostVersion < qvx::kFirstHostWithPreview)
    state.isOffInDrawing = qvx::IsPreviewOffInDrawing();
  else
    state.hostVariable = qvx::ShortVariable(L"SELECTIONPREVIEW").value_or(0);
  return qvx::IsPreviewAllowed(state);
}
