// The watchdog of a play.
#include "devhost/play/win/watchdog.h"

#include <cstdio>

namespace devhost {
namespace {

using namespace std::chrono_literals;

constexpr auto kLongestStep = 30s;
constexpr UINT kLongestSilence = 5000;  // ms
constexpr auto kLook = 500ms;

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
  while (!m_wake.wait_for(lock, kLook, [this] { return m_stop; })) {
    lock.unlock();
    CheckStep();
    CheckMainThread();
    lock.lock();
  }
}

// A step that hangs is waiting for a main thread that may never answer again: there is no orderly
// end, and the process is ended with the exit code of a failed play.
void PlayWatchdog::CheckStep() {
  const auto now = std::chrono::steady_clock::now();
  if (m_step != m_runner.StepNumber()) {
    m_step = m_runner.StepNumber();
    m_stepBegan = now;
  }
  const auto limit = kLongestStep + m_runner.PlannedTime(m_step);
  if (now - m_stepBegan < limit) return;
  Report(m_runner.Place(m_step) + "\n  the step takes more than 30 s; the program is ended");
  TerminateProcess(GetCurrentProcess(), 1);
}

// Told once for each time that it falls silent.
void PlayWatchdog::CheckMainThread() {
  DWORD_PTR ignored;
  const bool answers =
      SendMessageTimeoutW(m_frame, WM_NULL, 0, 0, SMTO_NORMAL, kLongestSilence, &ignored) != 0 ||
      !IsWindow(m_frame);
  if (!answers && !m_stuck)
    Report(m_runner.Place(m_runner.StepNumber()) +
           "\n  the main thread has taken no message for 5 s");
  m_stuck = !answers;
}

}  // namespace devhost
