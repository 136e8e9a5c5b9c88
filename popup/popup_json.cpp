#include "popup/popup_json.h"

#include "screenmenu/shell_json.h"

namespace {

const char* Word(bool value) { return value ? "true" : "false"; }

std::string JsonRect(const RECT& r) {
  return "[" + std::to_string(r.left) + "," + std::to_string(r.top) + "," +
         std::to_string(r.right) + "," + std::to_string(r.bottom) + "]";
}

std::string JsonRows(const std::vector<ShellPopupRow>& rows) {
  std::string out = "[";
  for (const ShellPopupRow& row : rows) {
    if (out.size() > 1) out += ',';
    out += "{\"label\":" + qvx::JsonString(row.label) + ",\"id\":" + std::to_string(row.id) +
           ",\"enabled\":" + Word(row.enabled) + ",\"checked\":" + Word(row.checked) +
           ",\"separator\":" + Word(row.separator) + ",\"rect\":" + JsonRect(row.rect) +
           ",\"rows\":" + JsonRows(row.rows) + "}";
  }
  return out + "]";
}

}  // namespace

std::string PopupToJson(bool open, const std::vector<ShellPopupRow>& rows) {
  return std::string("{\"open\":") + Word(open) + ",\"rows\":" + JsonRows(rows) + "}";
}
