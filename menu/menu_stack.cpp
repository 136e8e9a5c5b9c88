#include "menu/menu_stack.h"

#include <memory>

namespace {
// A single blank or newline is what an empty Enter sends; it is not listed.
bool IsWorthKeeping(const wchar_t* command) {
  if (!command || !command[0]) return false;
  return command[1] || (command[0] != L' ' && command[0] != L'\n');
}
}  // namespace

void TMenuStack::AddRecent(const wchar_t* command) {
  if (!IsWorthKeeping(command)) return;
  // Copied: the text may belong to the entry that is deleted below.
  const TWCString wanted(command);
  std::unique_ptr<TMenuItem> entry;
  if (TMenuItem* known = FindItemByCommand(wanted)) {
    const int at = Cursor();
    if (at == 0) return;
    entry = std::make_unique<TMenuItem>(*known);
    Remove(at);
  } else if (TMenuItem* source = FindSource(wanted)) {
    entry = std::make_unique<TMenuItem>(*source);
  } else {
    entry = std::make_unique<TMenuItem>(wanted, wanted);
  }
  Reserve(Length() + 1);
  SetCursor(0);
  InsertAtCursor(entry.release());
  if (Length() > m_nMaxDepth) Remove(Length() - 1);
}

// The menu line with this command, whose label and icon the recent line takes.
TMenuItem* TMenuStack::FindSource(const wchar_t* command) {
  if (!m_pSources || m_pSources->IsRunMode()) return nullptr;
  if (TMenuBar* root = m_pSources->ScreenRoot())
    if (TMenuItem* item = root->FindItemByCommand(command)) return item;
  return m_pSources->FindMenuLine(command);
}
