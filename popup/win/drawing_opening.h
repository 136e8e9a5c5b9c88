// Opens drawings from the timers of the context window: recent files, one for each timer message,
// and a file requested from outside. open_timers.h has the rules; this class makes the host calls.
#pragma once

#include "afxwin.h"
#include "popup/open_timers.h"

class DrawingOpening : private DocumentOpener {
 public:
  // The window has the timers; window and queue outlive this object.
  DrawingOpening(CWnd& window, TDPtrList<CString>& queue) : m_window(window), m_queue(queue) {}

  void Start();               // starts opening the queue; nothing when it is empty
  void RequestOpen();         // the file of g_szFileNameToOpen, after a delay
  bool OnTimer(UINT_PTR id);  // false for other timers

 private:
  bool IsApplicationContext() override;
  void OpenDocument(const wchar_t* path) override;
  void StopTimer(int id) override;
  void PostCommand(const wchar_t* text) override;

  CWnd& m_window;
  TDPtrList<CString>& m_queue;
  RecentOpening m_recent;
};
