#include "tools/qmn/fmt_source.h"

#include <algorithm>

#include "menu/menu_scanner.h"
#include "tools/qmn/fmt_layout.h"

FormattedSource FormatSource(const std::string& source, unsigned page) {
  std::string folded = source;
  FoldLineEnds(folded);
  const SourceTokens tokens = TokenizeSource(folded);
  FormattedSource result;
  if (tokens.stray) {
    const char* begin = folded.data();
    result.strayLine = 1 + static_cast<int>(std::count(begin, tokens.stray, '\n'));
    return result;
  }
  result.text = Unfolded(LayOutSource(tokens, page), LineEndsOf(source));
  return result;
}

LineEnds LineEndsOf(const std::string& source) {
  const size_t newline = source.find('\n');
  const bool cr = newline != std::string::npos && newline > 0 && source[newline - 1] == '\r';
  return cr ? LineEnds::kCrLf : LineEnds::kLf;
}

std::string Unfolded(const std::string& folded, LineEnds ends) {
  std::string text;
  text.reserve(folded.size() + folded.size() / 16);
  for (const char c : folded) {
    if (c == '\n' && (ends == LineEnds::kCrLf || text.ends_with('\r'))) text += '\r';
    text += c;
  }
  return text;
}
