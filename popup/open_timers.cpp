#include "popup/open_timers.h"

void RecentOpening::Step(TDPtrList<CString>& queue, DocumentOpener& opener) {
  if (m_opening) return;
  m_opening = true;
  if (queue.IsEmpty() || !opener.IsApplicationContext()) {
    opener.StopTimer(kRecentFilesTimer);
    return;
  }
  const CString path(*queue.First());
  queue.Remove(0);
  opener.OpenDocument(path);
  m_opening = false;
}

void OpenRequestedFile(const wchar_t* file, const wchar_t* command, DocumentOpener& opener) {
  opener.StopTimer(kOpenRequestTimer);
  if (!opener.IsApplicationContext()) return;
  opener.OpenDocument(file);
  if (*command) opener.PostCommand(command);
}
