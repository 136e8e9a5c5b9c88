// The screen menu's section of the shell state as JSON text: plain records in, UTF-8 out. The
// records are filled from live windows by describe_screen_menu.cpp; nothing here knows the model.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "ground/plain_types.h"

namespace qvx {

struct ShellRow {
  std::wstring label;
  const char* kind = "command";  // command, header, switch, separator
  bool enabled = false;
  bool visible = false;
  int depth = 0;
  bool open = false;
  RECT rect{};  // screen pixels
  std::vector<ShellRow> rows;
};

struct ShellScroll {
  int min, max, pos, width;
};

struct ShellScreenMenu {
  bool exists = false, visible = false, enabled = false, floating = false;
  const char* dock = "none";  // left, right, none
  std::wstring title;
  RECT rect{};
  std::optional<ShellScroll> scroll;
  std::vector<ShellRow> rows;
};

std::string ToJson(const ShellScreenMenu& menu);

// The code point at i, which moves to its last unit; U+FFFD for a lone surrogate.
unsigned CodePointAt(const std::wstring& text, std::size_t& i);
void AppendUtf8(std::string& out, unsigned code);

// A JSON string with its quotes. Lone surrogates become U+FFFD, so the result is always valid
// UTF-8.
std::string JsonString(const std::wstring& text);
const char* JsonWord(bool value);
std::string JsonRect(const RECT& r);

}  // namespace qvx
