// Lines and numbers of drawing files; see the header. Decoding is in dxf_decoder.cpp.
#include "devhost/core/dxf/dxf_text.h"

#include <charconv>
#include <cmath>
#include <cstring>

namespace devhost {
namespace {

constexpr std::string_view kBinaryMark = "AutoCAD Binary DXF";

class Lines {
 public:
  explicit Lines(std::string_view bytes) : m_rest(bytes) {}

  bool Next(std::string_view* line) {
    if (m_rest.empty()) return false;
    ++m_number;
    const void* end = std::memchr(m_rest.data(), '\n', m_rest.size());
    const std::size_t length =
        end ? static_cast<std::size_t>(static_cast<const char*>(end) - m_rest.data())
            : m_rest.size();
    *line = m_rest.substr(0, length);
    m_rest.remove_prefix(end ? length + 1 : length);
    if (!line->empty() && line->back() == '\r') line->remove_suffix(1);
    return true;
  }
  int Number() const { return m_number; }
  std::string_view Rest() const { return m_rest; }

 private:
  std::string_view m_rest;
  int m_number = 0;
};

// The line with data after the end mark; 0: none.
int LineAfterEnd(Lines& lines) {
  std::string_view line;
  while (lines.Next(&line))
    if (!TrimBlanks(line).empty() && TrimBlanks(line) != "\x1a") return lines.Number();
  return 0;
}

void ReadPairs(Lines& lines, DxfScan& scan) {
  auto damaged = [&](DxfDamage damage, int line) {
    scan.damage = damage;
    scan.line = line;
  };
  std::string_view code, value;
  while (lines.Next(&code)) {
    const int at = lines.Number();
    const std::string_view digits = TrimBlanks(code);
    // Blank lines at the end count as no end mark, not as a bad code.
    if (digits.empty() && TrimBlanks(lines.Rest()).empty()) break;
    const std::optional<long long> number = DxfInteger(digits);
    if (!number || *number < -32768 || *number > 32767) return damaged(DxfDamage::BadCode, at);
    if (!lines.Next(&value)) return damaged(DxfDamage::Truncated, at);
    if (*number == 999) continue;
    scan.groups.push_back({static_cast<short>(*number), value, at});
    if (*number != 0 || TrimBlanks(value) != "EOF") continue;
    if (const int behind = LineAfterEnd(lines)) damaged(DxfDamage::DataAfterEnd, behind);
    return;
  }
  damaged(DxfDamage::NoEndMark, lines.Number());
}

}  // namespace

std::string_view TrimBlanks(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r\n\v\f";
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

DxfScan ScanDxf(std::string_view bytes) {
  DxfScan scan;
  if (bytes.substr(0, kBinaryMark.size()) == kBinaryMark) {
    scan.damage = DxfDamage::NotText;
    scan.line = 1;
    return scan;
  }
  if (bytes.substr(0, 3) == "\xEF\xBB\xBF") bytes.remove_prefix(3);
  scan.groups.reserve(bytes.size() / 12);
  Lines lines(bytes);
  ReadPairs(lines, scan);
  return scan;
}

std::optional<double> DxfReal(std::string_view value) {
  value = TrimBlanks(value);
  if (!value.empty() && value[0] == '+') value.remove_prefix(1);
  double number = 0;
  const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), number);
  if (error == std::errc::result_out_of_range && end == value.data() + value.size()) return 0.0;
  if (error != std::errc() || end != value.data() + value.size() || !std::isfinite(number))
    return std::nullopt;
  return number;
}

std::optional<long long> DxfInteger(std::string_view value) {
  value = TrimBlanks(value);
  if (!value.empty() && value[0] == '+') value.remove_prefix(1);
  long long number = 0;
  const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), number);
  if (error != std::errc()) return std::nullopt;
  if (end == value.data() + value.size()) return number;
  if (*end != '.') return std::nullopt;
  const std::optional<double> real = DxfReal(value);
  if (!real || std::fabs(*real) > 9e15) return std::nullopt;
  return static_cast<long long>(*real);
}

std::optional<unsigned long long> DxfHandle(std::string_view value) {
  value = TrimBlanks(value);
  unsigned long long number = 0;
  const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), number, 16);
  if (error != std::errc() || end != value.data() + value.size() || number == 0)
    return std::nullopt;
  return number;
}

}  // namespace devhost
