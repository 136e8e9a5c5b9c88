#include "editor/win/my_thread.h"

#include "editor/selection_preview.h"
#include "editor/win/live_preview_host.h"
#include "ground/guard.h"

namespace {

constexpr DWORD kPollingPeriod = 20;  // milliseconds

}  // namespace

// The owner waits for the end and deletes it.
CMyThread::CMyThread() { m_bAutoDelete = FALSE; }

bool CMyThread::Start() {
  m_running = true;
  if (!CreateThread(CREATE_SUSPENDED)) return m_running = false;
  SetThreadPriority(THREAD_PRIORITY_IDLE);
  ResumeThread();
  return true;
}

int CMyThread::Run() {
  while (m_running) {
    if (!m_request.exchange(false)) {
      ::Sleep(kPollingPeriod);
      continue;
    }
    qvx::Guarded([] {
      LivePreviewHost host;
      qvx::StepPreviewUntimed(host);
    });
  }
  return 0;
}
