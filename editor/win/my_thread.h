// A worker thread for the selection preview. Nothing in the module starts it at present: the
// preview runs from a timer of the main thread.
#pragma once

#include <atomic>

#include "afxwin.h"

class CMyThread : public CWinThread {
 public:
  CMyThread();

  // Begins at idle priority; false when the system refuses.
  bool Start();
  void End() { m_running = false; }  // the thread ends after its present step
  // The pointer has moved: the thread does one step.
  void SetRequest() { m_request = true; }
  void ClearRequest() { m_request = false; }

  BOOL InitInstance() override { return TRUE; }
  int Run() override;

 private:
  std::atomic<bool> m_running{false};
  std::atomic<bool> m_request{false};
};
