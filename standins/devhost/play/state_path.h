// Questions to the shell state, the JSON that describes the module's live windows: a value by its
// path, and the place of a row by its labels. Plain functions; whoever asks brings the JSON.
#pragma once

#include <string>
#include <vector>

#include "devhost/core/base/json.h"
#include "devhost/play/play_script.h"
#include "ground/plain_types.h"

namespace devhost {

// One part of a path: `name`, `[3]`, or `[text]`, which takes the element whose label, name or text
// is that. `count` behind a list is its length.
struct PathPart {
  enum Kind { Member, Index, Named } kind = Member;
  std::string name;
  std::size_t index = 0;
};

// path: name { "." name | "[" index-or-text "]" }. False with a message.
bool ParseStatePath(const std::string& path, std::vector<PathPart>* parts, std::string* problem);

// The value at the path, or null with a message that names the part which isn't there.
bool FindInState(const Json& state, const std::string& path, Json* value, std::string* problem);

// Quoted text equals text; text in quotes that is a JSON list or object equals that one. An
// unquoted value is compared as what it meets: number, true, false, null, or text.
bool ValueMatches(const Json& actual, const ScriptValue& expected);

struct RowPlace {
  POINT point = {};     // where to press: the middle of what can be seen of the row
  std::string problem;  // why there is no such place; empty when there is one
};

// Labels from the outside in, joined by "/"; a label may hold a "/" of its own.
RowPlace PlaceOfScreenMenuRow(const Json& state, const std::string& path);
// In what DescribeLiveMenus gives of the menus on the screen.
RowPlace PlaceOfPopupRow(const Json& popup, const std::string& path);

}  // namespace devhost
