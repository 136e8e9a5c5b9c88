// The inputs of one size, made once per run: source, canonical JSON with and without white space,
// compiled file on disk. Every input has been checked to give equal bytes with engine and peer.
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
// Checks generator and peer on small inputs, including the given source
// files (the product's menus).
void CheckPeer(const std::string& folder);

// Ends the program on any message: a benchmark of a failing compilation is meaningless.
class NoMessages : public SourceMessages, public MenuBoxes {
 public:
  void ReportSyntaxError(const wchar_t* text, int line) override;
  void ShowMessage(const wchar_t* text) override;
};

std::unique_ptr<TMenuSystem> CompileWithEngine(std::string source);
std::wstring WidePath(const std::string& path);
std::string BenchFile(const std::string& name);  // in a folder that is removed at exit
[[noreturn]] void FailLoudly(const std::string& text);
