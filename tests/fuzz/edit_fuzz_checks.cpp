// What the in-place editor's fuzzer compares after each record.
#include <algorithm>

#include "tests/fuzz/edit_fuzz_session.h"

namespace editfuzz {

using fuzz::Require;

// Takes the expected whole text of an opened box over from what it shows, after a check.
void Session::CheckOpened(const std::wstring& whole) {
  const std::wstring& shown = m_control.text;
  const auto returns = std::ranges::count(whole, L'\r');
  const long width = 8 * (static_cast<long>(whole.size()) - returns) + 4 * returns;
  const double screen = m_host.screenWidth >= 1 && m_host.screenWidth < 4801
                            ? static_cast<int>(m_host.screenWidth)
                            : 1920;
  const bool wraps = m_model.IsOneLine() && width > static_cast<int>(0.75 * screen);
  Require(m_editor->IsWrapped() == wraps, "one-line text wider than the limit is wrapped");
  if (!wraps) Require(shown == whole, "a text that is not wrapped is shown as it is");
  if (wraps && m_control.letterWidth <= 0.75 * screen && returns == 0 &&
      std::ranges::count(whole, L'\n') == 0) {
    const std::wstring joined = WithoutBreaks(shown);
    Require(joined == whole || joined == whole.substr(0, whole.size() - 1),
            "at most the last character is missing");
  }
  m_model.box.text = shown;
  m_model.box.isWrapped = wraps;
  m_model.box.end = static_cast<int>(shown.size());
}

void Session::Check(const char* kind) {
  if (m_isDisturbed || m_isWindowLost || m_depth > 0 || !m_editor) return;
  ++m_run.checked[kind];
  Require(m_editor->IsEditing() == m_model.isEditing, "an edit runs when the model says so");
  for (size_t i = 0; i < m_objects.size(); ++i)
    Require(m_objects[i].texts == m_model.objects[i].texts, "the objects have the model's texts");
  if (!m_model.isEditing) return;
  Require(m_control.text == m_model.box.text, "the box has the model's text");
  Require(m_control.isModified == m_model.box.isModified, "and its modified flag");
  Require(m_control.selection == qvx::TextRange{m_model.box.start, m_model.box.end},
          "and its selection");
}

void Session::CheckAlways() {
  m_countdown = m_isDisturbed ? -1 : m_countdown;
  Require(m_locks == 0, "every lock is released");
  int live = 0;
  for (const edittest::TextObject& object : m_objects) live += object.live;
  if (!m_editor) {
    Require(live == 0, "an unloaded module holds no fragment");
    m_control.exists = false;
    m_highlighted.clear();
    return;
  }
  const bool isEditing = m_editor->IsEditing();
  Require(live == isEditing, "an edit holds one fragment, an idle editor none");
  if (m_isWindowLost) return;
  Require(m_control.exists == isEditing, "the box exists as long as the edit");
  if (!m_isDisturbed)
    Require(m_highlighted.size() == (isEditing ? 1u : 0u), "only the edited object is highlighted");
}

void Session::Guess() {
  m_model.isEditing = m_editor->IsEditing();
  m_model.box.text = m_control.text;
  m_model.box.start = m_control.selection.start;
  m_model.box.end = m_control.selection.end;
}

// Foreign code has run, and what it did is not predicted: the next record starts from an idle
// editor and the texts as they are.
void Session::Follow() {
  m_countdown = -1;
  for (size_t i = 0; i < m_objects.size(); ++i) m_model.objects[i].texts = m_objects[i].texts;
  if (m_editor) m_editor->CancelEdit();
  m_model.isEditing = m_isComposing = m_isWindowLost = false;
  m_highlighted.clear();
  m_dropPos = m_editor ? m_editor->Drag().m_nDropPos : 0;
}

}  // namespace editfuzz
