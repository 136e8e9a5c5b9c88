#include "tools/qmn/check/token_rules.h"

#include <cmath>
#include <limits>

namespace {

bool IsWord(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}

std::string HexOf(char c) {
  constexpr char kDigits[] = "0123456789ABCDEF";
  const auto byte = static_cast<unsigned char>(c);
  return {'0', 'x', kDigits[byte >> 4], kDigits[byte & 15]};
}

bool IsCut(const GapContext& context, const LintToken& token) {
  return token.end - token.begin == static_cast<size_t>(kLongestToken) &&
         token.end < context.bytes.size() && IsWord(context.bytes[token.end]);
}

void CheckWord(const GapContext& context, const LintToken& token) {
  if (IsCut(context, token))
    context.findings.Add(Rule::kTokenCut, token.begin, token.end,
                         "only 199 bytes of this are read in one; the rest stands on its own"_say);
}

void CheckNumber(const GapContext& context, const LintToken& token, double real) {
  if (IsCut(context, token)) return CheckWord(context, token);
  if (token.kind == QMN_FCON) {
    if (std::isinf(real))
      context.findings.Add(Rule::kNumberRange, token.begin, token.end,
                           "this number is too large and becomes infinite"_say);
    return;
  }
  if (token.number != std::numeric_limits<int>::max()) return;
  const size_t digits = context.bytes.find_first_not_of('0', token.begin);
  if (context.bytes.compare(digits, token.end - digits, "2147483647") == 0) return;
  context.findings.Add(Rule::kNumberRange, token.begin, token.end,
                       "this number is too large and becomes 2147483647"_say);
}

// The engine searches quotes and backslashes by byte, also within double-byte characters.
void CheckDoubleByte(const GapContext& context, size_t at) {
  if (context.bytes[at + 1] != '\\' || at + 2 >= context.bytes.size()) return;
  if (context.bytes[at + 2] != '"') return;
  context.findings.Add(
      Rule::kDoubleByteBackslash, at, at + 3,
      "the second byte of '{0}' is that of a backslash, so the quote behind it does not end the text"_say(
          context.source.Shown(at, at + 2)));
}

void CheckBackslash(const GapContext& context, size_t at) {
  const char next = context.bytes[at + 1];
  if (next != '"' && next != '\\' && next != '\n') return;
  const Message what =
      next == '\n' ? Message("the newline"_say) : "the '{0}'"_say(std::string(1, next));
  context.findings.Add(Rule::kBackslash, at, at + 2,
                       "the backslash stays in the text together with {0} behind it"_say(what));
}

void CheckCharacters(const GapContext& context, const LintToken& token) {
  const std::string_view bytes(context.bytes);
  bool isReported = context.source.IsUtf8();
  bool isEscaped = false;
  for (size_t at = token.begin; at < token.end;) {
    const TextChar next = context.source.PageDecoder().Next(bytes, at);
    if (!next.isValid && !isReported) {
      isReported = true;
      context.findings.Add(
          Rule::kUndecodable, at, at + 1,
          "the byte {0} is no character of the code page and shows as a replacement"_say(
              HexOf(bytes[at])));
    }
    if (token.IsText()) {
      if (next.size == 2) CheckDoubleByte(context, at);
      const bool isBackslash = next.code == '\\' && !isEscaped;
      if (isBackslash && at + 1 < token.end) CheckBackslash(context, at);
      isEscaped = isBackslash;
    }
    at += next.size;
  }
}

}  // namespace

void CheckToken(const GapContext& context, const LintToken& token, double real) {
  if (token.IsText() || token.IsLine()) return CheckCharacters(context, token);
  if (token.kind == QMN_ICON || token.kind == QMN_FCON) return CheckNumber(context, token, real);
  if (token.IsName()) CheckWord(context, token);
}
