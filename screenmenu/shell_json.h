// The screen menu's section of the shell state as JSON text in UTF-8, from plain records.
// describe_screen_menu.cpp fills the records from live windows; no menu model is used here.
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

}  // namespace qvx
