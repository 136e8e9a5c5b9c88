#include "ground/text_lines.h"

namespace qvx {

TWCString TakeLine(const TWCString& text, int& at) {
  constexpr int kLongestLine = 255;
  const int start = at;
  while (at < text.Length() && text[at] != L'\n' && at - start < kLongestLine) ++at;
  TWCString line;
  line.Assign(text + start, at - start);
  if (at < text.Length() && text[at] == L'\n') ++at;
  return line;
}

}  // namespace qvx
