#include "doctabs/drawing_tabs.h"

#include <algorithm>

#include "doctabs/tab_menu.h"

namespace {

constexpr wchar_t kStartFile[] = L"Drawing1.dwg", kStartTab[] = L"Drawing1";

bool IsOpen(DrawingHost& host, AcApDocument* document) {
  const std::vector<AcApDocument*> open = host.Documents();
  return std::find(open.begin(), open.end(), document) != open.end();
}

// A drawing without a path is new, not opened from a file. Deliberate: a network path has no colon
// either, so a drawing from there leaves the start drawing open.
bool IsFromFile(const CString& fileName) { return fileName.Find(L':') >= 0; }

void CloseStartDrawing(DrawingStrip tabs, AcApDocument* document) {
  tabs.frames.RemoveTab(tabs.strip.Find(kStartTab));
  if (!IsOpen(tabs.host, document)) return;
  tabs.host.ClearModified(document);
  tabs.host.Close(document);
}

}  // namespace

void InitDrawingStrip(DrawingStrip tabs) {
  tabs.frames.InitFromActiveFrame();
  tabs.current = tabs.host.Current();
  if (tabs.current && tabs.strip.Count()) tabs.frames.SetKey(tabs.current, tabs.windows.Active());
}

void CloseUntouchedStartDrawing(DrawingStrip tabs) {
  if (tabs.strip.Count() > 1) return;
  AcApDocument* current = tabs.host.Current();
  if (!current || !IsFromFile(tabs.host.FileName(current))) return;
  // Deliberate: the count goes on across drawings, so the first one that is not empty keeps the
  // later ones open too. Objects in paper space do not count.
  int count = 0;
  for (AcApDocument* document : tabs.host.Documents()) {
    if (!IsOpen(tabs.host, document)) continue;  // closed by closing an earlier one
    if (tabs.host.FileName(document).CompareNoCase(kStartFile) != 0) continue;
    const std::optional<int> found = tabs.host.CountOtherThanBlocks(document);
    if (!found) continue;
    count += *found;
    if (count == 0) CloseStartDrawing(tabs, document);
  }
}

void OnDrawingCreated(DrawingStrip tabs, AcApDocument* document) {
  CloseUntouchedStartDrawing(tabs);
  tabs.current = document;
  tabs.frames.AddFrame(nullptr, document);
}

void OnDrawingToBeDestroyed(DrawingStrip tabs, AcApDocument* document) {
  if (document != tabs.current) return tabs.frames.RemoveKeyTab(document);
  tabs.current = nullptr;
  tabs.frames.RemoveActiveTab();
}

void OnDrawingActivated(DrawingStrip tabs, AcApDocument* document) {
  if (tabs.host.Count() == 0 || !tabs.host.Current()) return;
  tabs.current = document;
  tabs.frames.SyncActiveTab();
}

void ActivateDrawingOfTab(DrawingStrip tabs) {
  CFrameWnd* frame = tabs.frames.ActiveTabFrame();
  if (!frame) return;
  tabs.windows.Activate(frame);
  if (AcApDocument* active = tabs.host.MdiActive()) tabs.host.Activate(active);
  tabs.current = tabs.host.Current();
}

void RefreshActiveTabName(DrawingStrip tabs) {
  if (CFrameWnd* frame = tabs.frames.ActiveTabFrame()) tabs.frames.RefreshTabName(frame);
  tabs.strip.OnLayoutTimer();
}

void SaveAllDrawings(DrawingHost& host) {
  AcApDocument* noted = host.Current();
  for (AcApDocument* document : host.Documents()) {
    if (!IsOpen(host, document)) continue;
    host.Activate(document);
    host.Post(L"QSAVE\n");
  }
  if (noted && IsOpen(host, noted)) host.Activate(noted);
}

bool RunDrawingCommand(DrawingHost& host, unsigned id) {
  switch (id) {
    case kTabClose:
      host.Post(L"Close\n");
      return true;
    case kTabCloseAll:
      host.Post(L"CloseAll\n");
      return true;
    case kTabSaveAll:
      SaveAllDrawings(host);
      return true;
    case kTabSaveAllQuit:
      SaveAllDrawings(host);
      host.Post(L"_quit\n");
      return true;
    case kTabExport:
      host.Post(host.FullCommandName(L"TSaveAs") + L"\n");
      return true;
    default:
      return false;
  }
}
