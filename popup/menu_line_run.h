// What a chosen line of a pop-up does: flip a switch, fold a group of the screen menu, or send a
// command to the host. At once and with no care for what runs there: a switch flips under a running
// command without a word, a command is sent without cancelling first. That is the difference to the
// buttons of the screen menu, and users know it so. Called by the context window.
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

// 1 when a line of the block took the identifier, otherwise 0. The line may be gone afterwards.
int ExecuteMenuLine(TMenuBar& bar, int id, MenuLineHost& host);
