// Functions for the menu tests: compiling a text and collecting its messages, dumps of tokens and
// of a system, a compiled file to bytes and back.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "ground/utf8_text.h"
#include "menu/menu_model.h"
#include "menu/menu_users.h"
#include "menu/source_messages.h"

inline std::string Utf8(const wchar_t* text) { return qvx::ToUtf8(text); }

class CollectedMessages : public SourceMessages {
 public:
  void ReportSyntaxError(const wchar_t* text, int line) override;
  std::string Text() const;  // "line: text" and a newline for each, newlines inside as \n
  std::vector<std::string> all;
};

class CollectedBoxes : public MenuBoxes {
 public:
  void ShowMessage(const wchar_t* text) override { all.push_back(Utf8(text)); }
  std::vector<std::string> all;
};

struct Compiled {
  int result = -1;
  CollectedMessages messages;
  TMenuSystem system;
  std::string Tree();
};

std::string Repeated(const char* text, int times);

// Stops at an unterminated comment. The source is in code page 936.
void Compile(const std::string& source, Compiled& into);

std::string DumpTokens(const std::string& source);  // "line KIND text" for each
std::string DumpTree(TMenuSystem& system);
std::string DumpBar(TMenuBar& bar, int indent = 0);

// Builds the sub-menus of a bar as the parser does; returns the number of steps.
int NestSubMenus(TMenuBar& bar);

std::string SaveBytes(TMenuSystem& system);
// Empty on success, else the name of the exception.
std::string LoadBytes(TMenuSystem& system, const std::string& bytes);

// A path in the folder for temporary files, and the file's content.
std::wstring TempPath(const wchar_t* name);
void WriteFile(const std::wstring& path, const std::string& bytes);
std::string ReadFile(const std::wstring& path);  // "<missing>" when it can't be read
void DeleteFileAt(const std::wstring& path);

// Runs the job on a thread with a stack of this size.
constexpr std::size_t kSmallStack = 256 * 1024;  // bytes
void OnSmallStack(void (*work)());
