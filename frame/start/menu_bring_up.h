// The end of the start-up, run from a timer when the host's message loop is free: looking for the
// menu, bringing up the screen menu and the recent commands, and the one text that is sent when all
// of it stands. Also the command TLoadMenu.
#pragma once

class MenuBringUp {
 public:
  // Runs once per load of the module; a second call returns at once. With the screen menu switched
  // off in the settings nothing is done and nothing remembered, so the readiness timer calls here
  // for as long as the host runs: that is how the setting works.
  void Run();

  // One firing of the readiness timer.
  void StepReadiness();

  bool IsDone() const { return m_done; }

 private:
  bool m_done = false;
  bool m_showBarPending = true;
  // Nothing sets it, so its message is never printed; that is meant to stay.
  bool m_firstRun = false;
};
