// See row_access.h.
#include "screenmenu/row_access.h"

namespace qvx {

std::wstring AccessName(const std::wstring& caption) {
  std::wstring name;
  for (std::size_t i = 0; i < caption.size(); ++i) {
    if (caption[i] == L'&' && ++i == caption.size()) break;
    name += caption[i];
  }
  return name;
}

std::wstring AccessKey(const std::wstring& caption) {
  for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
    if (caption[i] != L'&') continue;
    if (caption[++i] != L'&') return caption.substr(i, 1);
  }
  return L"";
}

long AccessRole(const RowFacts& row) {
  return row.separator ? kAccessSeparator : kAccessPushButton;
}

long AccessStates(const RowFacts& row) {
  long states = 0;
  const auto add = [&states](bool holds, AccessState state) {
    if (holds) states |= state;
  };
  add(!row.enabled, kAccessUnavailable);
  add(!row.visible, kAccessInvisible);
  if (row.separator) return states;
  add(row.enabled, kAccessFocusable);
  add(row.focused, kAccessFocused);
  add(row.pressed, kAccessPressed);
  add(row.hot, kAccessHot);
  add(row.checked, kAccessChecked);
  if (row.header) states |= row.open ? kAccessExpanded : kAccessCollapsed;
  return states;
}

const wchar_t* AccessAction(const RowFacts& row) {
  if (row.separator) return L"";
  if (!row.header) return L"按下";
  return row.open ? L"折叠" : L"展开";
}

}  // namespace qvx
