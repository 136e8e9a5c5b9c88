// Queries of the shell state, the JSON description of the module's windows: values by path, places
// of rows and tabs by their texts.
#pragma once

#include <string>
#include <vector>

#include "devhost/core/base/json.h"
#include "devhost/play/play_script.h"
#include "ground/plain_types.h"

namespace devhost {

// A part of a path: `name`, `[3]`, or `[text]`, which selects the element with that label, name or
// text. `count` after a list is its length.
struct PathPart {
  enum Kind { Member, Index, Named } kind = Member;
  std::string name;
  std::size_t index = 0;
};

// path: name { "." name | "[" index-or-text "]" }. False with an error message.
bool ParseStatePath(const std::string& path, std::vector<PathPart>* parts, std::string* problem);

// The value at a path. False with a message that names the missing part.
bool FindInState(const Json& state, const std::string& path, Json* value, std::string* problem);

// Compares a value. Quoted text equals a string, or a list or object as JSON; unquoted text is
// compared with the type of the actual value: number, true, false, null, or string.
bool ValueMatches(const Json& actual, const ScriptValue& expected);

struct RowPlace {
  POINT point = {};     // the middle of the visible part
  std::string problem;  // empty: the row, tab or part was found
};

// `path` are labels from the outermost group on, joined by "/"; a label may contain "/".
RowPlace PlaceOfScreenMenuRow(const Json& state, const std::string& path);
// `popup` is the result of UiPort::DescribeMenus.
RowPlace PlaceOfPopupRow(const Json& popup, const std::string& path);
// A tab of the strip by its text.
RowPlace PlaceOfTab(const Json& state, const std::string& text);
// A part of the strip: `left` or `right` is an arrow, `empty` the area after the last tab.
RowPlace PlaceOfStripPart(const Json& state, const std::string& part);

}  // namespace devhost
