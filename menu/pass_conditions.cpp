// The pass that reads the condition prefixes of labels: with "{~=Fn}" a line is grey, with "{!=Fn}"
// checked, when the LISP function returns T. A label may have several; unknown ones are dropped
// without a message.
#include <string_view>

#include "menu/menu_passes.h"
#include "menu/menu_item.h"

namespace {

constexpr int kShortestLabel = 3;

// Blanks only; tabs are kept.
std::wstring_view Trim(std::wstring_view text) {
  while (!text.empty() && text.front() == L' ') text.remove_prefix(1);
  while (!text.empty() && text.back() == L' ') text.remove_suffix(1);
  return text;
}

std::wstring_view FirstWord(std::wstring_view text) {
  text = Trim(text);
  return text.substr(0, text.find(L' '));
}

void SetFunction(TMenuItem& item, unsigned flag, TWCString& function, std::wstring_view name) {
  item.m_nFlags |= flag;
  function.Assign(name.data(), static_cast<int>(name.size()));
}

void ReadCondition(TMenuItem& item, std::wstring_view condition) {
  const size_t equal = condition.find(L'=');
  if (equal == std::wstring_view::npos) return;
  const std::wstring_view word = FirstWord(condition.substr(0, equal));
  const std::wstring_view name = FirstWord(condition.substr(equal + 1));
  if (word == L"~") SetFunction(item, TMenuItem::kHasGrayFn, item.m_strGrayFn, name);
  if (word == L"!") SetFunction(item, TMenuItem::kHasCheckFn, item.m_strCheckFn, name);
}

void StripLabel(TMenuItem& item) {
  std::wstring_view label(item.m_strLabel, static_cast<size_t>(item.m_strLabel.Length()));
  label = Trim(label);
  while (!label.empty() && label.front() == L'{') {
    const size_t close = label.find(L'}');
    if (close == std::wstring_view::npos) break;
    ReadCondition(item, label.substr(1, close - 1));
    label = Trim(label.substr(close + 1));
  }
  if (label.size() != static_cast<size_t>(item.m_strLabel.Length()))
    item.m_strLabel.Assign(label.data(), static_cast<int>(label.size()));
}

}  // namespace

void StripConditions(TMenuItem& item) {
  if (!item.m_pSubMenu && !item.m_pSwitch && item.m_strLabel.Length() >= kShortestLabel)
    StripLabel(item);
}

// Records labels that may be "*SWITCH*" or have a condition: those that begin with a blank, a brace
// or a star after the arrows, or end with a blank.
void BlockWork::Note(TMenuItem& item, int line, const NamePool::Key& icon) {
  nester.Note(item, line);
  const int length = item.m_strLabel.Length();
  if (length == 0) return;
  const wchar_t* label = item.m_strLabel;
  if (*label == L'{' || *label == L'*' || *label == L' ' || label[length - 1] == L' ')
    labels.push_back({&item, icon});
}
