// Paths in the shell state and comparison of values; see the header.
#include "devhost/play/state_path.h"

#include <charconv>
#include <optional>

namespace devhost {
namespace {

constexpr std::size_t kLargestIndex = 100000;

bool IsNameCharacter(char c) { return c != '.' && c != '[' && c != ']'; }

std::optional<double> AsNumber(const std::string& text) {
  double number = 0;
  const auto [end, problem] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (problem != std::errc() || end != text.data() + text.size() || text.empty()) return {};
  return number;
}

// "[" index-or-text "]", with `at` on the opening bracket.
bool TakeBracket(const std::string& path, std::size_t* at, PathPart* part) {
  const std::size_t close = path.find(']', *at);
  if (close == path.npos || close == *at + 1) return false;
  part->name = path.substr(*at + 1, close - *at - 1);
  *at = close + 1;
  part->kind = PathPart::Named;
  if (part->name.find_first_not_of("0123456789") != part->name.npos) return true;
  part->kind = PathPart::Index;
  std::from_chars(part->name.data(), part->name.data() + part->name.size(), part->index);
  return part->name.size() <= 6 && part->index <= kLargestIndex;
}

const Json* Named(const Json& list, const std::string& wanted) {
  for (const Json& element : list)
    for (const char* member : {"label", "name", "text"})
      if (element.is_object() && element.contains(member) && element[member] == wanted)
        return &element;
  return nullptr;
}

const Json* StepInto(const Json& at, const PathPart& part) {
  switch (part.kind) {
    case PathPart::Member:
      return at.is_object() && at.contains(part.name) ? &at[part.name] : nullptr;
    case PathPart::Index:
      return at.is_array() && part.index < at.size() ? &at[part.index] : nullptr;
    default:
      return at.is_array() ? Named(at, part.name) : nullptr;
  }
}

std::string PartText(const PathPart& part) {
  return part.kind == PathPart::Member ? part.name : "[" + part.name + "]";
}

bool IsCount(const Json& at, const PathPart& part) {
  return part.kind == PathPart::Member && part.name == "count" && at.is_array();
}

}  // namespace

bool ParseStatePath(const std::string& path, std::vector<PathPart>* parts, std::string* problem) {
  *problem = "a path looks like tabs.active or screenmenu.rows[0].open";
  std::size_t at = 0;
  for (bool wantName = true; at < path.size() || wantName;) {
    PathPart part;
    if (!wantName && path[at] == '[') {
      if (!TakeBracket(path, &at, &part)) return false;
    } else {
      if (!wantName && path[at++] != '.') return false;
      for (; at < path.size() && IsNameCharacter(path[at]); ++at) part.name += path[at];
      if (part.name.empty()) return false;
    }
    wantName = false;
    parts->push_back(part);
  }
  problem->clear();
  return true;
}

bool FindInState(const Json& state, const std::string& path, Json* value, std::string* problem) {
  std::vector<PathPart> parts;
  if (!ParseStatePath(path, &parts, problem)) return false;
  const Json* at = &state;
  for (const PathPart& part : parts) {
    if (IsCount(*at, part) && &part == &parts.back()) {
      *value = at->size();
      return true;
    }
    at = StepInto(*at, part);
    if (!at) {
      *problem = "there is no " + PartText(part) + " in " + path;
      return false;
    }
  }
  *value = *at;
  return true;
}

bool ValueMatches(const Json& actual, const ScriptValue& expected) {
  if (actual.is_array() || actual.is_object()) {
    const Json wanted = Json::parse(expected.text, nullptr, false);
    return !wanted.is_discarded() && wanted == actual;
  }
  if (actual.is_string()) return actual.get_ref<const std::string&>() == expected.text;
  if (expected.quoted) return false;
  if (actual.is_null()) return expected.text == "null";
  if (actual.is_boolean()) return expected.text == (actual.get<bool>() ? "true" : "false");
  const std::optional<double> number = AsNumber(expected.text);
  return number && actual.is_number() && actual.get<double>() == *number;
}

}  // namespace devhost
