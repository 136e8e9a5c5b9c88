// Finding rows by their labels, and the point to click. Errors distinguish rows that do not exist,
// are folded, or are scrolled out.
#include "devhost/play/state_path.h"

#include <algorithm>

#include "devhost/play/state_rect.h"

namespace devhost {
namespace {

constexpr int kMaxRowDepth = 32;  // far above any menu; deeper states are damaged

RECT Common(const RECT& a, const RECT& b) {
  return {std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
          std::min(a.bottom, b.bottom)};
}

// Finds a row by its path. All labels are tried, because a label with "/" may begin
// like another label.
class RowSearch {
 public:
  const Json* Find(const Json& rows, const std::string& path, int depth = 0) {
    if (!rows.is_array() || depth > kMaxRowDepth) return nullptr;
    for (const Json& row : rows) {
      if (!row.is_object()) continue;
      // A row of a pop-up is found by its label and by the text that a user sees.
      for (const char* member : {"label", "text"}) {
        if (!row.contains(member) || !row[member].is_string()) continue;
        const auto& label = row[member].get_ref<const std::string&>();
        if (const Json* found = FindBelow(row, label, path, depth)) return found;
      }
    }
    return nullptr;
  }
  const std::string& Deepest() const { return m_deepest; }

 private:
  const Json* FindBelow(const Json& row, const std::string& label, const std::string& path,
                        int depth) {
    if (path == label) return &row;
    if (label.empty() || path.compare(0, label.size() + 1, label + "/") != 0) return nullptr;
    if (m_deepest.size() < label.size()) m_deepest = label;
    return row.contains("rows") ? Find(row["rows"], path.substr(label.size() + 1), depth + 1)
                                : nullptr;
  }
  std::string m_deepest;  // the longest label that matched
};

std::string LabelsOf(const Json& rows) {
  std::string labels;
  if (!rows.is_array()) return labels;
  for (const Json& row : rows)
    if (row.is_object() && row.contains("label") && row["label"].is_string())
      labels += (labels.empty() ? "" : ", ") + QuotedForScript(row["label"].get<std::string>());
  return labels;
}

RowPlace NoRow(const Json& rows, const std::string& path, const RowSearch& search) {
  std::string text = "there is no row " + QuotedForScript(path);
  if (!search.Deepest().empty())
    text += "; row " + QuotedForScript(search.Deepest()) + " is there, or is it folded?";
  else
    text += "; there are " + (LabelsOf(rows).empty() ? "no rows" : LabelsOf(rows));
  return {{}, text};
}

RowPlace PlaceIn(const Json& rows, const std::string& path, const std::optional<RECT>& window) {
  RowSearch search;
  const Json* row = search.Find(rows, path);
  if (!row) return NoRow(rows, path, search);
  const std::string name = "row " + QuotedForScript(path);
  if (IsStateFalse(*row, "visible")) return {{}, name + " is not visible"};
  const std::optional<RECT> rect = StateRect(*row);
  if (!rect || IsEmptyRect(*rect)) return {{}, name + " has no place on the screen"};
  const RECT seen = window ? Common(*rect, *window) : *rect;
  if (IsEmptyRect(seen)) return {{}, name + " is scrolled out of the window"};
  return {{(seen.left + seen.right) / 2, (seen.top + seen.bottom) / 2}, ""};
}

}  // namespace

RowPlace PlaceOfScreenMenuRow(const Json& state, const std::string& path) {
  if (!state.is_object() || !state.contains("screenmenu") || !state["screenmenu"].is_object())
    return {{}, "there is no screen menu"};
  const Json& menu = state["screenmenu"];
  if (IsStateFalse(menu, "exists")) return {{}, "there is no screen menu"};
  if (IsStateFalse(menu, "visible")) return {{}, "the screen menu is hidden"};
  return PlaceIn(menu.contains("rows") ? menu["rows"] : Json::array(), path, StateRect(menu));
}

RowPlace PlaceOfPopupRow(const Json& popup, const std::string& path) {
  if (!popup.is_object() || !popup.contains("rows") || IsStateFalse(popup, "open"))
    return {{}, "no pop-up is open"};
  return PlaceIn(popup["rows"], path, {});
}

}  // namespace devhost
