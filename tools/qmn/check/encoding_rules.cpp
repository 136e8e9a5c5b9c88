// A source in another encoding than the code page.
#include "tools/qmn/check/check_source.h"
#include "tools/qmn/encoding.h"

namespace {

struct Trouble {
  Rule rule;
  size_t at;
  Message text;
};

size_t FirstAboveAscii(const std::string& bytes) {
  size_t at = 0;
  while (at < bytes.size() && static_cast<unsigned char>(bytes[at]) < 0x80) ++at;
  return at;
}

Trouble TroubleOf(Encoding encoding, const SourceText& source) {
  const int page = static_cast<int>(source.Page());
  switch (encoding) {
    case Encoding::kUtf8:
      return {Rule::kUtf8, FirstAboveAscii(source.Bytes()),
              "the file is UTF-8, but the shell reads menus in code page {0}; 'qmn fmt --to {0}' "
              "converts it, and a source that stays in UTF-8 needs --codepage 65001"_say(page)};
    case Encoding::kUtf8WithMark:
      return {Rule::kByteOrderMark, 0,
              "the file begins with the byte order mark of UTF-8, but the shell reads menus in "
              "code page {0}; 'qmn fmt --to {0}' converts it, and a source that stays in UTF-8 "
              "needs --codepage 65001"_say(page)};
    case Encoding::kNotUtf8:
      return {Rule::kNotUtf8, FirstAboveAscii(source.Bytes()),
              "the file is not UTF-8, as code page 65001 says; 'qmn fmt --to utf-8' converts it "
              "from code page {0}, and a source that stays as it is needs --codepage {0}"_say(
                  static_cast<int>(kUsualPage))};
    default:
      return {Rule::kUtf16, 0,
              source.Page() == kUtf8Page
                  ? "the file is UTF-16, which nothing here reads; 'qmn fmt --to utf-8' converts "
                    "it"_say
                  : "the file is UTF-16, but the shell reads menus in code page {0}; 'qmn fmt --to "
                    "{0}' converts it"_say(page)};
  }
}

}  // namespace

bool CheckEncoding(const SourceText& source, const CheckSettings& settings, Findings& findings) {
  const Encoding encoding = EncodingOf(source.Bytes(), source.Page());
  if (encoding == Encoding::kPage) return true;
  const Trouble trouble = TroubleOf(encoding, source);
  if (settings.Hides(trouble.rule)) return true;
  findings.Add(trouble.rule, trouble.at, trouble.at + 1, trouble.text);
  return false;
}
