#include "kernel/kernel_start.h"

#include <cstdlib>
#include <cwchar>

#include "acdocman.h"
#include "aced.h"
#include "adslib.h"
#include "kernel/drawing_data.h"
#include "kernel/globals.h"
#include "kernel/logical_layers.h"
#include "kernel/settings.h"
#include "kernel/tsplitpath.h"

namespace {

double HostRelease() {
  resbuf value{};
  if (acedGetVar(L"ACADVER", &value) != RTNORM || value.restype != RTSTR) return 0;
  const double release = ReleaseOfVersionText(value.resval.rstring);
  std::free(value.resval.rstring);
  return release;
}

void SetAppPath(const wchar_t* modulePath) {
  TSplitpathOperator parts(modulePath);
  TWCString folder(parts.Drive());
  folder += parts.Folder();
  if (folder.Length() < 260) std::wcscpy(QvxGeLib::g_sAppPath, folder);
}

}  // namespace

void StartKernel(const wchar_t* modulePath) {
  g_dHostVersion = HostRelease();
  LoadSettings();
  SetAppPath(modulePath);
}

void NoteActiveDrawing() {
  AcApDocManager* documents = acDocManagerPtr();
  AcApDocument* active = documents ? documents->mdiActiveDocument() : nullptr;
  QvxGeLib::g_pCurrentDb = active ? active->database() : nullptr;
  ForgetLogicalLayers();
}

// The current drawing is the one that the host prepares.
void DocStatus() {
  NoteActiveDrawing();
  if (TDocData* data = GetCurDocData()) data->m_bReady = 1;
}
