// The inputs of one size, made once a run: source, canonical JSON with and without white space,
// compiled
// file on disk. Engine and peer have been held to equal bytes before anybody gets one.
#pragma once

#include <memory>
#include <string>

#include "menu/menu_system.h"
#include "menu/menu_users.h"
#include "menu/source_messages.h"

struct BenchCase {
  int lines = 0;
  std::string source;
  std::string json;       // as qmn dump prints it
  std::string tightJson;  // the same without white space
  std::string compiledPath;
  size_t compiledBytes = 0;
};

// Ends the program with a message when engine and peer differ, or when a source does not compile.
const BenchCase& CaseOf(int lines);
// Generator and peer on small inputs, the given source files (the product's menus) among them.
void CheckPeer(const std::string& folder);

// Any message ends the program: a benchmark of a failure would be none.
class NoMessages : public SourceMessages, public MenuBoxes {
 public:
  void ReportSyntaxError(const wchar_t* text, int line) override;
  void ShowMessage(const wchar_t* text) override;
};

std::unique_ptr<TMenuSystem> CompileWithEngine(std::string source);
std::wstring WidePath(const std::string& path);
std::string BenchFile(const std::string& name);  // in a folder that goes with this process
[[noreturn]] void FailLoudly(const std::string& text);
