// Rules for opening drawings from the timers of the context window: recent drawings, one for each
// timer message, and a drawing requested from outside. DrawingOpening makes the host calls.
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
  // Handles one timer message. Opening a drawing pumps messages, so the timer may fire inside; the
  // guard makes that call do nothing. When the queue is empty, or the host cannot open drawings
  // now, the timer stops and the guard stays set: this object opens nothing more.
  void Step(TDPtrList<CString>& queue, DocumentOpener& opener);

 private:
  bool m_opening = false;
};

// Stops its timer. If the host can open drawings now, opens the file and then posts the command
// text, if any.
void OpenRequestedFile(const wchar_t* file, const wchar_t* command, DocumentOpener& opener);
