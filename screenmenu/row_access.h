// Accessibility data of a row for screen readers: name, role, states, default action. Role and
// state values are those of the published accessibility interface. No window; the accessible object
// of a live row is in row_accessible.h.
#pragma once

#include <string>

namespace qvx {

struct RowFacts {
  std::wstring caption;
  bool header;
  bool open;  // of a header: its group is shown
  bool separator;
  bool checked;  // shows the check mark
  bool enabled;
  bool visible;  // on the screen: all enclosing groups are shown too
  bool focused;
  bool hot;  // the pointer is over it
  bool pressed;
};

constexpr long kAccessPushButton = 0x2B;
constexpr long kAccessSeparator = 0x15;

enum AccessState : long {
  kAccessUnavailable = 0x1,
  kAccessFocused = 0x4,
  kAccessPressed = 0x8,
  kAccessChecked = 0x10,
  kAccessHot = 0x80,
  kAccessExpanded = 0x200,
  kAccessCollapsed = 0x400,
  kAccessInvisible = 0x8000,
  kAccessFocusable = 0x100000,
};

// The caption without mnemonic marks: an ampersand underlines the next letter, a double one is a
// literal ampersand.
std::wstring AccessName(const std::wstring& caption);
// The letter that an ampersand underlines, empty without one.
std::wstring AccessKey(const std::wstring& caption);

long AccessRole(const RowFacts& row);
long AccessStates(const RowFacts& row);
// The default action as a word for the user; empty for a separator.
const wchar_t* AccessAction(const RowFacts& row);

}  // namespace qvx
