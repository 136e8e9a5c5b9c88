// See shell_json.h.
#include "screenmenu/shell_json.h"

#include <cstdio>

namespace qvx {
namespace {

constexpr unsigned kReplacement = 0xFFFD;

bool IsHigh(unsigned unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool IsLow(unsigned unit) { return unit >= 0xDC00 && unit < 0xE000; }

void AppendEscaped(std::string& out, unsigned code) {
  if (code == '"' || code == '\\') {
    out += '\\';
    out += static_cast<char>(code);
  } else if (code < 0x20) {
    char escape[8];
    std::snprintf(escape, sizeof escape, "\\u%04x", code);
    out += escape;
  } else {
    AppendUtf8(out, code);
  }
}

std::string JsonRows(const std::vector<ShellRow>& rows);

std::string JsonRow(const ShellRow& row) {
  return "{\"label\":" + JsonString(row.label) + ",\"kind\":\"" + row.kind +
         "\",\"enabled\":" + JsonWord(row.enabled) + ",\"visible\":" + JsonWord(row.visible) +
         ",\"depth\":" + std::to_string(row.depth) + ",\"open\":" + JsonWord(row.open) +
         ",\"rect\":" + JsonRect(row.rect) + ",\"rows\":" + JsonRows(row.rows) + "}";
}

std::string JsonRows(const std::vector<ShellRow>& rows) {
  std::string out = "[";
  for (const ShellRow& row : rows) {
    if (out.size() > 1) out += ',';
    out += JsonRow(row);
  }
  return out + "]";
}

std::string JsonScroll(const std::optional<ShellScroll>& scroll) {
  if (!scroll) return "null";
  return "{\"min\":" + std::to_string(scroll->min) + ",\"max\":" + std::to_string(scroll->max) +
         ",\"pos\":" + std::to_string(scroll->pos) + ",\"width\":" + std::to_string(scroll->width) +
         "}";
}

}  // namespace

unsigned CodePointAt(const std::wstring& text, std::size_t& i) {
  const unsigned unit = static_cast<unsigned>(text[i]);
  if (!IsHigh(unit)) return IsLow(unit) || unit > 0x10FFFF ? kReplacement : unit;
  const unsigned next = i + 1 < text.size() ? static_cast<unsigned>(text[i + 1]) : 0;
  if (!IsLow(next)) return kReplacement;
  ++i;
  return 0x10000 + ((unit - 0xD800) << 10) + (next - 0xDC00);
}

void AppendUtf8(std::string& out, unsigned code) {
  if (code < 0x80) {
    out += static_cast<char>(code);
  } else if (code < 0x800) {
    out += static_cast<char>(0xC0 | code >> 6);
    out += static_cast<char>(0x80 | (code & 0x3F));
  } else if (code < 0x10000) {
    out += static_cast<char>(0xE0 | code >> 12);
    out += static_cast<char>(0x80 | (code >> 6 & 0x3F));
    out += static_cast<char>(0x80 | (code & 0x3F));
  } else {
    out += static_cast<char>(0xF0 | code >> 18);
    out += static_cast<char>(0x80 | (code >> 12 & 0x3F));
    out += static_cast<char>(0x80 | (code >> 6 & 0x3F));
    out += static_cast<char>(0x80 | (code & 0x3F));
  }
}

std::string JsonString(const std::wstring& text) {
  std::string out = "\"";
  for (std::size_t i = 0; i < text.size(); ++i) AppendEscaped(out, CodePointAt(text, i));
  return out + "\"";
}

std::string ToJson(const ShellScreenMenu& menu) {
  return std::string("{\"exists\":") + JsonWord(menu.exists) +
         ",\"visible\":" + JsonWord(menu.visible) + ",\"enabled\":" + JsonWord(menu.enabled) +
         ",\"floating\":" + JsonWord(menu.floating) + ",\"dock\":\"" + menu.dock +
         "\",\"title\":" + JsonString(menu.title) + ",\"rect\":" + JsonRect(menu.rect) +
         ",\"scroll\":" + JsonScroll(menu.scroll) + ",\"rows\":" + JsonRows(menu.rows) + "}";
}

const char* JsonWord(bool value) { return value ? "true" : "false"; }

std::string JsonRect(const RECT& r) {
  return "[" + std::to_string(r.left) + "," + std::to_string(r.top) + "," +
         std::to_string(r.right) + "," + std::to_string(r.bottom) + "]";
}

}  // namespace qvx
