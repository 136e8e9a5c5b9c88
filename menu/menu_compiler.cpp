#include "menu/menu_compiler.h"

#include <utility>

#include "menu/menu_parser.h"

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
  return MenuParser(m_scanner, m_messages, system, m_decoder).ParseAndFinish();
}

int MenuCompiler::Parse(TMenuSystem& system) {
  return MenuParser(m_scanner, m_messages, system, m_decoder).Parse();
}
