// Finding tabs of the strip by their texts, and its arrows. Errors distinguish tabs that do not
// exist, are hidden with the strip, or are scrolled out.
#include <algorithm>

#include "devhost/play/state_path.h"
#include "devhost/play/state_rect.h"

namespace devhost {
namespace {

struct Strip {
  const Json* state = nullptr;
  RECT box{};           // on the screen
  RECT arrows{};        // empty without them
  RECT tabs{};          // the part that shows tabs
  std::string problem;  // empty: it is shown
};

// The arrows are at the right end, twice as wide as high.
Strip ShownStrip(const Json& state) {
  Strip strip;
  if (!state.is_object() || !state.contains("tabs") || !state["tabs"].is_object()) {
    strip.problem = "there is no strip of tabs";
    return strip;
  }
  const Json& tabs = state["tabs"];
  const std::optional<RECT> box = StateRect(tabs);
  if (IsStateFalse(tabs, "visible") || !box || IsEmptyRect(*box)) {
    strip.problem = "the strip of tabs is hidden";
    return strip;
  }
  strip.state = &tabs;
  strip.box = strip.tabs = strip.arrows = *box;
  const bool shown = tabs.contains("arrows") && !IsStateFalse(tabs, "arrows");
  strip.tabs.right -= shown ? 2 * (box->bottom - box->top) : 0;
  strip.arrows.left = strip.tabs.right;
  return strip;
}

LONG Edge(const Json& tab, const char* side) {
  constexpr std::int64_t kFarthest = 10000000;  // pixels; beyond any strip
  if (!tab.contains(side) || !tab[side].is_number_integer()) return 0;
  return static_cast<LONG>(std::clamp(tab[side].get<std::int64_t>(), -kFarthest, kFarthest));
}

const Json& ListOfTabs(const Strip& strip) {
  static const Json none = Json::array();
  const auto found = strip.state->find("tabs");
  return found != strip.state->end() && found->is_array() ? *found : none;
}

std::string TextOfTab(const Json& tab) {
  const bool known = tab.is_object() && tab.contains("text") && tab["text"].is_string();
  return known ? tab["text"].get<std::string>() : "";
}

RowPlace NoTab(const Strip& strip, const std::string& text) {
  std::string texts;
  for (const Json& tab : ListOfTabs(strip))
    texts += (texts.empty() ? "" : ", ") + QuotedForScript(TextOfTab(tab));
  return {{},
          "there is no tab " + QuotedForScript(text) + "; there are " +
              (texts.empty() ? "no tabs" : texts)};
}

RowPlace MiddleOf(const RECT& box, const std::string& problem) {
  if (IsEmptyRect(box)) return {{}, problem};
  return {{(box.left + box.right) / 2, (box.top + box.bottom) / 2}, ""};
}

RECT Between(const Strip& strip, LONG left, LONG right) {
  return {std::max(left, strip.tabs.left), strip.tabs.top, std::min(right, strip.tabs.right),
          strip.tabs.bottom};
}

}  // namespace

RowPlace PlaceOfTab(const Json& state, const std::string& text) {
  const Strip strip = ShownStrip(state);
  if (!strip.problem.empty()) return {{}, strip.problem};
  for (const Json& tab : ListOfTabs(strip))
    if (tab.is_object() && TextOfTab(tab) == text)
      return MiddleOf(Between(strip, Edge(tab, "left"), Edge(tab, "right")),
                      "tab " + QuotedForScript(text) + " is scrolled out of the strip");
  return NoTab(strip, text);
}

RowPlace PlaceOfStripPart(const Json& state, const std::string& part) {
  const Strip strip = ShownStrip(state);
  if (!strip.problem.empty()) return {{}, strip.problem};
  const LONG middle = (strip.arrows.left + strip.arrows.right) / 2;
  RECT box = strip.arrows;
  if (part == "left") box.right = middle;
  if (part == "right") box.left = middle;
  if (part != "empty") return MiddleOf(box, "the strip shows no arrows");
  LONG end = strip.tabs.left;
  for (const Json& tab : ListOfTabs(strip))
    if (tab.is_object()) end = std::max(end, Edge(tab, "right"));
  return MiddleOf(Between(strip, end, strip.tabs.right), "tabs cover the whole strip");
}

}  // namespace devhost
