// Plays the steps of a script one after the other and stops at the first that fails. Decides
// nothing about windows: the world it is given does.
#pragma once

#include <atomic>

#include "devhost/play/play_expect.h"

namespace devhost {

class PlayRunner {
 public:
  // `file` is the script's name in messages.
  PlayRunner(std::string file, std::vector<Step> steps, const Journal& journal, PlayWorld& world);

  // 0 when every step went well, otherwise 1; the failure is printed. Stops at `quit` and
  // `restart`.
  int Play();
  bool EndedInRestart() const;  // once played

  // For the watchdog, from any thread: which step is being played (a running number), and where.
  int StepNumber() const { return m_step; }
  std::string Place(int stepNumber) const;                      // "file:line: source"
  int Line(int stepNumber) const;                               // 0: there is no such step
  std::chrono::milliseconds PlannedTime(int stepNumber) const;  // that the script itself asks for

 private:
  std::string PlayStep(const Step& step);
  std::string WaitIdle();
  std::string WaitUntil(const char* what, bool (PlayRunner::*ready)());
  bool IsIdle() { return m_world.IsIdle(); }
  bool IsMenuOpen() { return m_world.IsMenuOpen(); }
  bool IsPopupOpen() { return m_world.IsPopupOpen(); }

  const std::string m_file;
  const std::vector<Step> m_steps;
  PlayWorld& m_world;
  PlayExpectations m_expectations;
  std::atomic<int> m_step{0};
};

}  // namespace devhost
