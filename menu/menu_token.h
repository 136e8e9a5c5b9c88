// The tokens of the menu language and their numbers, which are fixed. A token points into the
// source text and owns nothing.
#pragma once

#include <string_view>

enum MenuTokenKind : int {
  QMN_END = 0,
  QMN_ERR_STRING = 257,
  QMN_STRING,
  QMN_ICON,  // integer
  QMN_FCON,  // real
  QMN_MENU_ITEM,
  QMN_IDENTIFIER,
  QMN_ERR_MENU_ITEM,
  QMN_COMA,
  QMN_PLUS,
  QMN_EQUAL,
  QMN_PREFIX,      // ***
  QMN_SUB_PREFIX,  // **
  QMN_TITLE,
  QMN_POP,
  QMN_CTRL,
  QMN_RCLICK,
  QMN_MENU_RES,
  QMN_MENU_SWITCH,
  QMN_GET_STATE,
  QMN_SET_STATE,
};

struct MenuToken {
  int kind = QMN_END;
  const char* begin = nullptr;  // of the text in the source; of a string: after the quote
  std::string_view text;        // value of strings (without quotes), menu lines, identifiers
  int number = 0;               // value of QMN_ICON
  double real = 0;              // value of QMN_FCON
};
