// The watchdog; see the header.
#include "devhost/play/win/watchdog.h"

#include <cstdio>

namespace devhost {
namespace {

using namespace std::chrono_literals;

constexpr auto kStepTimeout = 30s;
constexpr UINT kMessageTimeout = 5000;  // ms
constexpr auto kCheckInterval = 500ms;

void Report(const std::string& text) {
  std::fprintf(stderr, "%s\n", text.c_str());
  std::fflush(stderr);
}

}  // namespace

PlayWatchdog::PlayWatchdog(const PlayRunner& runner, HWND frame)
    : m_runner(runner),
      m_frame(frame),
      m_stepBegan(std::chrono::steady_clock::now()),
      m_thread([this] { Watch(); }) {}

PlayWatchdog::~PlayWatchdog() {
  {
    const std::lock_guard lock(m_mutex);
    m_stop = true;
  }
  m_wake.notify_all();
  m_thread.join();
}

void PlayWatchdog::Watch() {
  std::unique_lock lock(m_mutex);
  while (!m_wake.wait_for(lock, kCheckInterval, [this] { return m_stop; })) {
    lock.unlock();
    CheckStep();
    CheckMainThread();
    lock.lock();
  }
}

// A step that takes too long waits for a main thread that may never respond, so the process is
// terminated with the exit code of a failed play.
void PlayWatchdog::CheckStep() {
  const auto now = std::chrono::steady_clock::now();
  if (m_step != m_runner.StepNumber()) {
    m_step = m_runner.StepNumber();
    m_stepBegan = now;
  }
  const auto limit = kStepTimeout + m_runner.PlannedTime(m_step);
  if (now - m_stepBegan < limit) return;
  Report(m_runner.Place(m_step) + "\n  the step takes more than 30 s; the program is ended");
  TerminateProcess(GetCurrentProcess(), 1);
}

// Reported once for each time that the main thread stops processing messages.
void PlayWatchdog::CheckMainThread() {
  DWORD_PTR ignored;
  const bool answers =
      SendMessageTimeoutW(m_frame, WM_NULL, 0, 0, SMTO_NORMAL, kMessageTimeout, &ignored) != 0 ||
      !IsWindow(m_frame);
  if (!answers && !m_stuck)
    Report(m_runner.Place(m_runner.StepNumber()) +
           "\n  the main thread has taken no message for 5 s");
  m_stuck = !answers;
}

}  // namespace devhost
