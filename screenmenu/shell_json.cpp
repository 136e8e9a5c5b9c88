// See shell_json.h.
#include "screenmenu/shell_json.h"

#include "ground/json_text.h"

namespace qvx {
namespace {

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

std::string ToJson(const ShellScreenMenu& menu) {
  return std::string("{\"exists\":") + JsonWord(menu.exists) +
         ",\"visible\":" + JsonWord(menu.visible) + ",\"enabled\":" + JsonWord(menu.enabled) +
         ",\"floating\":" + JsonWord(menu.floating) + ",\"dock\":\"" + menu.dock +
         "\",\"title\":" + JsonString(menu.title) + ",\"rect\":" + JsonRect(menu.rect) +
         ",\"scroll\":" + JsonScroll(menu.scroll) + ",\"rows\":" + JsonRows(menu.rows) + "}";
}

}  // namespace qvx
