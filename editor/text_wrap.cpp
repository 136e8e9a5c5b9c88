#include "editor/text_wrap.h"

namespace qvx {

std::wstring WrapText(const std::wstring& text, const std::vector<int>& prefixWidths, int width) {
  std::wstring wrapped;
  // Both run along the unbroken text: `limit` is the end of the present line, and `offset` the room
  // that all breaks so far left unused.
  long long limit = width, offset = 0;
  for (size_t i = 0; i < text.size(); ++i) {
    if (prefixWidths[i] + offset > limit) continue;
    wrapped += text[i];
    if (i + 2 < text.size() && prefixWidths[i + 1] + offset > limit) {
      wrapped += L"\r\n";
      offset += limit - prefixWidths[i] - offset;
      limit += width;
    }
  }
  return wrapped;
}

std::wstring UnwrapText(const std::wstring& text) {
  std::wstring line;
  for (size_t i = 0; i < text.size(); ++i) {
    if (text[i] == L'\r' && text[i + 1] == L'\n')  // the text ends with a null
      ++i;
    else
      line += text[i];
  }
  return line;
}

}  // namespace qvx
