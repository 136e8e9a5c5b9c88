// The last part of the start, run by a timer when the host's message loop is free: finds the
// menu, creates the screen menu, loads the recent commands, then sends TShowBar once. Also the
// command TLoadMenu.
#pragma once

class MenuBringUp {
 public:
  // Runs once per load of the module; a second call returns at once. When the setting Obsolete
  // turns the screen menu off, it does nothing and does not count as run. Deliberate: the readiness
  // timer then calls it as long as the host runs, and the user sees no screen menu.
  void Run();

  // One firing of the readiness timer.
  void StepReadiness();

  bool IsDone() const { return m_done; }

 private:
  bool m_done = false;
  bool m_showBarPending = true;
  // Deliberate: never set, so the message for a first run is never printed.
  bool m_firstRun = false;
};
