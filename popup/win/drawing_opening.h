// Opens drawings from the timers of the context window: recent files, one at a firing, and the one
// that was asked for from outside. The rules are those of open_timers.h; this carries them out on
// the host.
#pragma once

#include "afxwin.h"
#include "popup/open_timers.h"

class DrawingOpening : private DocumentOpener {
 public:
  // The window carries the timers; both outlive this.
  DrawingOpening(CWnd& window, TDPtrList<CString>& queue) : m_window(window), m_queue(queue) {}

  void Start();               // reopening what stands in the queue; nothing with an empty one
  void RequestOpen();         // the file of g_szFileNameToOpen, after a delay
  bool OnTimer(UINT_PTR id);  // false for a timer of somebody else

 private:
  bool IsApplicationContext() override;
  void OpenDocument(const wchar_t* path) override;
  void StopTimer(int id) override;
  void PostCommand(const wchar_t* text) override;

  CWnd& m_window;
  TDPtrList<CString>& m_queue;
  RecentOpening m_recent;
};
