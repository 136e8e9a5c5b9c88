// All tokens of a source, read by the engine's own scanner. What the scanner reports and what it
// skips without a message become findings. After an unterminated text or an over-long menu line,
// reading continues at the likely end, so that one error gives one finding.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "menu/menu_scanner.h"
#include "tools/qmn/check/findings.h"
#include "tools/qmn/check/source_text.h"

struct LintToken {
  int kind = QMN_END;
  size_t begin = 0, end = 0;  // of a text including its quotes
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
