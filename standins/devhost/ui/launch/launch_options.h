// What the command line of the development host says. Words in, record out; nothing is opened or
// checked for existence here, so that wrong usage is told before any window appears.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace devhost {

struct LaunchOptions {
  std::wstring productFolder;  // empty: the working folder alone is searched
  double hostVersion = 24.0;
  std::wstring profile = L"default";
  std::vector<std::wstring> modules;  // --arx, in order; empty: the product beside the program
  std::wstring script;                // --play
  std::optional<double> longestWait;  // --longest-wait, seconds: a play that waits longer fails
  std::wstring journal;               // "-" is standard output; empty: none
  std::wstring startTrace;            // --trace-start: written at the end; empty: none
  std::vector<std::wstring> drawings;
  // A right click in the view asks the module for its context menu first (see right_click_menu).
  bool rightClickMenu = false;
  bool help = false;
  bool doctor = false;  // prints what the product would start with, and starts nothing
};

// Fills `out` from the words behind the program's name. Otherwise false and one line of `error`.
bool ParseLaunchOptions(const std::vector<std::wstring>& words, LaunchOptions* out,
                        std::wstring* error);

const wchar_t* LaunchUsage();

}  // namespace devhost
