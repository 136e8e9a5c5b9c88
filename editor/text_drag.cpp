#include "editor/text_drag.h"

#include <algorithm>
#include <utility>

namespace qvx {

void TextDrag::Reset() {
  m_nSelStart = m_nSelEnd = m_nCaretHides = 0;
  m_bDragging = m_bButtonDown = m_bFreshClick = false;
}

void TextDrag::OnPress(TextRange selection) {
  if (m_bFreshClick) {
    m_bFreshClick = false;
    m_nSelStart = m_nSelEnd = m_nDropPos;
  } else if (!m_bButtonDown) {
    m_nSelStart = selection.start;
    m_nSelEnd = selection.end;
    m_bButtonDown = true;
  }
}

std::optional<TextRange> TextDrag::AfterPress(TextRange selection) {
  if (!HasSaved()) {
    m_nDropPos = m_nSelStart;
    return std::nullopt;
  }
  if (selection.end != 0) m_nDropPos = selection.end;
  return Saved();
}

TextRange TextDrag::AfterMove(TextRange selection) {
  if (selection.start < m_nSelStart)
    m_nDropPos = selection.start;
  else if (selection.end > m_nSelEnd)
    m_nDropPos = selection.end;
  ++m_nCaretHides;
  m_bDragging = true;
  return Saved();
}

// Leaves the result empty when the text stays as it is.
void TextDrag::Drop(const std::wstring& text, bool copies, DropResult& result) {
  const int length = static_cast<int>(text.size());
  if (m_nSelStart < 0 || m_nSelEnd > length || m_nSelStart > m_nSelEnd) return;
  m_nDropPos = std::min(m_nDropPos, length);  // of a box before, it may be beyond this text
  if (m_nDropPos >= m_nSelStart && m_nDropPos <= m_nSelEnd) return;
  const auto at = [](int position) { return static_cast<size_t>(position); };
  const std::wstring dragged = text.substr(at(m_nSelStart), at(m_nSelEnd - m_nSelStart));
  const int count = m_nSelEnd - m_nSelStart;
  const bool isBefore = m_nDropPos < m_nSelStart;
  std::wstring changed = text;
  changed.insert(at(m_nDropPos), dragged);
  if (!copies) {
    changed.erase(at(isBefore ? m_nSelStart + count : m_nSelStart), at(count));
    if (!isBefore) m_nDropPos -= count;
  }
  result.text = std::move(changed);
  result.selection = {m_nDropPos, m_nDropPos + count};
}

DropResult TextDrag::OnRelease(const std::wstring& text, bool copies) {
  DropResult result;
  m_bButtonDown = false;
  if (!HasSaved()) return result;
  if (!m_bDragging) {
    m_nSelStart = m_nSelEnd = m_nDropPos;
    result.selection = Saved();
    return result;
  }
  Drop(text, copies, result);
  m_bDragging = false;
  result.caretHides = std::exchange(m_nCaretHides, 0);
  return result;
}

}  // namespace qvx
