// Threads that CWinThread creates.
#include "afximpl.h"

#include <process.h>

// A message map and its objects belong to one thread: the new one has a state of its own, in which
// this object is AfxGetThread().
static unsigned __stdcall ThreadEntry(void* parameter) {
  auto* thread = static_cast<CWinThread*>(parameter);
  AfxGetThreadState().thread = thread;
  const int result = thread->InitInstance() ? thread->Run() : thread->ExitInstance();
  AfxGetThreadState().thread = nullptr;
  thread->Delete();
  AfxUnhookWindowCreate();
  AfxLockTempMaps();
  AfxUnlockTempMaps(TRUE);
  AfxFreeThreadState();
  return static_cast<unsigned>(result);
}

BOOL CWinThread::CreateThread(DWORD dwCreateFlags, UINT nStackSize,
                              LPSECURITY_ATTRIBUTES lpSecurityAttrs) {
  if (m_hThread) return FALSE;
  // Suspended, so that handle and number are there before the thread reads them.
  unsigned number = 0;
  const auto handle =
      _beginthreadex(lpSecurityAttrs, nStackSize, ThreadEntry, this, CREATE_SUSPENDED, &number);
  if (!handle) return FALSE;
  m_hThread = reinterpret_cast<HANDLE>(handle);
  m_nThreadID = number;
  if (!(dwCreateFlags & CREATE_SUSPENDED)) ::ResumeThread(m_hThread);
  return TRUE;
}

void CWinThread::Delete() {
  if (m_bAutoDelete) delete this;
}
