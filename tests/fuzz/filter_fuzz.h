// One iteration of the message filter's fuzzers and of the fixed run in the tests. Each stops the
// process when an invariant is violated; the sanitizers detect the rest.
#pragma once

#include <map>
#include <string>

// What a run reached, so that a test can require it.
struct FilterFuzzRun {
  std::map<std::string, int> operations;  // of the filter, by the first word of the diary's entry
  int messages = 0, swallowed = 0;
  int nested = 0;   // messages during a menu or during help
  int unloads = 0;  // of the module during a menu
  int previewSteps = 0, previewTurnOffs = 0;

  void Add(const FilterFuzzRun& other);
};

// The bytes are a stream of messages, changes of the host's state and of the settings, and pauses
// of the pointer, over a filter and a selection preview of their own.
FilterFuzzRun FuzzMessageFilter(const std::string& bytes);

// The bytes are the file that maps commands to help keywords. Returns whether one of the commands
// that are looked up was found.
bool FuzzHelpMap(const std::string& bytes);
