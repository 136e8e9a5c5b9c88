// What scanner and parser share during one parse.
#pragma once

#include <string>
#include <string_view>

#include "bench/peers/peer_model.h"

namespace peer {

struct Slice {
  const char* begin;
  int length;
  std::string_view View() const { return {begin, static_cast<size_t>(length)}; }
};

struct ParseState {
  Menu& menu;
  int line = 1;
  bool barsLost = false;

  void Report(const char* text) { menu.messages.push_back(std::to_string(line) + ": " + text); }
};

// Parses the text of one menu line: "[label]command".
void ParseLine(const std::u16string& text, Item& item);
// False with a message when the group's code does not accept the value.
bool MakeInteger(ParseState& state, int code, int value, Group& group);
bool MakeReal(ParseState& state, int code, double value, Group& group);
bool MakeString(ParseState& state, int code, std::string_view value, Group& group);

}  // namespace peer
