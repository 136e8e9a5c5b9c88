#include "kernel/ini_file.h"

namespace {

// The second byte of a double-byte character can equal '[', ']' or '=', but not a blank, tab or
// control character: therefore the former are searched in wide text.
std::string_view Trim(std::string_view text) {
  const char* const kBlanks = " \t\r\n";
  const auto first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

TWCString WideOf(std::string_view bytes) {
  return TUString(bytes.data(), static_cast<int>(bytes.size()));
}

TWCString TrimWide(const wchar_t* text, int count) {
  while (count > 0 && (text[0] == L' ' || text[0] == L'\t')) ++text, --count;
  while (count > 0 && (text[count - 1] == L' ' || text[count - 1] == L'\t')) --count;
  TWCString trimmed;
  trimmed.Assign(text, count);
  return trimmed;
}

// The name between the brackets; false when the line does not begin a section.
bool SectionName(const TWCString& line, TWCString& name) {
  if (line[0] != L'[') return false;
  int close = 1;
  while (close < line.Length() && line[close] != L']') ++close;
  if (close == line.Length()) return false;
  name = TrimWide(line + 1, close - 1);
  return true;
}

}  // namespace

bool IniSection::Read(std::string_view bytes, const wchar_t* section) {
  bool inside = false, found = false;
  while (!bytes.empty()) {
    const auto end = bytes.find('\n');
    const std::string_view line = Trim(bytes.substr(0, end));
    bytes = end == std::string_view::npos ? std::string_view{} : bytes.substr(end + 1);
    if (line.empty() || line[0] == ';') continue;
    TWCString name;
    if (line[0] == '[' && SectionName(WideOf(line), name)) {
      inside = name.EqualsNoCase(section);
      found = found || inside;
    } else if (inside) {
      AddLine(line);
    }
  }
  return found;
}

void IniSection::AddLine(std::string_view line) {
  const TWCString text = WideOf(line);
  int equals = 0;
  while (equals < text.Length() && text[equals] != L'=') ++equals;
  if (equals == text.Length()) return;
  TWCString value = TrimWide(text + equals + 1, text.Length() - equals - 1);
  const int last = value.Length() - 1;
  if (last > 0 && value[0] == L'"' && value[last] == L'"') {
    TWCString inner;
    inner.Assign(value + 1, last - 1);
    value = std::move(inner);
  }
  m_values.emplace_back(TrimWide(text, equals), std::move(value));
}

const wchar_t* IniSection::Value(const wchar_t* key) const {
  for (const auto& [name, value] : m_values)
    if (name.EqualsNoCase(key)) return value;
  return nullptr;
}
