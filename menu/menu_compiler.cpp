#include "menu/menu_compiler.h"

#include <utility>

#include "menu/menu_parser.h"
#include "menu/menu_passes.h"

MenuCompiler::MenuCompiler(std::string source, SourceMessages& messages, SourceEcho* echo,
                           OpenComment openComment)
    : m_source(Folded(std::move(source))),
      m_messages(messages),
      m_scanner(m_source, messages, echo, openComment) {}

std::string MenuCompiler::Folded(std::string source) {
  FoldLineEnds(source);
  return source;
}

int MenuCompiler::Compile(TMenuSystem& system) {
  system.EmptyLists();
  const int result = Parse(system);
  RunPasses(system);
  return result;
}

int MenuCompiler::Parse(TMenuSystem& system) {
  return MenuParser(m_scanner, m_messages, system).Parse();
}
