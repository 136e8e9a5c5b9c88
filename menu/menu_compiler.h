// Compiles source bytes to a menu system: scanner, parser and passes. Each object is one run
// without shared state, so that any number may exist at a time. The caller reads the source file,
// writes the compiled file and uses the result.
#pragma once

#include <string>

#include "menu/ansi_text.h"
#include "menu/menu_scanner.h"
#include "menu/menu_system.h"

class MenuCompiler {
 public:
  // `source` is the content of the file; line ends are folded here. Without a decoder its code page
  // is the system's.
  MenuCompiler(std::string source, SourceMessages& messages, SourceEcho* echo = nullptr,
               OpenComment openComment = OpenComment::kReadOn, NarrowDecoder* decoder = nullptr);

  // 0 when the source was accepted, 1 after a syntax error; the lists are then empty. The system's
  // lists are emptied first; its title and recent list are kept.
  int Compile(TMenuSystem& system);
  // Parses only: the lists are not emptied first, and no pass runs.
  int Parse(TMenuSystem& system);

  MenuScanner& Scanner() { return m_scanner; }

 private:
  static std::string Folded(std::string source);

  const std::string m_source;
  SourceMessages& m_messages;
  MenuScanner m_scanner;
  NarrowDecoder* m_decoder;
};
