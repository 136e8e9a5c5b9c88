#include "tools/qmn/decompile_line.h"

#include "menu/menu_item.h"

namespace {

constexpr wchar_t kEscape = 27;

std::wstring_view View(const TWCString& text) { return {text, static_cast<size_t>(text.Length())}; }

// A leading blank hides a label from the passes that run before labels are trimmed.
bool NeedsShelter(const TMenuItem& item) {
  const std::wstring_view label = View(item.m_strLabel);
  return label.starts_with(L"->") || label.starts_with(L"<-") ||
         (item.IsSwitchMark() && !item.m_strIconName.IsEmpty());
}

}  // namespace

// A ';' is Enter outside quotes and a literal inside. Where the text needs the other meaning, '^'
// and a quote are inserted: the engine removes both, but the quote toggles the quoting.
std::wstring WrittenCommand(std::wstring_view command, LineForm form) {
  if (command.empty()) return {};
  if (command.ends_with(L'\n')) command.remove_suffix(1);
  std::wstring text;
  bool quoted = false;
  for (const wchar_t c : command) {
    if ((c == L'\n' && quoted) || (c == L';' && !quoted)) {
      text += L"^\"";
      quoted = !quoted;
    }
    if (c == L'"') quoted = !quoted;
    if (c == kEscape && form == LineForm::kPlain)
      text += L"^C";
    else
      text += c == L'\n' ? L';' : c;
  }
  return text;
}

// The engine removes one ';' at the end, trailing blanks and tabs, and treats an empty
// text as no command.
bool IsEndNeeded(std::wstring_view written) {
  return written.empty() || written.back() == L';' || written.back() == L' ' ||
         written.back() == L'\t';
}

std::wstring WrittenLabel(const TMenuItem& item, int closes, LineForm form) {
  std::wstring text;
  if (item.m_pSubMenu) {
    text = L"->";
    return text += View(item.m_strLabel);
  }
  for (; closes > 0; --closes) text += L"<-";
  if (item.m_nFlags & TMenuItem::kHasCheckFn)
    text += L"{!=" + std::wstring(View(item.m_strCheckFn)) + L"}";
  if (item.m_nFlags & TMenuItem::kHasGrayFn)
    text += L"{~=" + std::wstring(View(item.m_strGrayFn)) + L"}";
  if (item.m_nFlags == 0 && form != LineForm::kUnsheltered && NeedsShelter(item)) text += L' ';
  return text += View(item.m_strLabel);
}
