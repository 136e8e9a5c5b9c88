#include "tools/qmn/decompile_encoder.h"

#include <cstdio>

#include "afxstr.h"

namespace {

constexpr wchar_t kReplacement = 0xFFFD;

bool IsPair(std::wstring_view units) {
  return units.size() >= 2 && (units[0] & 0xFC00) == 0xD800 && (units[1] & 0xFC00) == 0xDC00;
}

}  // namespace

bool PageEncoder::Append(std::wstring_view wide, std::string& out) {
  while (!wide.empty()) {
    if (static_cast<unsigned>(wide[0]) < 0x80) {
      out += static_cast<char>(wide[0]);
      wide.remove_prefix(1);
      continue;
    }
    const std::wstring_view character = wide.substr(0, IsPair(wide) ? 2 : 1);
    const std::string bytes = character.size() == 1 ? BytesOf(character[0]) : Encode(character);
    if (bytes.empty()) return Refuse(character);
    out += bytes;
    wide.remove_prefix(character.size());
  }
  return true;
}

const std::string& PageEncoder::BytesOf(wchar_t unit) {
  const auto [at, isNew] = m_known.try_emplace(unit);
  if (isNew) at->second = unit == kReplacement ? BrokenByte() : Encode({&unit, 1});
  return at->second;
}

std::string PageEncoder::Encode(std::wstring_view character) const {
  std::string bytes = WideToAnsi(character, m_page);
  return AnsiToWide(bytes, m_page) == character ? bytes : std::string();
}

// A byte that is no character and does not consume the byte after it.
std::string PageEncoder::BrokenByte() const {
  for (int byte = 0xFF; byte >= 0x80; --byte) {
    const std::string one(1, static_cast<char>(byte));
    const std::wstring broken(1, kReplacement);
    if (AnsiToWide(one + "A", m_page) == broken + L"A" &&
        AnsiToWide(one + one, m_page) == broken + broken)
      return one;
  }
  return {};
}

bool PageEncoder::Refuse(std::wstring_view character) {
  unsigned code = static_cast<unsigned>(character[0]) & 0xFFFF;
  if (character.size() == 2)
    code = 0x10000 + ((code & 0x3FF) << 10 | (static_cast<unsigned>(character[1]) & 0x3FF));
  char text[16];
  std::snprintf(text, sizeof text, "U+%04X", code);
  m_lacking = text;
  return false;
}
