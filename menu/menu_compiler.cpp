#include "menu/menu_compiler.h"

#include <utility>

#include "menu/menu_parser.h"
#include "menu/menu_passes.h"

MenuCompiler::MenuCompiler(std::string source, SourceMessages& messages, SourceEcho* echo,
                           OpenComment openComment, NarrowDecoder* decoder)
    : m_source(Folded(std::move(source))),
      m_messages(messages),
      m_scanner(m_source, messages, echo, openComment),
      m_decoder(decoder) {}

std::string MenuCompiler::Folded(std::string source) {
  FoldLineEnds(source);
  return source;
}

int MenuCompiler::Compile(TMenuSystem& system) {
  system.EmptyLists();
  MenuParser parser(m_scanner, m_messages, system, m_decoder);
  if (parser.Parse() != 0) return 1;
  RunPasses(system, parser.Work());
  return 0;
}

int MenuCompiler::Parse(TMenuSystem& system) {
  return MenuParser(m_scanner, m_messages, system, m_decoder).Parse();
}
