// Plays the steps of a script in order and stops at the first failure. Windows are
// accessed through PlayWorld.
#pragma once

#include <atomic>

#include "devhost/play/play_expect.h"

namespace devhost {

class PlayRunner {
 public:
  // `file` is the name of the script in messages.
  PlayRunner(std::string file, std::vector<Step> steps, const Journal& journal, PlayWorld& world);

  // Returns 0 if every step succeeded, otherwise prints the failure and returns 1. Stops at `quit`
  // and `restart`.
  int Play();
  bool EndedInRestart() const;  // after Play

  // For the watchdog, from any thread: the index of the current step, and its place in the script.
  int StepNumber() const { return m_step; }
  std::string Place(int stepNumber) const;                      // "file:line: source"
  int Line(int stepNumber) const;                               // 0: no such step
  std::chrono::milliseconds PlannedTime(int stepNumber) const;  // duration given in the script

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
