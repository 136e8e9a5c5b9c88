#include "popup/win/drawing_opening.h"

#include "acdocman.h"
#include "kernel/globals.h"
#include "kernel/qvxexport.h"

namespace {
constexpr UINT kRecentFilesPeriod = 10;
constexpr UINT kOpenRequestPeriod = 150;
}  // namespace

void DrawingOpening::Start() {
  if (!m_queue.IsEmpty()) m_window.SetTimer(kRecentFilesTimer, kRecentFilesPeriod, nullptr);
}

void DrawingOpening::RequestOpen() {
  m_window.SetTimer(kOpenRequestTimer, kOpenRequestPeriod, nullptr);
}

bool DrawingOpening::OnTimer(UINT_PTR id) {
  if (id == kRecentFilesTimer)
    m_recent.Step(m_queue, *this);
  else if (id == kOpenRequestTimer)
    OpenRequestedFile(g_szFileNameToOpen, g_szInitCmdStr, *this);
  else
    return false;
  return true;
}

bool DrawingOpening::IsApplicationContext() {
  AcApDocManager* documents = acDocManagerPtr();
  return documents && documents->isApplicationContext();
}

void DrawingOpening::OpenDocument(const wchar_t* path) {
  acDocManagerPtr()->appContextOpenDocument(path);
}

void DrawingOpening::StopTimer(int id) { m_window.KillTimer(static_cast<UINT_PTR>(id)); }

void DrawingOpening::PostCommand(const wchar_t* text) { QvxExport::PostCommand(text, 0); }
