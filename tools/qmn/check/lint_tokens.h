// All tokens of a source at once, read by the engine's own scanner, with what it reports and what
// it skips in silence as findings. Behind a broken text or an over-long menu line the reading goes
// on where a reader would, so that one fault gives one finding.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "menu/menu_scanner.h"
#include "tools/qmn/check/findings.h"
#include "tools/qmn/check/source_text.h"

struct LintToken {
  int kind = QMN_END;
  size_t begin = 0, end = 0;  // a text with its quotes
  int number = 0;

  bool IsText() const { return kind == QMN_STRING || kind == QMN_ERR_STRING; }
  bool IsLine() const { return kind == QMN_MENU_ITEM || kind == QMN_ERR_MENU_ITEM; }
  bool IsName() const { return kind == QMN_IDENTIFIER; }
};

struct TokenList {
  std::vector<LintToken> tokens;  // the last one is the end
  bool endedInComment = false;    // a /* that hides the rest of the file
  bool endedByZero = false;
};

TokenList ReadTokens(SourceText& source, Findings& findings);
