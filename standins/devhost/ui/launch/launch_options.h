// The command line of the development host. Parsing opens nothing and checks no file, so that wrong
// usage is reported before a window appears.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace devhost {

struct LaunchOptions {
  std::wstring productFolder;  // empty: only the working folder is searched
  double hostVersion = 24.0;
  std::wstring profile = L"default";
  // --arx, in order; empty: the product module beside the program
  std::vector<std::wstring> modules;
  std::wstring script;                // --play
  std::optional<double> longestWait;  // --longest-wait in seconds; a play with a longer wait fails
  std::wstring journal;               // "-" is standard output; empty: none
  std::wstring startTrace;            // --trace-start: written at the end; empty: none
  std::vector<std::wstring> drawings;
  bool help = false;
  bool listCommands = false;  // prints the commands of host and modules, and ends
  bool doctor = false;        // prints the settings and starts nothing
};

// Parses the words after the program's name. False with one line of `error`.
bool ParseLaunchOptions(const std::vector<std::wstring>& words, LaunchOptions* out,
                        std::wstring* error);

const wchar_t* LaunchUsage();

}  // namespace devhost
