// The pop-up menu of the in-place editor and its commands.
#include "editor/in_place_editor.h"

#include <string>

#include "editor/edit_commands.h"
#include "editor/edit_state.h"

namespace qvx {
namespace {

constexpr UINT kPopupLine = 0x10, kSeparatorLine = 0x800, kSystemLine = 0x2000;  // MF_...
constexpr UINT kFirstLineWithTip = 5001;

}  // namespace

bool InPlaceEditor::ShowInPlaceMenu(POINT screen) {
  if (!m_pSubText) return false;
  TMenuBar* const menu = m_host.FindMenu(MenuNameOf(m_pSubText->GetMenuType()).c_str());
  if (!menu) return false;
  m_pMenuBar = menu;
  m_host.TrackMenu(*menu, screen);
  return true;
}

void InPlaceEditor::OnMenuSelect(UINT id, UINT flags) {
  if (!m_pMenuBar || id < kFirstLineWithTip || flags & (kPopupLine | kSeparatorLine | kSystemLine))
    return;
  m_bStatusText = true;
  m_host.ShowStatusText(m_host.TipOf(*m_pMenuBar, static_cast<int>(id)));
}

void InPlaceEditor::OnExitMenuLoop() {
  const bool isShown = m_bStatusText;
  m_bStatusText = false;
  m_pMenuBar = nullptr;
  if (isShown) m_host.RestoreStatusText();
}

void InPlaceEditor::OnMenuCommand(int command) {
  if (!m_pSubText || !m_control.Exists()) return;
  if (command == kCommandSpecialCharacter || command == kCommandWord)
    return InsertByDialog(command == kCommandWord);
  if (const ClosingCommand* const closing = FindClosingCommand(command)) return Close(*closing);
  if (const auto change = ChangeByCommand(command, m_control.Text(), m_control.Selection()))
    ChangeText(*change);
}

void InPlaceEditor::Close(const ClosingCommand& command) {
  const AcDbObjectId object = m_pSubText->GetObjectId();
  const EditWatch watch(m_state);
  if (command.text != ClosingCommand::Text::kKept) {
    const bool isEmptied = command.text == ClosingCommand::Text::kEmptied;
    m_control.SetText(isEmptied ? std::wstring() : m_control.Text() + L"<");
    if (watch.IsGone()) return;
    m_control.SetModified(true);
  }
  if (command.commits)
    EndEdit(true);
  else
    CancelEdit();
  if (watch.IsEditorGone() || watch.HasDrawingGone() || !command.hostCommand) return;
  if (command.picksObject) m_host.SelectOnly(object);
  if (watch.IsEditorGone()) return;
  const std::wstring name =
      command.byFullName ? m_host.FullCommandName(command.hostCommand) : command.hostCommand;
  m_host.Post(name + L"\n");
}

void InPlaceEditor::ChangeText(const TextChange& change) {
  const TextRange caret{change.caret, change.caret};
  const EditWatch watch(m_state);
  watch.Run([&] { m_control.SetText(change.text); }, [&] { m_control.SetModified(true); },
            [&] { m_control.Select(caret); }, [&] { m_control.ScrollToCaret(); },
            [&] { AdjustEditSize(); });
}

void InPlaceEditor::InsertByDialog(bool isWord) {
  const TextDialog dialog = isWord ? TextDialog::kWord : TextDialog::kSpecialCharacter;
  const std::wstring text = m_control.Text();
  const TextRange selection = m_control.Selection();
  const EditWatch watch(m_state);
  std::wstring choice;
  bool isChosen = false;
  m_bInSubDialog = true;
  if (m_host.HasDialog(dialog) && !watch.Run([&] { m_control.Show(false); },
                                             [&] { isChosen = m_host.RunDialog(dialog, choice); },
                                             [&] { m_control.Show(true); }))
    return;
  m_bInSubDialog = false;
  if (watch.Run([&] { m_control.TakeFocus(); }) && isChosen)
    ChangeText(ReplaceRange(text, selection, choice));
}

}  // namespace qvx
