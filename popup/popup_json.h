// The pop-up section of the shell state as JSON text in UTF-8, from plain records.
// describe_popup.cpp fills the records from live menus.
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
  RECT rect{};  // screen pixels; empty while the menu is not shown
  std::vector<ShellPopupRow> rows;
};

std::string PopupToJson(bool open, const std::vector<ShellPopupRow>& rows);
