// A second parser for the menu language, which finds every error of a file: after an error it
// continues at the next line, state, icon or section. It accepts exactly what the engine's parser
// accepts; tests compare the two. Section words, title and file order are in lint_parser.cpp, the
// entries of each section in lint_entries.cpp.
#pragma once

#include <string>

#include "tools/qmn/check/lint_tree.h"

class LintParser {
 public:
  LintParser(SourceText& source, const TokenList& list, Findings& findings)
      : m_source(source), m_list(list), m_findings(findings) {}

  LintTree Parse();

 private:
  enum class Phase { kBlocks, kSwitches, kResources };

  void Title();
  void Section();
  void Finish();
  void Order(const LintToken& word);
  void Missing(const Message& text);

  void Block(const LintToken& prefix);
  void NamelessBlock();
  bool IsMisspelt(const LintToken& name, const char* word, int next) const;
  void Misspelt(const LintToken& name, const char* word);
  void Mask(LintBlock& block);
  bool Group(LintBlock& block);
  void Lines(LintBlock& block);
  void LineOrError(LintBlock& block);
  void SkipToLine();

  void Switches();
  void Switch();
  bool SwitchHead(LintSwitch& owner);
  void States(LintSwitch& owner);
  bool State(LintSwitch& owner);
  void SkipToState();

  void Resources();
  bool Resource();
  void SkipToResource();

  const LintToken& At(size_t ahead = 0) const;
  bool Is(int kind) const { return At().kind == kind; }
  bool IsSectionEnd() const { return Is(QMN_PREFIX) || Is(QMN_END); }
  LintToken Take();
  bool Expect(int kind, Phrase what);
  bool ExpectToken(int kind, Phrase what, LintToken& out);
  bool ExpectText(Phrase what, LintToken& out);
  void Unexpected(const Message& what);
  Message Describe(const LintToken& token);
  std::string TextOf(const LintToken& token);

  SourceText& m_source;
  const TokenList& m_list;
  Findings& m_findings;
  LintTree m_tree;
  size_t m_at = 0;
  Phase m_phase = Phase::kBlocks;
  int m_unexpected = 0;  // errors so far, including those reported elsewhere
};
