#include "tests/fuzz/edit_fuzz_model.h"

namespace editfuzz {

std::wstring WithoutBreaks(const std::wstring& text) {
  std::wstring left = text;
  for (size_t at = 0; (at = left.find(L"\r\n", at)) != std::wstring::npos;) left.erase(at, 2);
  return left;
}

int LineOf(const std::wstring& text, int position) {
  int line = 0;
  for (int i = 0; i < position; ++i) line += text[static_cast<size_t>(i)] == L'\n';
  return line;
}

void Model::Commit() {
  if (!isEditing) return;
  isEditing = false;
  if (!box.isModified || !canLock) return;
  ModelObject& object = objects[box.object];
  if (box.piece >= object.texts.size()) return;
  const std::wstring text = box.isWrapped ? WithoutBreaks(box.text) : box.text;
  if (text.empty() && object.isInSight)
    object.texts.erase(object.texts.begin() + static_cast<long>(box.piece));
  else
    object.texts[box.piece] = text;
}

bool Model::Open(size_t object, size_t piece) {
  if (isEditing && box.object == object && box.piece == piece) return true;
  const size_t count = objects[object].texts.size();
  const std::wstring pointed = piece < count ? objects[object].texts[piece] : L"";
  // An emptied piece of an object in sight disappears, and all after it move up. The editor counts
  // on that, whether or not the write succeeds.
  if (isEditing && box.object == object && box.isModified && box.text.empty() &&
      objects[object].isInSight && piece > box.piece)
    --piece;
  Commit();
  isEditing = true;
  box = {object, piece, pointed, 0, static_cast<int>(pointed.size()), false, false, true};
  return true;
}

bool Model::OpenNext(bool vertical, bool backward) {
  const ModelObject& object = objects[box.object];
  const long step = vertical ? object.columns : 1;
  const long next = static_cast<long>(box.piece) + (backward ? -step : step);
  if (step == 0 || next < 0 || next >= static_cast<long>(object.texts.size())) return false;
  return Open(box.object, static_cast<size_t>(next));
}

std::wstring MovedText(const std::wstring& text, int start, int end, int drop, bool copies) {
  const int length = static_cast<int>(text.size());
  if (start < 0 || end > length || (drop >= start && drop <= end)) return text;
  std::wstring moved;
  for (int gap = 0; gap <= length; ++gap) {
    if (gap == (drop < length ? drop : length))
      for (int i = start; i < end; ++i) moved += text[static_cast<size_t>(i)];
    const bool isSelected = gap >= start && gap < end;
    if (gap < length && (copies || !isSelected)) moved += text[static_cast<size_t>(gap)];
  }
  return moved;
}

bool CommandText(int command, const ModelBox& box, const std::wstring& choice, std::wstring& text,
                 int& caret) {
  const std::wstring head = box.text.substr(0, static_cast<size_t>(box.start));
  const std::wstring tail = box.text.substr(static_cast<size_t>(box.end));
  const std::wstring inner =
      box.text.substr(static_cast<size_t>(box.start), static_cast<size_t>(box.end - box.start));
  std::wstring mark, instead;
  if (command == 5004) mark = L"^L";
  if (command == 5005) mark = L"^U";
  if (command == 5006) mark = L"^C";
  if (command == 5024) mark = L"^X";
  if (command >= 5007 && command <= 5010) instead = std::wstring(L"%%") + L"dpc%"[command - 5007];
  if (command >= 5011 && command <= 5014)
    instead = std::wstring(L"^") + static_cast<wchar_t>(L'1' + command - 5011);
  if (command == 5015 || command == 5016) instead = choice;
  if (!mark.empty()) {
    text = head + mark + inner + mark + tail;
    caret = box.end + 4;
    return true;
  }
  if (instead.empty()) return false;
  text = head + instead + tail;
  caret = box.start + static_cast<int>(instead.size());
  return true;
}

}  // namespace editfuzz
