// The pop-up section of the shell state as JSON text: plain records in, UTF-8 out. The records are
// filled from live menus by describe_popup.cpp.
#pragma once

#include <string>
#include <vector>

#include "ground/plain_types.h"

struct ShellPopupRow {
  std::wstring label;
  int id = 0;  // 0 for separators and sub-menus
  bool enabled = false;
  bool checked = false;
  bool separator = false;
  RECT rect{};  // screen pixels; empty while its menu is not on the screen
  std::vector<ShellPopupRow> rows;
};

std::string PopupToJson(bool open, const std::vector<ShellPopupRow>& rows);
