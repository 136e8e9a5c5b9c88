// From source bytes to a finished system: scan, parse, run the passes. Each object is one run and
// nothing outlives it, so that any number may be at work. Reading the file, writing the compiled
// one and handing the result over belong to the caller.
#pragma once

#include <string>

#include "menu/ansi_text.h"
#include "menu/menu_scanner.h"
#include "menu/menu_system.h"

class MenuCompiler {
 public:
  // `source` as read from the file; its line ends are folded here. Without a decoder its code page
  // is the system's.
  MenuCompiler(std::string source, SourceMessages& messages, SourceEcho* echo = nullptr,
               OpenComment openComment = OpenComment::kReadOn, NarrowDecoder* decoder = nullptr);

  // 0 when the source was accepted, 1 after a syntax error. The system's lists are emptied first;
  // its title and recent list stay. After an error the lists are empty, and the
  // passes have nothing to do.
  int Compile(TMenuSystem& system);
  // The parse alone, without emptying and without passes.
  int Parse(TMenuSystem& system);

  MenuScanner& Scanner() { return m_scanner; }

 private:
  static std::string Folded(std::string source);

  const std::string m_source;
  SourceMessages& m_messages;
  MenuScanner m_scanner;
  NarrowDecoder* m_decoder;
};
