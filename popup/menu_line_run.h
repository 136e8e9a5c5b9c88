// Executes a chosen line of a pop-up: sets a switch, folds a group of the screen menu, or sends a
// command to the host. Called by the context window. Deliberate: unlike the buttons of the screen
// menu it ignores a running command. A switch changes without a message, and a command is sent
// without a cancel before it.
#pragma once

#include "menu/line_state.h"

class MenuLineHost {
 public:
  virtual ~MenuLineHost() = default;
  virtual qvx::LineSources Lines() = 0;
  virtual void UpdateStatusBar() = 0;
  virtual void RefreshSwitches() = 0;  // of the screen menu, if there is one
  virtual void Print(const wchar_t* text) = 0;
  virtual void TailCommand(const wchar_t* text) = 0;  // to the screen menu, if there is one
  virtual void AddRecent(const wchar_t* command) = 0;
  virtual void SendToHost(const wchar_t* text) = 0;
};

// 1 when the block has a line with the identifier, otherwise 0. May destroy the line.
int ExecuteMenuLine(TMenuBar& bar, int id, MenuLineHost& host);
