#include "tools/qmn/check/check_source.h"

#include "tools/qmn/check/lint_parser.h"

namespace {

void CheckEncoding(const SourceText& source, Findings& findings) {
  if (!source.IsUtf8()) return;
  const std::string& bytes = source.Bytes();
  size_t first = 0;
  while (static_cast<unsigned char>(bytes[first]) < 0x80) ++first;
  if (first == 0 && bytes.compare(0, 3, "\xEF\xBB\xBF") == 0) first = 3;
  while (first < bytes.size() && static_cast<unsigned char>(bytes[first]) < 0x80) ++first;
  if (first == bytes.size()) return;
  findings.Add(Rule::kUtf8, first, first + 1,
               "the file is UTF-8; menus are read in the code page and show other characters");
}

}  // namespace

Findings CheckSource(SourceText& source) {
  Findings findings;
  CheckEncoding(source, findings);
  const TokenList tokens = ReadTokens(source, findings);
  const LintTree tree = LintParser(source, tokens, findings).Parse();
  const CheckContext context{source, tree, findings};
  CheckBlocks(context);
  CheckNames(context);
  CheckMenuLines(context);
  return findings;
}
