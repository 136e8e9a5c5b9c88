// Opening drawings from the timers of the context window: the recent ones, one at a firing, and the
// one that somebody outside asked for. The rules only; the window carries them out.
#pragma once

#include "afx.h"
#include "frame/containers/tdptrlist.h"

class DocumentOpener {
 public:
  virtual ~DocumentOpener() = default;
  virtual bool IsApplicationContext() = 0;
  virtual void OpenDocument(const wchar_t* path) = 0;
  virtual void StopTimer(int id) = 0;
  virtual void PostCommand(const wchar_t* text) = 0;
};

constexpr int kOpenRequestTimer = 5;
constexpr int kRecentFilesTimer = 10;

class RecentOpening {
 public:
  // One firing. Opening a drawing pumps messages, so the timer fires again inside: the guard makes
  // that firing do nothing. When the queue is done, or the host is no longer free to open, the
  // timer stops and the guard stays set: nothing is reopened by this object again.
  void Step(TDPtrList<CString>& queue, DocumentOpener& opener);

 private:
  bool m_opening = false;
};

// Stops its timer, opens the file if the host is free to, then sends the command text if there is
// one.
void OpenRequestedFile(const wchar_t* file, const wchar_t* command, DocumentOpener& opener);
