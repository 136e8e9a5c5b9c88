// Comments that silence findings: // qmn-ignore QMN052 QMN047. With other text on its line, a
// comment silences that line, otherwise the next line that has text. Without codes it silences all
// warnings of the line. An error is silenced only where a rule may be ignored at all.
#pragma once

#include <vector>

#include "tools/qmn/check/check_settings.h"
#include "tools/qmn/check/source_text.h"

class Silencing {
 public:
  explicit Silencing(const SourceText& source);

  // True when a comment silences the rule on that line; the comment then counts as used.
  bool Silences(Rule rule, size_t offset);

  struct Unused {
    size_t begin, end;
    std::string word;  // as written: a code, or the mark of a comment without codes
  };
  // The words that silenced nothing, though a rule of theirs ran or none has their name.
  std::vector<Unused> UnusedWords(const RuleSet& notRun) const;

 private:
  struct Word {
    size_t begin, end;
    int line;  // the line that it silences; 0 when nothing follows
    RuleSet rules;
    bool isUsed = false;
  };
  void ReadGap(size_t begin, size_t end, std::vector<Word>& open);
  void ReadComment(size_t begin, size_t end, std::vector<Word>& open);

  const SourceText& m_source;
  std::vector<Word> m_words;
};
