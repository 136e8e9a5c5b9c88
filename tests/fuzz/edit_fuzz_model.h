// A model of what the in-place editor does to texts, written without the editor's functions: texts
// are lists of characters, and each operation is the sentence that describes it.
#pragma once

#include <string>
#include <vector>

#include "tests/fuzz/require.h"

namespace editfuzz {

struct ModelObject {
  std::vector<std::wstring> texts;
  long columns = 0;
  bool isMultiLine = false, isInSight = false;
};

// An open box.
struct ModelBox {
  size_t object = 0, piece = 0;
  std::wstring text;
  int start = 0, end = 0;  // selection
  bool isModified = false, isWrapped = false, isFresh = true;
};

struct Model {
  std::vector<ModelObject> objects;
  bool isEditing = false;
  ModelBox box;
  bool canLock = true;

  void Commit();
  void Cancel() { isEditing = false; }
  // Commits and opens another piece; false when it does not exist.
  bool Open(size_t object, size_t piece);
  bool OpenNext(bool vertical, bool backward);
  bool IsOneLine() const { return !objects[box.object].isMultiLine; }
};

// Every character of a dragged text and of the rest, by where it ends up.
std::wstring MovedText(const std::wstring& text, int start, int end, int drop, bool copies);
// Text of a menu command and its caret; false for one that changes no text.
bool CommandText(int command, const ModelBox& box, const std::wstring& choice, std::wstring& text,
                 int& caret);
std::wstring WithoutBreaks(const std::wstring& text);
int LineOf(const std::wstring& text, int position);

}  // namespace editfuzz
