// Threads that CWinThread creates: which functions run in them and in which order, suspended start,
// priority, deletion of the object.
#include "test_app.h"

#include <string>

namespace {

constexpr DWORD kPatience = 10000;  // ms; a thread that does not end fails the test

// Notes what runs in it. What the test reads it reads after the thread has ended.
class NotingThread : public CWinThread {
 public:
  explicit NotingThread(std::string& notes, BOOL begins = TRUE)
      : m_notes(notes), m_begins(begins) {}
  ~NotingThread() override { m_notes += "deleted "; }

  BOOL InitInstance() override {
    m_notes += AfxGetThread() == this && m_nThreadID == ::GetCurrentThreadId() ? "init " : "alien ";
    return m_begins;
  }
  int Run() override {
    m_notes += "run ";
    priority = GetThreadPriority();
    return 7;
  }
  int ExitInstance() override {
    m_notes += "exit ";
    return 3;
  }
  int priority = -1;

 private:
  std::string& m_notes;
  BOOL m_begins;
};

DWORD Ended(HANDLE thread) {
  DWORD code = ~0u;
  EXPECT_EQ(WAIT_OBJECT_0, ::WaitForSingleObject(thread, kPatience));
  ::GetExitCodeThread(thread, &code);
  return code;
}

}  // namespace

TEST(Thread, RunsInitInstanceAndRunInAThreadOfItsOwn) {
  std::string notes;
  {
    NotingThread thread(notes);
    EXPECT_TRUE(thread.m_bAutoDelete) << "unless it is told otherwise";
    thread.m_bAutoDelete = FALSE;
    ASSERT_TRUE(thread.CreateThread());
    EXPECT_NE(::GetCurrentThreadId(), thread.m_nThreadID);
    EXPECT_EQ(7u, Ended(thread.m_hThread));
    EXPECT_EQ("init run ", notes);
    EXPECT_FALSE(thread.CreateThread()) << "a second time";
  }
  EXPECT_EQ("init run deleted ", notes);
}

TEST(Thread, RunsExitInstanceWhenItDoesNotBegin) {
  std::string notes;
  NotingThread thread(notes, FALSE);
  thread.m_bAutoDelete = FALSE;
  ASSERT_TRUE(thread.CreateThread());
  EXPECT_EQ(3u, Ended(thread.m_hThread));
  EXPECT_EQ("init exit ", notes);
}

TEST(Thread, ASuspendedThreadWaitsForResumeAndKeepsItsPriority) {
  std::string notes;
  NotingThread thread(notes);
  thread.m_bAutoDelete = FALSE;
  ASSERT_TRUE(thread.CreateThread(CREATE_SUSPENDED));
  EXPECT_EQ(WAIT_TIMEOUT, ::WaitForSingleObject(thread.m_hThread, 0));
  EXPECT_TRUE(thread.SetThreadPriority(THREAD_PRIORITY_IDLE));
  EXPECT_EQ("", notes);
  EXPECT_EQ(1u, thread.ResumeThread());
  EXPECT_EQ(7u, Ended(thread.m_hThread));
  EXPECT_EQ(-15, thread.priority);
}

TEST(Thread, DeletesItselfAtItsEndWhenItMay) {
  std::string notes;
  auto* thread = new NotingThread(notes);
  ASSERT_TRUE(thread->CreateThread(CREATE_SUSPENDED));
  HANDLE handle = nullptr;
  ASSERT_TRUE(::DuplicateHandle(::GetCurrentProcess(), thread->m_hThread, ::GetCurrentProcess(),
                                &handle, 0, FALSE, DUPLICATE_SAME_ACCESS));
  thread->ResumeThread();
  EXPECT_EQ(7u, Ended(handle));
  ::CloseHandle(handle);
  EXPECT_EQ("init run deleted ", notes);
}

TEST(Thread, TheProgramsThreadStaysTheProgram) {
  std::string notes;
  NotingThread thread(notes);
  thread.m_bAutoDelete = FALSE;
  ASSERT_TRUE(thread.CreateThread());
  Ended(thread.m_hThread);
  EXPECT_EQ(&App(), AfxGetThread());
}
