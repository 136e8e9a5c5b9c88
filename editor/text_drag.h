// Dragging of the selected text inside the in-place editor's box, over four messages: the press
// before and after the control has handled it, moves, and the release. The control moves its own
// caret and selection meanwhile; each step returns the selection to be restored.
#pragma once

#include <optional>
#include <string>

#include "editor/edit_control.h"

namespace qvx {

// What a release does.
struct DropResult {
  std::optional<std::wstring> text;  // the new text; then `selection` is the dropped text in it
  std::optional<TextRange> selection;
  int caretHides = 0;  // calls of ShowCaret that end the drag
};

class TextDrag {
 public:
  // For a new box: the selection of an opened box can't be dragged by its first click.
  void Reset();
  // The press, before the control has it. `selection` is the control's.
  void OnPress(TextRange selection);
  // The press, after the control has moved its caret.
  std::optional<TextRange> AfterPress(TextRange selection);
  // A move after the control has handled it. With a result the caret is to be hidden once.
  bool Follows() const { return m_bButtonDown && HasSaved(); }
  TextRange AfterMove(TextRange selection);
  // The release, before the control has it. The text counts only when the selection is dropped.
  // `copies`: it also stays where it was.
  bool IsDropping() const { return m_bDragging && HasSaved(); }
  DropResult OnRelease(const std::wstring& text, bool copies);
  bool HasSaved() const { return !Saved().IsEmpty(); }

  int m_nDropPos = 0;                  // where dragged text would drop; kept between boxes
  int m_nSelStart = 0, m_nSelEnd = 0;  // selection at the press
  bool m_bDragging = false;
  bool m_bButtonDown = false;
  int m_nCaretHides = 0;       // calls of HideCaret during the drag
  bool m_bFreshClick = false;  // no click has come since the box opened

 private:
  TextRange Saved() const { return {m_nSelStart, m_nSelEnd}; }
  void Drop(const std::wstring& text, bool copies, DropResult& result);
};

}  // namespace qvx
