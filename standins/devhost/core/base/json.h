// JSON values of the host. Members keep the order in which they are written.
#pragma once

#include <nlohmann/json.hpp>

#include <string>

namespace devhost {

using Json = nlohmann::ordered_json;

// The text of a value, with `indent` blanks a level or on one line for -1. Bytes that are not UTF-8
// become U+FFFD: writing a journal must not throw.
inline std::string JsonText(const Json& value, int indent = -1) {
  return value.dump(indent, ' ', false, Json::error_handler_t::replace);
}

}  // namespace devhost
