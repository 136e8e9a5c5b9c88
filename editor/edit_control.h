// The edit control of the in-place editor: the operations of an edit control and of its window, and
// text measuring in a context of it. Implemented by the window class in editor/win/. Positions and
// lengths are characters of the text. Questions, SetModified, Invalidate and the caret's operations
// run no foreign code; any other operation may send messages that use the editor again.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "ground/plain_types.h"

namespace qvx {

struct TextRange {
  int start = 0, end = 0;
  bool IsEmpty() const { return start == end; }
  bool operator==(const TextRange&) const = default;
};

enum class MeasureFont {
  kContext,  // what a new context of the control has
  kBox,      // the font of the box
};

class TextMeasure {
 public:
  virtual ~TextMeasure() = default;
  SIZE Measure(std::wstring_view text, MeasureFont font) { return MeasureAll({text}, font)[0]; }
  // Each text by itself, all in one context: a context of its own would cost more than the text.
  virtual std::vector<SIZE> MeasureAll(const std::vector<std::wstring_view>& texts,
                                       MeasureFont font) = 0;
  // In the font of the box: element i is the width of the first i + 1 characters. Takes time linear
  // in the text's length.
  virtual std::vector<int> PrefixWidths(const std::wstring& text) = 0;
};

enum class BoxParent { kView, kFrame };

class EditControl : public TextMeasure {
 public:
  // Empty, at the parent's origin, without a limit of its text. False when it can't be created.
  virtual bool Create(BoxParent parent) = 0;
  virtual bool Exists() = 0;
  virtual void Destroy() = 0;
  // The stock font of dialogs with this lfHeight; redraws.
  virtual void SetFont(int height) = 0;

  virtual std::wstring Text() = 0;
  virtual void SetText(const std::wstring& text) = 0;  // clears the modified flag
  virtual int TextLength() = 0;
  virtual bool IsModified() = 0;
  virtual void SetModified(bool modified) = 0;
  virtual TextRange Selection() = 0;
  virtual void Select(TextRange range) = 0;
  virtual void SelectAll() = 0;
  virtual void ScrollToCaret() = 0;
  virtual int LineOf(int position) = 0;
  virtual int LineCount() = 0;

  virtual RECT ParentClient() = 0;
  virtual RECT Box() = 0;  // in the parent's client area
  virtual RECT BoxOnScreen() = 0;
  virtual POINT ScreenToParent(POINT screen) = 0;
  virtual void Move(const RECT& box) = 0;  // in the parent's client area; redraws
  virtual void Show(bool show) = 0;
  virtual void TakeFocus() = 0;
  virtual void BringToTop() = 0;
  virtual void Invalidate() = 0;
  virtual void HideCaret() = 0;
  virtual void ShowCaret() = 0;
};

}  // namespace qvx
