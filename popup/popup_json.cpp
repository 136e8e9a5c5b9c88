#include "popup/popup_json.h"

#include "ground/json_text.h"

namespace {

std::string JsonRows(const std::vector<ShellPopupRow>& rows) {
  std::string out = "[";
  for (const ShellPopupRow& row : rows) {
    if (out.size() > 1) out += ',';
    out += "{\"label\":" + qvx::JsonString(row.label) + ",\"id\":" + std::to_string(row.id) +
           ",\"enabled\":" + qvx::JsonWord(row.enabled) +
           ",\"checked\":" + qvx::JsonWord(row.checked) +
           ",\"separator\":" + qvx::JsonWord(row.separator) +
           ",\"rect\":" + qvx::JsonRect(row.rect) + ",\"rows\":" + JsonRows(row.rows) + "}";
  }
  return out + "]";
}

}  // namespace

std::string PopupToJson(bool open, const std::vector<ShellPopupRow>& rows) {
  return std::string("{\"open\":") + qvx::JsonWord(open) + ",\"rows\":" + JsonRows(rows) + "}";
}
